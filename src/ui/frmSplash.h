#pragma once

#include "core/FAboutDlg.h"
#include "core/FSplashScr.h"

#include <QSplashScreen>

// The window shown while the program starts. (A first version; the full
// splash and about window replaces it.)
class frmSplash : public QSplashScreen, public FSplashScr, public FAboutDlg
{
    Q_OBJECT

public:
    frmSplash();

    void Show() override;
    void Hide() override { hide(); }
    void UpdateStatus(const QString& text, float minimumSeconds) override;
    void Display() override {}
};

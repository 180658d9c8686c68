#pragma once

#include "core/FAboutDlg.h"
#include "core/FSplashScr.h"

#include <QDialog>
#include <QElapsedTimer>

class QLabel;
class QPlainTextEdit;
class QPushButton;

// The program's title window. While the program starts it is a frameless
// splash with the name, the version and a status line (lblStatus); as the
// about box (Display) it adds the libraries Korvane is built on, with their
// versions, and the licence, and closes with OK or Escape.
class frmSplash : public QDialog, public FSplashScr, public FAboutDlg
{
    Q_OBJECT

public:
    frmSplash();

    void Show() override;
    void Hide() override { hide(); }
    void UpdateStatus(const QString& text, float minimumSeconds) override;
    void Display() override;

    // "Qt 6.4.2", "zlib 1.2.13", "libxml2 2.9.14": the versions in use.
    static QStringList LibraryVersions();
    static QString LicenceText();

protected:
    // A frameless splash still needs an edge against what lies behind it.
    void paintEvent(QPaintEvent* event) override;

private:
    // The libraries and the licence are built when the about box is first
    // shown: the start-up splash never needs them.
    void buildAboutPart();

    QLabel* m_lblStatus;
    QElapsedTimer m_painted;
    QWidget* m_aboutPart = nullptr;
    QPlainTextEdit* m_txtLicence = nullptr;
};

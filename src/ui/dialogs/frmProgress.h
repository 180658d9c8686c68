#pragma once

#include "core/FProgressWin.h"

#include <QDialog>

class QLabel;

// The small window shown while a module is made ready or a game is built or
// opened. lblStatus starts at "Please Wait..." and shows each status text
// with its ampersands as they are (the label has no access key to mark).
class frmProgress : public QDialog, public FProgressWin
{
    Q_OBJECT

public:
    static QString InitialText();

    explicit frmProgress(QWidget* parent = nullptr);

    void Load() override;
    void Show() override;
    void Hide() override { hide(); }
    void Unload() override;
    // The text shows at once; the wait is not kept, so that no status line
    // slows down the work it reports on.
    void UpdateStatus(const QString& text, float minimumSeconds) override;

private:
    QLabel* m_lblStatus;
};

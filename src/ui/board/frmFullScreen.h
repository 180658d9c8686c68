#pragma once

#include "core/FFullScreenDlg.h"

#include <QDialog>

class QLabel;
class QScrollArea;

// The board's picture over the whole screen (picSnapshot in a scroll area,
// centred when smaller than the screen). Escape or a click on the picture
// closes it; the scroll bars and the arrow keys scroll a larger picture.
class frmFullScreen : public QDialog, public FFullScreenDlg
{
    Q_OBJECT

public:
    explicit frmFullScreen(QWidget* parent = nullptr);

    void Display(const QImage& snapshot) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QScrollArea* m_scroll;
    QLabel* m_picSnapshot;
};

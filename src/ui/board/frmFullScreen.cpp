#include "frmFullScreen.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

frmFullScreen::frmFullScreen(QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::FramelessWindowHint), m_scroll(new QScrollArea(this)),
      m_picSnapshot(new QLabel)
{
    setObjectName(QStringLiteral("frmFullScreen"));
    setWindowTitle(QStringLiteral("Korvane"));
    m_picSnapshot->setObjectName(QStringLiteral("picSnapshot"));
    m_picSnapshot->setAlignment(Qt::AlignCenter);
    m_scroll->setWidget(m_picSnapshot);
    m_scroll->setWidgetResizable(true);
    m_scroll->setAlignment(Qt::AlignCenter);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setBackgroundRole(QPalette::Dark);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_scroll);
    m_picSnapshot->installEventFilter(this);
    m_scroll->viewport()->installEventFilter(this);
}

void frmFullScreen::Display(const QImage& snapshot)
{
    const QPixmap pixmap = QPixmap::fromImage(snapshot);
    m_picSnapshot->setPixmap(pixmap);
    // The label is never smaller than the picture, so a larger board scrolls.
    m_picSnapshot->setMinimumSize(pixmap.deviceIndependentSize().toSize());
    // The whole screen the main window is on, also where no window manager
    // honours the full-screen state.
    const QScreen* screen = parentWidget() ? parentWidget()->screen() : this->screen();
    if (screen)
        setGeometry(screen->geometry());
    setWindowState(windowState() | Qt::WindowFullScreen);
    m_scroll->setFocus(Qt::OtherFocusReason);
    exec();
    // The picture can be large; it is not kept once the view is closed.
    m_picSnapshot->clear();
    m_picSnapshot->setMinimumSize(0, 0);
}

bool frmFullScreen::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        accept();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

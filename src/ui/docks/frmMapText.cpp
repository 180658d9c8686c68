#include "frmMapText.h"

#include "actions/CActionEditMapText.h"
#include "actions/CActionMgr.h"
#include "core/CConfiguration.h"
#include "core/CKorvane.h"
#include "model/CMap.h"
#include "ui/app/CCommandGuard.h"
#include "ui/board/CMapState.h"

#include <QApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QScreen>

namespace {

const QString section = QLatin1String(frmMapText::SettingsSection);

} // namespace

frmMapText::frmMapText(QWidget* parent)
    : QDockWidget(tr("Map Text"), parent), m_text(new QPlainTextEdit(this)), m_mainWindow(parent)
{
    setObjectName(QStringLiteral("frmMapText"));
    m_text->setObjectName(QStringLiteral("txtMapText"));
    m_text->setTabChangesFocus(true);
    m_text->setMinimumSize(fontMetrics().averageCharWidth() * 24, fontMetrics().height() * 6);
    m_text->installEventFilter(this);
    setWidget(m_text);
    // Closing the main window commits typed text first, so the question
    // about unsaved changes knows about it.
    if (m_mainWindow)
        m_mainWindow->installEventFilter(this);
    load();
}

frmMapText::~frmMapText()
{
    if (m_watchingApp)
        qApp->removeEventFilter(this);
    if (m_restored && !isHidden())
        saveGeometry();
}

void frmMapText::Show()
{
    const bool first = !m_restored;
    if (first)
        restoreGeometry(true);
    show();
    // A docked window's size is set once it is part of the window's layout.
    if (first)
        restoreGeometry(false);
    raise();
    if (isFloating())
        activateWindow();
    m_text->setFocus(Qt::OtherFocusReason);
}

void frmMapText::Commit()
{
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    const QString text = m_text->toPlainText();
    if (!map || map->Id() != m_mapId || m_text->isReadOnly() || text == map->Text())
        return;
    m_loadedText = text;
    CCommandGuard::Run([&map, &text] {
        auto action = std::make_shared<CActionEditMapText>();
        action->SetMapId(map->Id());
        action->SetText(text);
        Root().ActionMgr().Execute(action);
    });
}

void frmMapText::NotifyOfMapEdit(const QString& mapId)
{
    if (mapId == m_mapId)
        load();
}

void frmMapText::NotifyOfNewGame()
{
    // Text typed into the game that is gone goes with it.
    m_pending.clear();
    m_mapId.clear();
    load();
}

void frmMapText::load()
{
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    const QString mapId = map ? map->Id() : QString();
    if (!m_mapId.isEmpty() && mapId != m_mapId && m_text->toPlainText() != m_loadedText)
        m_pending.insert(m_mapId, m_text->toPlainText());
    m_mapId = mapId;
    m_loadedText = map ? map->Text() : QString();
    const QString shown = m_pending.contains(mapId) ? m_pending.take(mapId) : m_loadedText;
    // Setting the same text again would lose the cursor and the box's own undo.
    if (m_text->toPlainText() != shown)
        m_text->setPlainText(shown);
    m_text->setReadOnly(!map || CMapState::ActiveFrozen());
}

bool frmMapText::outsideTheBox(QObject* receiver) const
{
    if (!receiver->isWidgetType())
        return false;
    const auto* widget = static_cast<QWidget*>(receiver);
    return widget != m_text && !m_text->isAncestorOf(widget);
}

bool frmMapText::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        // While the box has the focus, every gesture elsewhere commits first.
        if (watched == m_text && !m_watchingApp) {
            qApp->installEventFilter(this);
            m_watchingApp = true;
        }
        break;
    case QEvent::FocusOut:
        if (watched == m_text) {
            if (m_watchingApp) {
                qApp->removeEventFilter(this);
                m_watchingApp = false;
            }
            Commit();
        }
        break;
    case QEvent::Shortcut:
        Commit();
        break;
    case QEvent::MouseButtonPress:
        if (outsideTheBox(watched))
            Commit();
        break;
    case QEvent::Close:
        if (watched == m_mainWindow)
            Commit();
        break;
    case QEvent::KeyPress:
        if (watched == m_text && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt &&
            m_mainWindow) {
            Commit();
            m_mainWindow->activateWindow();
            m_mainWindow->setFocus(Qt::ShortcutFocusReason);
        }
        break;
    default:
        break;
    }
    return QDockWidget::eventFilter(watched, event);
}

void frmMapText::hideEvent(QHideEvent* event)
{
    if (m_restored)
        saveGeometry();
    QDockWidget::hideEvent(event);
}

void frmMapText::restoreGeometry(bool floating)
{
    m_restored = true;
    const CConfiguration& config = Root().Config();
    QRect saved = config.GetRect(section);
    const int width = saved.width();
    const int height = saved.height();
    if (width < 80 || height < 60)
        return;
    if (config.GetInt(section, QStringLiteral("Floating")) == 1) {
        if (!floating)
            return;
        setFloating(true);
        // A window saved on a screen that is gone comes back onto this one.
        const QScreen* screen = QGuiApplication::screenAt(saved.center());
        if (!screen && QGuiApplication::primaryScreen())
            saved.moveTopLeft(QGuiApplication::primaryScreen()->availableGeometry().topLeft());
        setGeometry(saved);
        return;
    }
    if (floating)
        return;
    if (auto* main = qobject_cast<QMainWindow*>(m_mainWindow.data())) {
        const Qt::DockWidgetArea area = main->dockWidgetArea(this);
        const bool across = area == Qt::TopDockWidgetArea || area == Qt::BottomDockWidgetArea;
        main->resizeDocks({this}, {across ? height : width},
                          across ? Qt::Vertical : Qt::Horizontal);
    }
}

void frmMapText::saveGeometry() const
{
    CKorvane* root = RootOrNull();
    if (!root)
        return;
    CConfiguration& config = root->Config();
    config.SetRect(section, geometry());
    config.SetValue(section, QStringLiteral("Floating"),
                    isFloating() ? QStringLiteral("1") : QStringLiteral("0"));
}

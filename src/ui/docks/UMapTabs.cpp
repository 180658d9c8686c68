#include "UMapTabs.h"

#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "ui/app/CCommandGuard.h"
#include "ui/board/CMapState.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QScopedValueRollback>

namespace {

// A small padlock, drawn here so the program needs no picture files.
QIcon lockIcon()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(90, 90, 90), 4));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(9, 3, 14, 18), 0, 180 * 16);
    painter.drawLine(QPointF(9, 12), QPointF(9, 15));
    painter.drawLine(QPointF(23, 12), QPointF(23, 15));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(200, 150, 30));
    painter.drawRoundedRect(QRectF(5, 14, 22, 16), 3, 3);
    painter.setBrush(QColor(70, 50, 10));
    painter.drawEllipse(QPointF(16, 21), 2.5, 2.5);
    return QIcon(pixmap);
}

} // namespace

UMapTabs::UMapTabs(QWidget* parent) : QTabBar(parent)
{
    setObjectName(QStringLiteral("tabMaps"));
    setExpanding(false);
    setUsesScrollButtons(true);
    setDocumentMode(true);
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QTabBar::currentChanged, this, &UMapTabs::tabChosen);
}

void UMapTabs::Rebuild()
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    const std::shared_ptr<CMapGroup> group = CMapState::ActiveGroup();
    const std::int32_t count = group ? group->Maps().Count() : 0;
    static const QIcon lock = lockIcon();
    while (this->count() > count)
        removeTab(this->count() - 1);
    for (std::int32_t i = 0; i < count; ++i) {
        const std::shared_ptr<CMap>& map = group->Maps().Item(i + 1);
        // "&" in a map name is shown as itself, not as an access key.
        const QString caption =
            QString(map->Name()).replace(QLatin1Char('&'), QStringLiteral("&&"));
        if (i >= this->count())
            addTab(caption);
        else
            setTabText(i, caption);
        setTabData(i, map->Id());
        setTabIcon(i, group->Frozen() || map->Frozen() ? lock : QIcon());
        setTabToolTip(i, map->Remarks().isEmpty()
                             ? map->Name()
                             : map->Name() + QLatin1Char('\n') + map->Remarks());
    }
    SelectActive();
}

void UMapTabs::SelectActive()
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    const std::shared_ptr<CMap> map = CMapState::ActiveMap();
    for (int i = 0; map && i < count(); ++i) {
        if (tabData(i).toString() == map->Id()) {
            setCurrentIndex(i);
            return;
        }
    }
}

void UMapTabs::tabChosen(int index)
{
    if (m_filling || index < 0)
        return;
    CCommandGuard::Run([index] { CMapState::SwitchToMapAt(index + 1); });
    // A switch that did not happen leaves the shown map's tab selected.
    SelectActive();
}

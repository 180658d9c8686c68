#pragma once

#include <QWidget>

#include <memory>

class CUnit;
class QLabel;

// A unit's picture (imgUnit, from the active context's unit pictures) beside
// its token's caption (lblUnit), at the top of the unit dialogs.
class UUnitBadge : public QWidget
{
    Q_OBJECT

public:
    explicit UUnitBadge(QWidget* parent = nullptr);

    void ShowUnit(const std::shared_ptr<CUnit>& unit);

private:
    QLabel* m_imgUnit;
    QLabel* m_lblUnit;
};

#pragma once

#include "core/FMapTextWin.h"

#include <QDockWidget>

class QPlainTextEdit;

// The active map's free text. (A first version; the full window replaces it.)
class frmMapText : public QDockWidget, public FMapTextWin
{
    Q_OBJECT

public:
    explicit frmMapText(QWidget* parent = nullptr);

    void Show() override
    {
        show();
        raise();
    }
    void Hide() override { hide(); }
    bool Visible() const override { return isVisible(); }

    void NotifyOfArrowAdd(const QString&) override {}
    void NotifyOfArrowDelete(const QString&) override {}
    void NotifyOfArrowEdit(const QString&) override {}
    void NotifyOfGameEdit() override {}
    void NotifyOfGroupAdd(const QString&) override {}
    void NotifyOfGroupDelete(const QString&) override {}
    void NotifyOfGroupSwitch(const QString&, const QString&) override { load(); }
    void NotifyOfMapAdd(const QString&) override {}
    void NotifyOfMapDelete(const QString&) override {}
    void NotifyOfMapEdit(const QString&) override { load(); }
    void NotifyOfMapSwitch(const QString&, const QString&) override { load(); }
    void NotifyOfNewContext() override {}
    void NotifyOfNewGame() override { load(); }
    void NotifyOfUnitAdd(const QString&) override {}
    void NotifyOfUnitDelete(const QString&) override {}
    void NotifyOfUnitEdit(const QString&) override {}

private:
    void load();

    QPlainTextEdit* m_text;
};

#pragma once

#include "core/FNewGameDlg.h"

#include <QDialog>

class QListWidget;
class QPushButton;

// Chooses the module a new game is made with: lvwGameTypes lists the
// installed contexts in the context manager's order, with their captions and
// game icons. A double-click or Enter on an entry chooses it.
class frmNewGame : public QDialog, public FNewGameDlg
{
    Q_OBJECT

public:
    explicit frmNewGame(QWidget* parent = nullptr);

    bool Display() override;
    QString SelectedGameId() const override { return m_selectedId; }

    void accept() override;

private:
    void fill();

    QListWidget* m_lvwGameTypes;
    QPushButton* m_ok;
    QString m_selectedId;
};

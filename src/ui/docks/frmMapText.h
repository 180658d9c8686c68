#pragma once

#include "core/FMapTextWin.h"

#include <QDockWidget>
#include <QHash>
#include <QPointer>

class QPlainTextEdit;

// The active map's free text in txtMapText, read-only while the map or its
// archive is protected. Typed text reaches the map as one edit-map-text
// action when the user leaves the box: the box loses the focus, a shortcut
// runs a command, the mouse is pressed anywhere else or the main window
// closes. So the text is committed before another map is shown, and before a
// save. Alt hands the focus to the main window for its menu bar.
// Position, size and docking are kept in the settings store ("frmMapText").
// It follows the model by listening to the event hub itself: another map,
// archive or game, or an edit or removal of the shown map, shows the text
// of the map then shown.
class frmMapText : public QDockWidget, public FMapTextWin
{
    Q_OBJECT

public:
    static constexpr const char* SettingsSection = "frmMapText";

    explicit frmMapText(QWidget* parent = nullptr);
    ~frmMapText() override;

    // Shows the window; the first time, where it was when last closed.
    void Show() override;
    void Hide() override { hide(); }
    bool Visible() const override { return isVisible(); }

    // Executes the edit for the shown map when its text was changed; nothing
    // when the text is unchanged or the map is no longer the active one.
    void Commit();

    void NotifyOfGroupSwitch(const QString&, const QString&) override { load(); }
    void NotifyOfMapDelete(const QString&) override { load(); }
    void NotifyOfMapEdit(const QString& mapId) override;
    void NotifyOfMapSwitch(const QString&, const QString&) override { load(); }
    void NotifyOfNewGame() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    // Shows the active map's text and protection.
    void load();
    // The saved place of a floating window (before it shows) or the saved
    // size of a docked one (after it shows).
    void restoreGeometry(bool floating);
    void saveGeometry() const;
    bool outsideTheBox(QObject* receiver) const;

    QPlainTextEdit* m_text;
    QPointer<QWidget> m_mainWindow;
    // The map whose text is shown, and its text as last loaded or committed.
    QString m_mapId;
    QString m_loadedText;
    // Text typed for a map that was left without a commit (the switch came
    // from no user gesture); it comes back when that map is shown again.
    QHash<QString, QString> m_pending;
    bool m_restored = false;
    bool m_watchingApp = false;
};

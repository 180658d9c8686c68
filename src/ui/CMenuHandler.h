#pragma once

#include "model/IGameEventListener.h"

#include <QObject>
#include <QString>

#include <functional>

class QAction;
class QMenu;

// A top-level menu of the main window and the object that answers it: it
// writes its captions, refreshes them when the menu opens and turns clicks
// into commands. It hears every model change and follows those it overrides.
class CMenuHandler : public QObject, public IGameEventListener
{
    Q_OBJECT

public:
    CMenuHandler(QMenu* menu, const QString& name, const QString& caption);

    QMenu* Menu() const { return m_menu; }

protected:
    // Called each time the menu is about to open.
    virtual void Refresh() {}

    // Appends an item named name (its object name, so tests find it) that
    // runs onClick; a failure inside the command is reported, not thrown into
    // the event loop.
    QAction* AddItem(const QString& name, const QString& caption, std::function<void()> onClick);
    QAction* AddSeparator(const QString& name);
    // Sets a caption; an item whose caption starts "Can't" is disabled.
    static void SetCaption(QAction* item, const QString& caption);

private:
    QMenu* m_menu;
};

#include "CBusyScope.h"

#include "core/CGui.h"
#include "core/CKorvane.h"
#include "core/FProgressWin.h"

#include <QCursor>
#include <QGuiApplication>

CBusyScope::CBusyScope(bool withWindow) : m_withWindow(withWindow)
{
    // Without a GUI application there is no pointer to change.
    if (s_depth++ == 0) {
        s_pointerShown = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
        if (s_pointerShown)
            QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    }
    if (m_withWindow && s_windowDepth++ == 0) {
        CKorvane* root = RootOrNull();
        CGui* gui = root ? root->Gui() : nullptr;
        s_window = gui ? gui->ProgressWin() : nullptr;
        if (s_window) {
            s_window->Load();
            s_window->Show();
        }
    }
}

CBusyScope::~CBusyScope()
{
    if (m_withWindow && --s_windowDepth == 0 && s_window) {
        s_window->Hide();
        s_window->Unload();
        s_window = nullptr;
    }
    if (--s_depth == 0 && s_pointerShown)
        QGuiApplication::restoreOverrideCursor();
}

#pragma once

class FProgressWin;

// The busy pointer, and optionally the GUI's progress window, for as long as
// this lives. Scopes nest: only the outermost one shows the pointer and the
// first one asking for the window shows it, and each is taken away by the
// scope that showed it, so a task inside another (a module loaded while a
// file opens) never hides what the outer task still uses.
class CBusyScope
{
public:
    explicit CBusyScope(bool withWindow);
    ~CBusyScope();
    CBusyScope(const CBusyScope&) = delete;
    CBusyScope& operator=(const CBusyScope&) = delete;

    // The progress window in use, or null without one (or when not asked for).
    FProgressWin* Window() const { return m_withWindow ? s_window : nullptr; }

private:
    bool m_withWindow;

    static inline int s_depth = 0;
    static inline int s_windowDepth = 0;
    static inline bool s_pointerShown = false;
    static inline FProgressWin* s_window = nullptr;
};

#pragma once

#include "core/CDebug.h"

#include <QString>

// Writes a method's entry line on construction and its exit line on
// destruction, so an exception unwinds the trace depth correctly. Costs one
// flag test while tracing is off.
class CTraceScope
{
public:
    CTraceScope(const char* method, const char* className)
        : m_trace(CDebug::AnyEnabled() ? ActiveTrace() : nullptr)
    {
        if (m_trace)
            m_trace->EnterMethod(method, className);
    }
    ~CTraceScope()
    {
        if (m_trace)
            leave(m_trace);
    }
    CTraceScope(const CTraceScope&) = delete;
    CTraceScope& operator=(const CTraceScope&) = delete;

    // A value worth recording between entry and exit.
    void Denote(const QString& text) const;

    // The root's trace when there is a root and tracing is on, else nullptr.
    static CDebug* ActiveTrace();

private:
    // Static, so the guard's address never escapes and the off path stays in registers.
    static void leave(CDebug* trace);

    CDebug* m_trace;
};

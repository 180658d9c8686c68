#pragma once

#include <QString>

class CDebug;

// Writes a method's entry line on construction and its exit line on
// destruction, so an exception unwinds the trace depth correctly. Costs one
// flag test while tracing is off.
class CTraceScope
{
public:
    CTraceScope(const char* method, const char* className);
    ~CTraceScope();
    CTraceScope(const CTraceScope&) = delete;
    CTraceScope& operator=(const CTraceScope&) = delete;

    // A value worth recording between entry and exit.
    void Denote(const QString& text) const;

    // The root's trace when there is a root and tracing is on, else nullptr.
    static CDebug* ActiveTrace();

private:
    CDebug* m_trace;
};

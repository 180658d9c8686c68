#include "CTraceScope.h"

#include "core/CDebug.h"
#include "core/CKorvane.h"

CDebug* CTraceScope::ActiveTrace()
{
    CKorvane* root = RootOrNull();
    if (!root)
        return nullptr;
    CDebug* trace = root->TracePtr();
    return trace && trace->Enabled() ? trace : nullptr;
}

void CTraceScope::leave(CDebug* trace)
{
    // Tracing may have been switched off inside the method; CDebug ignores the
    // exit then, exactly as it ignores every call while disabled.
    if (RootOrNull() && RootOrNull()->TracePtr() == trace)
        trace->ExitMethod();
}

void CTraceScope::Denote(const QString& text) const
{
    if (m_trace)
        m_trace->DenoteMethod(text);
}

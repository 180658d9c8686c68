#pragma once

#include <QString>

#include <cstdint>

// The method trace written to "debug.txt" in the home. Each line is appended
// by opening, writing and closing the file, so the trace survives a crash.
// While disabled nothing is written and the depth does not move.
class CDebug
{
public:
    // Deletes any trace left by an earlier run, unless KeepEarlierTrace was set.
    explicit CDebug(QString traceFile);
    ~CDebug();
    CDebug(const CDebug&) = delete;
    CDebug& operator=(const CDebug&) = delete;

    bool Enabled() const { return m_enabled; }
    void SetEnabled(bool enabled);

    // The char overloads build no string at all while tracing is off.
    void EnterMethod(const char* method, const char* className);
    void EnterMethod(const QString& method, const QString& className);
    void DenoteMethod(const QString& text);
    void ExitMethod();

    std::int16_t Depth() const { return m_depth; }
    const QString& TraceFile() const { return m_traceFile; }

    // Whether any trace is enabled: the one test a trace guard makes while
    // tracing is off.
    static bool AnyEnabled() { return s_enabledCount > 0; }

    // A companion process (korvane-tool) that does not trace itself leaves
    // the program's trace in place: traces made after this call keep the file.
    static void KeepEarlierTrace(bool keep) { s_keepEarlierTrace = keep; }

private:
    void writeLine(const QString& text) const;

    QString m_traceFile;
    bool m_enabled = false;
    std::int16_t m_depth = 0;
    static inline int s_enabledCount = 0;
    static inline bool s_keepEarlierTrace = false;
};

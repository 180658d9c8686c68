#include "CDebug.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

CDebug::CDebug(QString traceFile) : m_traceFile(std::move(traceFile))
{
    if (!s_keepEarlierTrace)
        QFile::remove(m_traceFile);
}

CDebug::~CDebug()
{
    if (m_enabled)
        --s_enabledCount;
}

void CDebug::SetEnabled(bool enabled)
{
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    s_enabledCount += enabled ? 1 : -1;
    // An installed program keeps its trace in a folder that may not exist yet.
    if (enabled)
        QDir().mkpath(QFileInfo(m_traceFile).absolutePath());
    writeLine(enabled ? QStringLiteral("[Debug Enabled]") : QStringLiteral("[Debug Disabled]"));
}

void CDebug::EnterMethod(const char* method, const char* className)
{
    if (!m_enabled)
        return;
    EnterMethod(QString::fromLatin1(method), QString::fromLatin1(className));
}

void CDebug::EnterMethod(const QString& method, const QString& className)
{
    if (!m_enabled)
        return;
    writeLine(QStringLiteral("[Enter Method] ") + className + QLatin1Char('.') + method +
              QStringLiteral(" >>>"));
    ++m_depth;
}

void CDebug::DenoteMethod(const QString& text)
{
    if (!m_enabled)
        return;
    writeLine(text);
}

void CDebug::ExitMethod()
{
    if (!m_enabled)
        return;
    --m_depth;
    writeLine(QStringLiteral("<<<[Exit Method]"));
}

void CDebug::writeLine(const QString& text) const
{
    QFile file(m_traceFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    QByteArray line(m_depth > 0 ? m_depth : 0, '\t');
    line += text.toUtf8();
    line += '\n';
    file.write(line);
}

#include "CInstallModTask.h"

#include "core/CTraceScope.h"
#include "core/CUtility.h"

#include <QFile>
#include <QFileInfo>

CInstallModTask::CInstallModTask(QString source, QString destination)
    : m_source(std::move(source)), m_destination(std::move(destination))
{}

void CInstallModTask::Execute()
{
    CTraceScope scope("Execute", "CInstallModTask");
    if (!CUtility::FileExists(m_source))
        return;
    scope.Denote(QStringLiteral("Module found at ") + m_source);

    if (CUtility::FileExists(m_destination)) {
        scope.Denote(QStringLiteral("Old Module found at ") + m_destination);
        if (!QFile::remove(m_destination)) {
            scope.Denote(QStringLiteral("Error deleting Old Module"));
            return;
        }
    }
    scope.Denote(QStringLiteral("Moving Module"));
    // The module directory may not exist yet on a fresh home.
    const QString directory = QFileInfo(m_destination).absolutePath();
    if (!CUtility::BuildDirectory(directory) || !QFile::rename(m_source, m_destination))
        scope.Denote(QStringLiteral("Error moving Module"));
}

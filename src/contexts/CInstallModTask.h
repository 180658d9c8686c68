#pragma once

#include "core/IShutdownTask.h"

#include <QString>

// Moves a module copied into the cache to its place in the module directory
// when the program ends, replacing the old one. Failures are only traced:
// the program ends regardless.
class CInstallModTask : public IShutdownTask
{
public:
    CInstallModTask(QString source, QString destination);

    const QString& Source() const { return m_source; }
    const QString& Destination() const { return m_destination; }

    void Execute() override;

private:
    QString m_source;
    QString m_destination;
};

#include "CFileDialogs.h"

#include "core/CUtility.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QStringList>

QString CFileDialogs::ToQtFilter(const QString& filter)
{
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList entries;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString caption = parts[i].trimmed();
        // A caption that already names its patterns in brackets keeps only
        // the name; Qt reads the patterns from the brackets.
        const qsizetype bracket = caption.indexOf(QLatin1Char('('));
        if (bracket > 0)
            caption = caption.left(bracket).trimmed();
        QString patterns = parts[i + 1];
        patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
        entries << caption + QStringLiteral(" (") + patterns + QLatin1Char(')');
    }
    entries << tr("All Files (*)");
    return entries.join(QStringLiteral(";;"));
}

bool CFileDialogs::Display(const QString& filter, const QString& proposedName,
                           const QString& extension, const QString& startDirectory)
{
    QString start = startDirectory + proposedName;
    if (!extension.isEmpty())
        start += QLatin1Char('.') + extension;
    QFileDialog dialog(m_parent, tr("Save Game As"), start, ToQtFilter(filter));
    dialog.setObjectName(QStringLiteral("dlgSaveFile"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(extension);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return false;
    return choose(dialog.selectedFiles().constFirst());
}

bool CFileDialogs::Display(const QString& filter, const QString& defaultPattern,
                           const QString& startDirectory)
{
    Q_UNUSED(defaultPattern)
    QFileDialog dialog(m_parent, tr("Open"), startDirectory, ToQtFilter(filter));
    dialog.setObjectName(QStringLiteral("dlgOpenFile"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return false;
    return choose(dialog.selectedFiles().constFirst());
}

bool CFileDialogs::choose(const QString& path)
{
    CUtility::ParsePath(QFileInfo(path).absoluteFilePath(), m_dir, m_file, m_ext);
    return !m_file.isEmpty();
}

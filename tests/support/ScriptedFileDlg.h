#pragma once

#include "core/FOpenFileDlg.h"
#include "core/FSaveFileDlg.h"

#include <QString>
#include <QStringList>

#include <utility>

// A save or open file dialog that answers from a script and keeps what it
// was shown.
class ScriptedFileDlg : public FSaveFileDlg, public FOpenFileDlg
{
public:
    // Confirms the next Display with this path ("" cancels it).
    void Choose(const QString& directory, const QString& file, const QString& extension)
    {
        m_directory = directory;
        m_file = file;
        m_extension = extension;
        m_confirm = true;
    }
    // The arguments of every Display, joined by " # ".
    QStringList Shown;

    bool Display(const QString& filter, const QString& name, const QString& extension,
                 const QString& directory) override
    {
        return answer({filter, name, extension, directory});
    }
    bool Display(const QString& filter, const QString& pattern, const QString& directory) override
    {
        return answer({filter, pattern, directory});
    }
    QString SelDir() const override { return m_directory; }
    QString SelFile() const override { return m_file; }
    QString SelExt() const override { return m_extension; }

private:
    bool answer(const QStringList& arguments)
    {
        Shown << arguments.join(QStringLiteral(" # "));
        return std::exchange(m_confirm, false);
    }

    QString m_directory;
    QString m_file;
    QString m_extension;
    bool m_confirm = false;
};

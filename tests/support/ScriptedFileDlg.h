#pragma once

#include "core/FOpenFileDlg.h"
#include "core/FSaveFileDlg.h"

#include <QString>
#include <QStringList>

#include <utility>

// A file dialog that answers from a script and keeps what it was shown.
template <typename Dialog> class ScriptedFileDlg : public Dialog
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
    QString SelDir() const override { return m_directory; }
    QString SelFile() const override { return m_file; }
    QString SelExt() const override { return m_extension; }

protected:
    bool answer(const QStringList& arguments)
    {
        Shown << arguments.join(QStringLiteral(" # "));
        return std::exchange(m_confirm, false);
    }

private:
    QString m_directory;
    QString m_file;
    QString m_extension;
    bool m_confirm = false;
};

class ScriptedSaveDlg : public ScriptedFileDlg<FSaveFileDlg>
{
public:
    bool Display(const QString& filter, const QString& name, const QString& extension,
                 const QString& directory) override
    {
        return answer({filter, name, extension, directory});
    }
};

class ScriptedOpenDlg : public ScriptedFileDlg<FOpenFileDlg>
{
public:
    bool Display(const QString& filter, const QString& pattern, const QString& directory) override
    {
        return answer({filter, pattern, directory});
    }
};

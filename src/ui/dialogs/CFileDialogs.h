#pragma once

#include "core/FOpenFileDlg.h"
#include "core/FSaveFileDlg.h"

#include <QCoreApplication>
#include <QPointer>

class QWidget;

// The save and open dialogs of the desktop. A filter "Caption|*.a;*.b|..."
// becomes the dialog's list of "Caption (*.a *.b)" entries; the choice comes
// back split into directory (ending in "/"), name and extension.
class CFileDialogs : public FSaveFileDlg, public FOpenFileDlg
{
    Q_DECLARE_TR_FUNCTIONS(CFileDialogs)

public:
    explicit CFileDialogs(QWidget* parent) : m_parent(parent) {}

    bool Display(const QString& filter, const QString& proposedName, const QString& extension,
                 const QString& startDirectory) override;
    bool Display(const QString& filter, const QString& defaultPattern,
                 const QString& startDirectory) override;
    QString SelDir() const override { return m_dir; }
    QString SelFile() const override { return m_file; }
    QString SelExt() const override { return m_ext; }

    static QString ToQtFilter(const QString& filter);

private:
    bool choose(const QString& path);

    QPointer<QWidget> m_parent;
    QString m_dir;
    QString m_file;
    QString m_ext;
};

#pragma once

#include <QString>

// The open-file dialog as the engine sees it. The widget library shows a real
// dialog; tests and the command-line tool answer from a script.
class FOpenFileDlg
{
public:
    virtual ~FOpenFileDlg() = default;

    // Shows the dialog modally. filter holds caption and pattern pairs joined
    // by "|"; defaultPattern ("*.krf;*.cmf") is what the name field starts
    // with; the dialog opens in startDirectory. True when the user chose a file.
    virtual bool Display(const QString& filter, const QString& defaultPattern,
                         const QString& startDirectory) = 0;

    // The chosen file: directory ending in "/", name without extension,
    // extension without the dot.
    virtual QString SelDir() const = 0;
    virtual QString SelFile() const = 0;
    virtual QString SelExt() const = 0;
};

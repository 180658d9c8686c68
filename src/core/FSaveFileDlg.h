#pragma once

#include <QString>

// The save-file dialog as the engine sees it. The widget library shows a real
// dialog; tests and the command-line tool answer from a script.
class FSaveFileDlg
{
public:
    virtual ~FSaveFileDlg() = default;

    // Shows the dialog modally. filter holds caption and pattern pairs joined
    // by "|" ("Korvane Game Files  (*.krf)|*.krf"); proposedName (without
    // extension) and extension (without the dot) fill the name field; the
    // dialog opens in startDirectory. True when the user confirmed a name.
    virtual bool Display(const QString& filter, const QString& proposedName,
                         const QString& extension, const QString& startDirectory) = 0;

    // The confirmed choice: directory ending in "/", name without extension,
    // extension without the dot.
    virtual QString SelDir() const = 0;
    virtual QString SelFile() const = 0;
    virtual QString SelExt() const = 0;
};

#pragma once

#include <QString>

// Edits the game's name and remarks.
class FGamePropsDlg
{
public:
    virtual ~FGamePropsDlg() = default;

    virtual bool Display(const QString& name, const QString& remarks) = 0;
    virtual QString Name() const = 0;
    virtual QString Remarks() const = 0;
};

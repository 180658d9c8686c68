#pragma once

#include "contexts/CStandardGame.h"

// The context of a user module (".udm" in the user module directory): a
// standard context whose games are saved as ".cmf" files.
class CUserDefinedGame : public CStandardGame
{
public:
    QString FileExtension() const override;
    QString FileCaption() const override;
    bool IsUserDefined() const override;
};

#pragma once

#include "tokens/CTokenBase.h"

// The plain counter: one picture everywhere, no caption or data of its own.
class CEmptyToken : public CTokenBase
{
public:
    using CTokenBase::CTokenBase;

    QString Class() const override;
};

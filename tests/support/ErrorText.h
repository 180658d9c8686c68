#pragma once

#include "core/KorvaneError.h"

#include <QString>

#include <functional>

// "number source: description" of the error a call raises, or "no error".
inline QString errorOf(const std::function<void()>& call)
{
    try {
        call();
    } catch (const KorvaneError& e) {
        return QStringLiteral("%1 %2: %3").arg(e.Number()).arg(e.Source(), e.Description());
    }
    return QStringLiteral("no error");
}

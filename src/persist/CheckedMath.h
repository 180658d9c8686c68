#pragma once

#include "core/KorvaneError.h"

#include <cstdint>

// Signed 32-bit arithmetic that raises the run-time overflow error (number 6)
// instead of wrapping.
inline std::int32_t CheckedAdd(std::int32_t a, std::int32_t b, const char* source)
{
    std::int32_t result = 0;
    if (__builtin_add_overflow(a, b, &result))
        throw KorvaneError(6, QLatin1String(source), QStringLiteral("Overflow"));
    return result;
}

inline std::int32_t CheckedMul(std::int32_t a, std::int32_t b, const char* source)
{
    std::int32_t result = 0;
    if (__builtin_mul_overflow(a, b, &result))
        throw KorvaneError(6, QLatin1String(source), QStringLiteral("Overflow"));
    return result;
}

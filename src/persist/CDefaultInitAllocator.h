#pragma once

#include <memory>
#include <new>
#include <type_traits>
#include <utility>
#include <vector>

// An allocator whose value-less construction leaves the value uninitialised.
// A byte buffer resized with it costs memory only as its pages are written,
// so a large body about to be inflated into is not first filled with zeros.
// Explicit fills (assign(n, 0), resize(n, 0)) still fill.
template <typename T> class CDefaultInitAllocator : public std::allocator<T>
{
public:
    template <typename U> struct rebind
    {
        using other = CDefaultInitAllocator<U>;
    };

    CDefaultInitAllocator() = default;
    template <typename U> CDefaultInitAllocator(const CDefaultInitAllocator<U>&) noexcept {}

    template <typename U>
    void construct(U* place) noexcept(std::is_nothrow_default_constructible_v<U>)
    {
        ::new (static_cast<void*>(place)) U;
    }
    template <typename U, typename... Args> void construct(U* place, Args&&... args)
    {
        ::new (static_cast<void*>(place)) U(std::forward<Args>(args)...);
    }
};

using CByteBuffer = std::vector<unsigned char, CDefaultInitAllocator<unsigned char>>;

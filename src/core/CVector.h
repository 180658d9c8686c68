#pragma once

#include "core/KorvaneError.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

// The program's one list type: 1-based, one shared reference per occupied
// slot, capacity grown by Increment. Errors are KorvaneError number 1 with
// source "CVector." + operation; a raising operation changes nothing.
template <typename T> class CVector
{
public:
    using Pointer = std::shared_ptr<T>;

    static constexpr std::int32_t DefaultIncrement = 10;

    CVector() : m_slots(DefaultIncrement) {}
    CVector(const CVector&) = delete;
    CVector& operator=(const CVector&) = delete;
    // A moved-from vector is empty (its count goes with the slots).
    CVector(CVector&& other) noexcept
        : m_slots(std::move(other.m_slots)), m_count(std::exchange(other.m_count, 0)),
          m_increment(other.m_increment)
    {}
    CVector& operator=(CVector&& other) noexcept
    {
        if (this != &other) {
            releaseFromTop();
            m_slots = std::move(other.m_slots);
            m_count = std::exchange(other.m_count, 0);
            m_increment = other.m_increment;
        }
        return *this;
    }
    ~CVector() { releaseFromTop(); }

    const Pointer& Item(std::int32_t index) const
    {
        checkIndex(index, "Item");
        return m_slots[index - 1];
    }

    void SetItem(std::int32_t index, Pointer object)
    {
        checkIndex(index, "Item");
        m_slots[index - 1].reset();
        m_slots[index - 1] = std::move(object);
    }

    void AddItem(Pointer object)
    {
        growIfFull("AddItem");
        m_slots[m_count] = std::move(object);
        ++m_count;
    }

    // Position of the first slot holding this very object, 0 if none.
    std::int32_t IndexOf(const T* object) const
    {
        for (std::int32_t i = 0; i < m_count; ++i) {
            if (m_slots[i].get() == object)
                return i + 1;
        }
        return 0;
    }
    std::int32_t IndexOf(const Pointer& object) const { return IndexOf(object.get()); }

    void RemoveItem(const T* object)
    {
        const std::int32_t index = IndexOf(object);
        if (index == 0)
            raise("RemoveItem", "Not Found");
        DeleteItem(index);
    }
    void RemoveItem(const Pointer& object) { RemoveItem(object.get()); }

    void InsertItem(Pointer object, std::int32_t index)
    {
        if (index < 1 || index > m_count + 1)
            raise("InsertItem", "Out Of Bounds");
        growIfFull("InsertItem");
        if (index <= m_count) {
            // One block move of the tail; moving shared pointers keeps their counts.
            std::move_backward(m_slots.begin() + (index - 1), m_slots.begin() + m_count,
                               m_slots.begin() + m_count + 1);
        }
        m_slots[index - 1] = std::move(object);
        ++m_count;
    }

    void DeleteItem(std::int32_t index)
    {
        checkIndex(index, "DeleteItem");
        m_slots[index - 1].reset();
        if (index < m_count) {
            std::move(m_slots.begin() + index, m_slots.begin() + m_count,
                      m_slots.begin() + (index - 1));
            m_slots[m_count - 1].reset();
        }
        --m_count;
    }

    // Releases the items from the last to the first, then keeps exactly
    // Increment empty slots.
    void Clear()
    {
        releaseFromTop();
        m_slots.assign(static_cast<std::size_t>(std::max<std::int32_t>(m_increment, 0)), nullptr);
        m_slots.shrink_to_fit();
    }

    std::int32_t Count() const { return m_count; }
    std::int32_t Size() const { return static_cast<std::int32_t>(m_slots.size()); }
    std::int32_t Increment() const { return m_increment; }

    // Only zero is refused; negative increments are accepted as they are.
    void SetIncrement(std::int32_t increment)
    {
        if (increment == 0)
            raise("Increment", "Invalid Increment");
        m_increment = increment;
    }

    // A second vector over the same items. Its capacity starts at the default
    // and grows by this vector's Increment.
    CVector Clone() const
    {
        CVector copy;
        copy.SetIncrement(m_increment);
        for (std::int32_t i = 0; i < m_count; ++i)
            copy.AddItem(m_slots[i]);
        return copy;
    }

    void Pack()
    {
        m_slots.resize(static_cast<std::size_t>(m_count));
        m_slots.shrink_to_fit();
    }

    void Swap(std::int32_t a, std::int32_t b)
    {
        if (a < 1 || a > m_count || b < 1 || b > m_count)
            raise("Swap", "Out Of Bounds");
        std::swap(m_slots[a - 1], m_slots[b - 1]);
    }

    // Three block copies: a.. into a temporary, b.. into a.., the temporary
    // into b... Overlapping blocks give what those copies give, not an exchange.
    void SwapRange(std::int32_t a, std::int32_t b, std::int32_t n)
    {
        if (a < 1 || a > m_count || b < 1 || b > m_count || n == 0 ||
            static_cast<std::int64_t>(a) + n - 1 > m_count ||
            static_cast<std::int64_t>(b) + n - 1 > m_count || n < 0)
            raise("SwapRange", "Out Of Bounds");
        std::vector<Pointer> temporary(m_slots.begin() + (a - 1), m_slots.begin() + (a - 1 + n));
        // A memmove-like copy, so an overlap reads the source before it is overwritten.
        std::vector<Pointer> source(m_slots.begin() + (b - 1), m_slots.begin() + (b - 1 + n));
        std::copy(source.begin(), source.end(), m_slots.begin() + (a - 1));
        std::copy(temporary.begin(), temporary.end(), m_slots.begin() + (b - 1));
    }

    // Range access over the occupied slots, for plain loops.
    auto begin() const { return m_slots.begin(); }
    auto end() const { return m_slots.begin() + m_count; }

private:
    [[noreturn]] static void raise(const char* operation, const char* description)
    {
        throw KorvaneError(1, QStringLiteral("CVector.") + QLatin1String(operation),
                           QLatin1String(description));
    }

    void checkIndex(std::int32_t index, const char* operation) const
    {
        if (index < 1 || index > m_count)
            raise(operation, "Out Of Bounds");
    }

    void growIfFull(const char* operation)
    {
        if (m_count < Size())
            return;
        // A negative increment cannot make room; refuse rather than lose items.
        if (m_increment <= 0)
            raise(operation, "Invalid Increment");
        m_slots.resize(static_cast<std::size_t>(Size()) + static_cast<std::size_t>(m_increment));
    }

    void releaseFromTop()
    {
        for (std::int32_t i = m_count; i >= 1; --i)
            m_slots[i - 1].reset();
        m_count = 0;
    }

    std::vector<Pointer> m_slots;
    std::int32_t m_count = 0;
    std::int32_t m_increment = DefaultIncrement;
};

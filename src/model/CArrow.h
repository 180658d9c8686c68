#pragma once

#include "core/IHasUniqueId.h"

#include <QString>

#include <cstdint>

class CInputStream;
class COutputStream;

// A straight arrow on a map, from its tail to its head, in one colour.
class CArrow : public IHasUniqueId
{
public:
    static constexpr std::int16_t RecordVersion = 1;
    static constexpr std::int32_t MinimumRecordBytes = 23;

    explicit CArrow(QString id) : m_id(std::move(id)) {}
    CArrow(const CArrow&) = delete;
    CArrow& operator=(const CArrow&) = delete;

    const QString& Id() const { return m_id; }
    QString UniqueId() const override { return m_id; }

    std::int32_t HeadX() const { return m_headX; }
    void SetHeadX(std::int32_t v) { m_headX = v; }
    std::int32_t HeadY() const { return m_headY; }
    void SetHeadY(std::int32_t v) { m_headY = v; }
    std::int32_t TailX() const { return m_tailX; }
    void SetTailX(std::int32_t v) { m_tailX = v; }
    std::int32_t TailY() const { return m_tailY; }
    void SetTailY(std::int32_t v) { m_tailY = v; }
    // 24-bit colour, red in the low byte.
    std::int32_t Color() const { return m_color; }
    void SetColor(std::int32_t v) { m_color = v; }

    void SaveTo(COutputStream& stream) const;
    // Reads a version 1 record, id included; fails with a KorvaneError on an
    // unknown version or missing bytes and then leaves the arrow unchanged.
    void RestoreFrom(CInputStream& stream);

private:
    QString m_id;
    std::int32_t m_headX = 0;
    std::int32_t m_headY = 0;
    std::int32_t m_tailX = 0;
    std::int32_t m_tailY = 0;
    std::int32_t m_color = 0;
};

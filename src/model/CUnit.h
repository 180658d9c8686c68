#pragma once

#include "core/IHasUniqueId.h"

#include <QString>

#include <cstdint>
#include <memory>

class CInputStream;
class COutputStream;
class IToken;

// One counter on a map: an instance of a token at a position, with its own
// caption and data (whose meaning belongs to the token).
class CUnit : public IHasUniqueId
{
public:
    static constexpr std::int16_t RecordVersion = 2;
    // Bytes of the shortest record this program reads (version 1, no id).
    static constexpr std::int32_t MinimumRecordBytes = 12;

    // A unit always has a token; a null token fails with a KorvaneError.
    CUnit(QString id, std::shared_ptr<IToken> token);
    CUnit(const CUnit&) = delete;
    CUnit& operator=(const CUnit&) = delete;

    const QString& Id() const { return m_id; }
    QString UniqueId() const override { return m_id; }
    const std::shared_ptr<IToken>& Token() const { return m_token; }

    std::int32_t x() const { return m_x; }
    void SetX(std::int32_t x) { m_x = x; }
    std::int32_t y() const { return m_y; }
    void SetY(std::int32_t y) { m_y = y; }
    const QString& Caption() const { return m_caption; }
    void SetCaption(const QString& caption) { m_caption = caption; }
    const QString& Data() const { return m_data; }
    void SetData(const QString& data) { m_data = data; }
    bool HasMoved() const { return m_hasMoved; }
    void SetHasMoved(bool hasMoved) { m_hasMoved = hasMoved; }

    // Writes a version 2 record; the id only when the token keeps unit ids.
    void SaveTo(COutputStream& stream) const;
    // Reads a version 1 or 2 record. A stored id replaces the current one.
    // Fails with a KorvaneError on unknown versions and on missing bytes.
    void RestoreFrom(CInputStream& stream);

private:
    QString m_id;
    std::shared_ptr<IToken> m_token;
    std::int32_t m_x = 0;
    std::int32_t m_y = 0;
    QString m_caption;
    QString m_data;
    bool m_hasMoved = false;
};

#include "CUnit.h"

#include "core/KorvaneError.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "persist/CRecordReader.h"
#include "tokens/IToken.h"

#include <QCoreApplication>

CUnit::CUnit(QString id, std::shared_ptr<IToken> token)
    : m_id(std::move(id)), m_token(std::move(token))
{
    if (!m_token)
        throw KorvaneError(5, QStringLiteral("CUnit.Constructor"),
                           QStringLiteral("A unit cannot be made without a token"));
}

void CUnit::SaveTo(COutputStream& stream) const
{
    stream.WriteInteger(RecordVersion);
    if (m_token->PersistId())
        stream.WriteSmallString(m_id);
    stream.WriteLong(m_x);
    stream.WriteLong(m_y);
    stream.WriteSmallString(m_caption);
    stream.WriteSmallString(m_data);
    stream.WriteBoolean(m_hasMoved);
}

void CUnit::RestoreFrom(CInputStream& stream)
{
    CRecordReader in(stream, "CUnit.RestoreFrom");
    RestoreFrom(in);
}

void CUnit::RestoreFrom(CRecordReader& in)
{
    CRecordReader::Section section(in, "CUnit.RestoreFrom");
    const std::int16_t version =
        in.Version(QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "unit")), 1, RecordVersion);
    // Everything is read before anything is changed, so a failure leaves the unit as it was.
    QString id = m_id;
    if (m_token->PersistId())
        id = in.SmallString();
    const std::int32_t x = in.Long();
    const std::int32_t y = in.Long();
    QString caption = in.SmallString();
    QString data = in.SmallString();
    const bool hasMoved = version >= 2 ? in.Boolean() : false;

    m_id = std::move(id);
    m_x = x;
    m_y = y;
    m_caption = std::move(caption);
    m_data = std::move(data);
    m_hasMoved = hasMoved;
}

#include "CArrow.h"

#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "persist/CRecordReader.h"

#include <QCoreApplication>

void CArrow::SaveTo(COutputStream& stream) const
{
    stream.WriteInteger(RecordVersion);
    stream.WriteSmallString(m_id);
    stream.WriteLong(m_headX);
    stream.WriteLong(m_headY);
    stream.WriteLong(m_tailX);
    stream.WriteLong(m_tailY);
    stream.WriteLong(m_color);
}

void CArrow::RestoreFrom(CInputStream& stream)
{
    CRecordReader in(stream, "CArrow.RestoreFrom");
    RestoreFrom(in);
}

void CArrow::RestoreFrom(CRecordReader& in)
{
    CRecordReader::Section section(in, "CArrow.RestoreFrom");
    in.Version(QStringLiteral(QT_TRANSLATE_NOOP("CRecordReader", "arrow")), 1, RecordVersion);
    QString id = in.SmallString();
    const std::int32_t headX = in.Long();
    const std::int32_t headY = in.Long();
    const std::int32_t tailX = in.Long();
    const std::int32_t tailY = in.Long();
    const std::int32_t color = in.Long();

    m_id = std::move(id);
    m_headX = headX;
    m_headY = headY;
    m_tailX = tailX;
    m_tailY = tailY;
    m_color = color;
}

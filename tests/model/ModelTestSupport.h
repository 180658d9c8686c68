#pragma once

#include "contexts/IGameContext.h"
#include "core/CKorvane.h"
#include "core/CUtility.h"
#include "model/CArrow.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "model/CUnit.h"
#include "persist/CInputStream.h"
#include "persist/COutputStream.h"
#include "support/ErrorText.h"
#include "support/RootFixture.h"
#include "support/TestContext.h"
#include "tokens/IToken.h"

#include <QByteArray>
#include <QStringList>

// A unit of the root's context on a locked map.
inline std::shared_ptr<CUnit> AddUnit(CMap& map, const QString& tokenId, std::int32_t x,
                                      std::int32_t y, const QString& caption = QString(),
                                      const QString& data = QString(), bool moved = false)
{
    const CVector<IToken>& tokens = Root().Context()->Tokens();
    auto unit = std::make_shared<CUnit>(CUtility::GenerateId(),
                                        tokens.Item(CUtility::SearchById(tokens, tokenId)));
    unit->SetX(x);
    unit->SetY(y);
    unit->SetCaption(caption);
    unit->SetData(data);
    unit->SetHasMoved(moved);
    map.Units()->AddItem(unit);
    return unit;
}

inline std::shared_ptr<CArrow> AddArrow(CMap& map, std::int32_t tailX, std::int32_t tailY,
                                        std::int32_t headX, std::int32_t headY, std::int32_t color)
{
    auto arrow = std::make_shared<CArrow>(CUtility::GenerateId());
    arrow->SetTailX(tailX);
    arrow->SetTailY(tailY);
    arrow->SetHeadX(headX);
    arrow->SetHeadY(headY);
    arrow->SetColor(color);
    map.Arrows()->AddItem(arrow);
    return arrow;
}

// A map appended to a group (not made its active one).
inline std::shared_ptr<CMap> AddMap(CMapGroup& group, const QString& name = QString())
{
    auto map = std::make_shared<CMap>(CUtility::GenerateId(), group.Id());
    map->SetName(name);
    group.Maps().AddItem(map);
    return map;
}

// A root with an active test context holding a quantity, an empty, an arrow,
// a numeric and a second empty token (at indexes 1 to 5).
class ModelFixture : public RootFixture
{
protected:
    void SetUp() override
    {
        RootFixture::SetUp();
        context = std::make_shared<TestContext>();
        context->AddToken(QStringLiteral("CQuantityToken"), QStringLiteral("INF"));
        context->AddToken(QStringLiteral("CEmptyToken"), QStringLiteral("TANK"));
        context->AddToken(QStringLiteral("CArrowToken"), QStringLiteral("ARROW"));
        context->AddToken(QStringLiteral("CNumericToken"), QStringLiteral("MARK"));
        context->AddToken(QStringLiteral("CEmptyToken"), QStringLiteral("NEINF"));
        Root().SetContext(context);
    }

    std::shared_ptr<IToken> token(const QString& id) const
    {
        return context->Tokens().Item(CUtility::SearchById(context->Tokens(), id));
    }

    // Every unit and arrow of a locked map, one line each, in list order.
    static QStringList contents(const CMap& map)
    {
        const auto n = [](std::int32_t v) { return QString::number(v); };
        QStringList lines;
        for (const auto& u : *map.Units())
            lines << QStringList{u->Id(),      u->Token()->Id(), n(u->x()),       n(u->y()),
                                 u->Caption(), u->Data(),        n(u->HasMoved())}
                         .join(QLatin1Char('|'));
        for (const auto& a : *map.Arrows())
            lines << QStringList{a->Id(),       n(a->HeadX()), n(a->HeadY()),
                                 n(a->TailX()), n(a->TailY()), n(a->Color())}
                         .join(QLatin1Char('|'));
        return lines;
    }

    std::shared_ptr<TestContext> context;
};

// Builds raw record bytes field by field, for hand-made and damaged data.
class Bytes
{
public:
    Bytes& i16(std::int16_t v) { return raw(&v, 2); }
    Bytes& i32(std::int32_t v) { return raw(&v, 4); }
    Bytes& small(const QByteArray& s)
    {
        m_data.append(static_cast<char>(s.size()));
        m_data.append(s);
        return *this;
    }
    Bytes& text(const QByteArray& s)
    {
        i16(static_cast<std::int16_t>(s.size()));
        m_data.append(s);
        return *this;
    }
    Bytes& append(const QByteArray& more)
    {
        m_data.append(more);
        return *this;
    }
    const QByteArray& data() const { return m_data; }

private:
    Bytes& raw(const void* p, int n)
    {
        m_data.append(static_cast<const char*>(p), n);
        return *this;
    }
    QByteArray m_data;
};

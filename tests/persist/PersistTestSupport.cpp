#include "PersistTestSupport.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "model/CGame.h"

QByteArray FileAround(const QByteArray& body, const QByteArray& storedId)
{
    // qCompress is zlib's compress2 behind a big-endian length of its own.
    const auto length = static_cast<std::int32_t>(body.size());
    return "KR01" + (char(storedId.size()) + storedId) +
           QByteArray(reinterpret_cast<const char*>(&length), 4) + qCompress(body, 9).mid(4);
}

TestModule PersistTest::module(const QString& name)
{
    TestModule m = TestModule::Titled(name, name);
    m.Tokens = {TestToken(QStringLiteral("inf"), QStringLiteral("Quantity")),
                TestToken(QStringLiteral("tank")),
                TestToken(QStringLiteral("move"), QStringLiteral("Arrow")),
                TestToken(QStringLiteral("mark"), QStringLiteral("Numeric")),
                TestToken(QStringLiteral("note"), QStringLiteral("Text"))};
    return m;
}

void PersistTest::writeModule(const QString& fileName, const TestModule& m) const
{
    m.WriteTo(home.File(QStringLiteral("modules/") + fileName));
}

TestGui* PersistTest::start()
{
    return static_cast<TestGui*>(
        StartRoot(nullptr, [] { return std::make_unique<TestGui>(); }).Gui());
}

void PersistTest::activate(const QString& id)
{
    const CContextMgr& manager = Root().ContextMgr();
    const std::int32_t position = manager.PosOfContext(id);
    ASSERT_GT(position, 0) << id.toStdString();
    const std::shared_ptr<IGameContext> context = manager.Context(position);
    context->Activate(nullptr);
    Root().SetContext(context);
}

std::shared_ptr<CGame> PersistTest::newGame(const QString& name)
{
    std::shared_ptr<CGame> game = Root().Context()->CreateDefaultGame();
    game->SetName(name);
    Root().SetGame(game);
    return game;
}

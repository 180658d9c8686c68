#include "PersistTestSupport.h"

#include "contexts/CContextMgr.h"
#include "contexts/IGameContext.h"
#include "model/CGame.h"

#include <zlib.h>

QByteArray FileAround(const QByteArray& body, const QByteArray& storedId)
{
    uLongf packed = compressBound(static_cast<uLong>(body.size()));
    QByteArray out(static_cast<qsizetype>(packed), '\0');
    compress2(reinterpret_cast<Bytef*>(out.data()), &packed,
              reinterpret_cast<const Bytef*>(body.constData()), static_cast<uLong>(body.size()), 9);
    out.resize(static_cast<qsizetype>(packed));
    const auto length = static_cast<std::int32_t>(body.size());
    return "KR01" + (char(storedId.size()) + storedId) +
           QByteArray(reinterpret_cast<const char*>(&length), 4) + out;
}

TestModule PersistTest::module(const QString& name)
{
    TestModule m;
    m.UniqueId = name;
    m.Title = name;
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
    auto root = std::make_shared<CKorvane>();
    InstallRoot(root);
    root->SetGuiFactory([] { return std::make_unique<TestGui>(); });
    root->Constructor(nullptr);
    return static_cast<TestGui*>(root->Gui());
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

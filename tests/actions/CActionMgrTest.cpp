#include "actions/CActionMgr.h"
#include "actions/CActionGroup.h"
#include "core/CKorvane.h"
#include "support/RootFixture.h"

#include <QStringList>

#include <memory>

namespace {

// Records every call in a shared log; chains with a later action of the same key.
class LoggingAction : public IAction
{
public:
    LoggingAction(QString name, QStringList* log, QString chainKey = QString(),
                  bool reversable = true)
        : m_name(std::move(name)), m_log(log), m_chainKey(std::move(chainKey)),
          m_reversable(reversable)
    {}

    QString Caption() const override { return m_name; }
    void Execute() override { m_log->append(QStringLiteral("do ") + m_name); }
    void Reverse() override
    {
        m_log->append(QStringLiteral("undo ") + m_name);
        for (const QString& merged : m_merged)
            m_log->append(QStringLiteral("undo ") + merged);
    }
    bool CanChain(const IAction& next) const override
    {
        const auto* other = dynamic_cast<const LoggingAction*>(&next);
        return other && !m_chainKey.isEmpty() && other->m_chainKey == m_chainKey;
    }
    void Chain(const IAction& next) override { m_merged << next.Caption(); }
    bool Reversable() const override { return m_reversable; }
    const char* ClassName() const override { return "LoggingAction"; }

private:
    QString m_name;
    QStringList* m_log;
    QString m_chainKey;
    bool m_reversable;
    QStringList m_merged;
};

class CActionMgrTest : public RootFixture
{
protected:
    std::shared_ptr<LoggingAction> make(const QString& name, const QString& key = QString(),
                                        bool reversable = true)
    {
        return std::make_shared<LoggingAction>(name, &log, key, reversable);
    }
    CActionMgr& mgr() { return Root().ActionMgr(); }

    QStringList log;
};

} // namespace

TEST_F(CActionMgrTest, HistoryKeepsTheLast25AndUndoAndRedoStopAtItsEnds)
{
    for (int i = 1; i <= 30; ++i)
        mgr().Execute(make(QString::number(i)));
    EXPECT_EQ(mgr().Actions().Count(), 25);
    EXPECT_EQ(mgr().UndoPos(), 25);
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("30"));

    for (int i = 0; i < 30; ++i)
        mgr().Undo();
    EXPECT_EQ(mgr().UndoPos(), 0);
    EXPECT_EQ(mgr().NextUndoAction(), nullptr);
    // Actions 1 to 5 fell off the front and were never reversed.
    EXPECT_EQ(log.last(), QStringLiteral("undo 6"));
    EXPECT_FALSE(log.contains(QStringLiteral("undo 5")));
    EXPECT_EQ(mgr().NextRedoAction()->Caption(), QStringLiteral("6"));

    // Redo moves the position, then executes; with nothing left it does nothing.
    log.clear();
    for (int i = 0; i < 26; ++i)
        mgr().Redo();
    EXPECT_EQ(log.size(), 25);
    EXPECT_EQ(log.first() + log.last(), QStringLiteral("do 6do 30"));
    EXPECT_EQ(mgr().UndoPos(), 25);
}

TEST_F(CActionMgrTest, ExecutingAfterUndoDropsTheRedoTailAndIrreversibleActionsTheWholeHistory)
{
    for (const char* name : {"a", "b", "c", "d", "e"})
        mgr().Execute(make(QLatin1String(name),
                           name == QLatin1String("c") ? QStringLiteral("k") : QString()));
    mgr().Undo();
    mgr().Undo();
    ASSERT_EQ(mgr().UndoPos(), 3);

    mgr().Execute(make(QStringLiteral("f"), QStringLiteral("k")));
    // d and e are gone; f merged into c, so the count stays at 3.
    EXPECT_EQ(mgr().Actions().Count(), 3);
    EXPECT_EQ(mgr().UndoPos(), 3);
    EXPECT_EQ(mgr().NextRedoAction(), nullptr);
    EXPECT_EQ(log.last(), QStringLiteral("do f"));

    log.clear();
    mgr().Undo();
    EXPECT_EQ(log, (QStringList{QStringLiteral("undo c"), QStringLiteral("undo f")}));
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("b"));

    // An irreversible action empties the history.
    mgr().Execute(make(QStringLiteral("final"), QString(), false));
    EXPECT_EQ(log.last(), QStringLiteral("do final"));
    EXPECT_EQ(mgr().Actions().Count(), 0);
    EXPECT_EQ(mgr().UndoPos(), 0);
    EXPECT_EQ(mgr().NextRedoAction(), nullptr) << "c, undone before, is gone too";
}

TEST_F(CActionMgrTest, GroupExecutesInOrderReversesBackwardsAndChainsOnlyWhenAllowed)
{
    auto group = std::make_shared<CActionGroup>();
    group->SetCaption(QStringLiteral("Merge Units"));
    group->AddAction(make(QStringLiteral("first")));
    group->AddAction(make(QStringLiteral("second")));
    group->AddAction(make(QStringLiteral("third"), QStringLiteral("k")));
    EXPECT_TRUE(group->Reversable());

    mgr().Execute(group);
    EXPECT_EQ(mgr().NextUndoAction()->Caption(), QStringLiteral("Merge Units"));
    mgr().Undo();
    EXPECT_EQ(log, (QStringList{QStringLiteral("do first"), QStringLiteral("do second"),
                                QStringLiteral("do third"), QStringLiteral("undo third"),
                                QStringLiteral("undo second"), QStringLiteral("undo first")}));

    const auto next = make(QStringLiteral("later"), QStringLiteral("k"));
    EXPECT_FALSE(group->CanChain(*next));
    group->SetAllowChain(true);
    EXPECT_TRUE(group->CanChain(*next));
    EXPECT_FALSE(group->CanChain(*make(QStringLiteral("other"), QStringLiteral("z"))));

    group->AddAction(make(QStringLiteral("irreversible"), QString(), false));
    group->AddAction(make(QStringLiteral("again")));
    EXPECT_FALSE(group->Reversable());
}

#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CMailSender.h"
#include "support/EnvScope.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

TEST(MailSender, HandsTheFileToTheMailProgramWithoutWaitingForItOrShowsItsFolder)
{
    // A stand-in xdg-email on PATH: writes its arguments, one a line, to
    // args.txt; with $STANDIN_HOLD set, keeps running until a file "release"
    // appears, as a mail program that waits for its window to close; then
    // writes done.txt and exits with $STANDIN_EXIT. Folders are "opened"
    // into a list.
    QTemporaryDir dir;
    QDir().mkpath(dir.filePath("bin"));
    QFile script(dir.filePath("bin/xdg-email"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nfor a in \"$@\"; do echo \"$a\"; done > \"$STANDIN_DIR/args.tmp\"\n"
                 "mv \"$STANDIN_DIR/args.tmp\" \"$STANDIN_DIR/args.txt\"\n"
                 "if [ -n \"$STANDIN_HOLD\" ]; then\n"
                 "  while [ ! -e \"$STANDIN_DIR/release\" ]; do sleep 0.05; done\nfi\n"
                 "touch \"$STANDIN_DIR/done.txt\"\nexit \"${STANDIN_EXIT:-0}\"\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EnvScope env;
    env.Set("PATH", dir.filePath("bin").toLocal8Bit() + ':' + qgetenv("PATH"));
    env.Set("STANDIN_DIR", dir.path().toLocal8Bit());
    CMailSender sender;
    QStringList opened;
    bool folderOpens = true;
    sender.OpenFolder = [&](const QUrl& url) {
        opened << url.toLocalFile();
        return folderOpens;
    };
    const QString game = dir.filePath("turn 12.krf");
    const auto exists = [&](const char* name) { return QFile::exists(dir.filePath(name)); };
    // The limits only keep a broken run from hanging: nothing here depends on
    // how fast the machine is.
    constexpr int hangGuard = 60000;

    // Send returns before anything is known; the outcome comes from the
    // event loop once the program has ended.
    auto owner = std::make_unique<QObject>();
    QList<CMailSender::Outcome> outcomes;
    const auto send = [&](const QString& subject) {
        const qsizetype before = outcomes.size();
        QFile::remove(dir.filePath("args.txt"));
        QFile::remove(dir.filePath("done.txt"));
        sender.Send(game, subject, owner.get(),
                    [&](CMailSender::Outcome outcome) { outcomes << outcome; });
        EXPECT_EQ(outcomes.size(), before) << "decided before Send returned";
        return before;
    };
    const auto outcomeOf = [&](qsizetype before) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return outcomes.size() > before; }, hangGuard));
        EXPECT_EQ(outcomes.size(), before + 1);
        return outcomes.value(before, CMailSender::Outcome::Failed);
    };

    CGame played(CUtility::GenerateId());
    played.SetName("Kursk");
    auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
    auto map = std::make_shared<CMap>(CUtility::GenerateId(), group->Id());
    map->SetName("Turn 12");
    group->Maps().AddItem(map);
    group->SwitchTo(map);
    played.MapGroups().AddItem(group);
    played.SwitchTo(group);
    EXPECT_EQ(outcomeOf(send(CMailSender::Subject(played))), CMailSender::Outcome::MailStarted);
    QFile args(dir.filePath("args.txt"));
    ASSERT_TRUE(args.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(args.readAll()),
              "--attach\n" + game + "\n--subject\nKorvane: Kursk, Turn 12\n");

    // One that keeps running is not waited for: the outcome comes when it ends.
    env.Set("STANDIN_HOLD", "1");
    qsizetype before = send("s");
    ASSERT_TRUE(QTest::qWaitFor([&] { return exists("args.txt"); }, hangGuard));
    QCoreApplication::processEvents();
    EXPECT_EQ(outcomes.size(), before);
    QFile(dir.filePath("release")).open(QIODevice::WriteOnly);
    EXPECT_EQ(outcomeOf(before), CMailSender::Outcome::MailStarted);
    EXPECT_TRUE(exists("done.txt"));

    // Nor is it stopped when its owner goes away (the program ends, say).
    QFile::remove(dir.filePath("release"));
    before = send("s");
    ASSERT_TRUE(QTest::qWaitFor([&] { return exists("args.txt"); }, hangGuard));
    owner = std::make_unique<QObject>();
    QFile(dir.filePath("release")).open(QIODevice::WriteOnly);
    EXPECT_TRUE(QTest::qWaitFor([&] { return exists("done.txt"); }, hangGuard));
    EXPECT_EQ(outcomes.size(), before);
    EXPECT_TRUE(opened.isEmpty());

    // Without a mail program (xdg-email fails, then none on PATH at all) the
    // folder is shown.
    env.Set("STANDIN_HOLD", "");
    env.Set("STANDIN_EXIT", "3");
    EXPECT_EQ(outcomeOf(send("s")), CMailSender::Outcome::FolderShown);
    env.Set("PATH", dir.filePath("nothing").toLocal8Bit());
    EXPECT_EQ(outcomeOf(send("s")), CMailSender::Outcome::FolderShown);
    EXPECT_EQ(opened, QStringList({dir.path(), dir.path()}));
    folderOpens = false;
    EXPECT_EQ(outcomeOf(send("s")), CMailSender::Outcome::Failed);
}

#include "core/CUtility.h"
#include "model/CGame.h"
#include "model/CMap.h"
#include "model/CMapGroup.h"
#include "persist/CMailSender.h"
#include "support/EnvScope.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

TEST(MailSender, HandsTheFileToTheMailProgramLeftRunningOrShowsItsFolder)
{
    // A stand-in xdg-email on PATH: writes its arguments, one a line, to
    // args.txt, sleeps $STANDIN_SLEEP seconds, writes done.txt and exits with
    // $STANDIN_EXIT. Folders are "opened" into a list.
    QTemporaryDir dir;
    QDir().mkpath(dir.filePath("bin"));
    QFile script(dir.filePath("bin/xdg-email"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nfor a in \"$@\"; do echo \"$a\"; done > \"$STANDIN_DIR/args.txt\"\n"
                 "sleep \"${STANDIN_SLEEP:-0}\"; touch \"$STANDIN_DIR/done.txt\"\n"
                 "exit \"${STANDIN_EXIT:-0}\"\n");
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

    CGame played(CUtility::GenerateId());
    played.SetName("Kursk");
    auto group = std::make_shared<CMapGroup>(CUtility::GenerateId());
    auto map = std::make_shared<CMap>(CUtility::GenerateId(), group->Id());
    map->SetName("Turn 12");
    group->Maps().AddItem(map);
    group->SwitchTo(map);
    played.MapGroups().AddItem(group);
    played.SwitchTo(group);
    EXPECT_EQ(sender.Send(game, CMailSender::Subject(played)), CMailSender::Outcome::MailStarted);
    QFile args(dir.filePath("args.txt"));
    ASSERT_TRUE(args.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(args.readAll()),
              "--attach\n" + game + "\n--subject\nKorvane: Kursk, Turn 12\n");

    // One that keeps running (until its window closes) is started, not killed.
    QFile::remove(dir.filePath("done.txt"));
    env.Set("STANDIN_SLEEP", "4");
    EXPECT_EQ(sender.Send(game, "s"), CMailSender::Outcome::MailStarted);
    EXPECT_FALSE(QFile::exists(dir.filePath("done.txt")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(dir.filePath("done.txt")); }, 8000));
    EXPECT_TRUE(opened.isEmpty());

    // Without a mail program (xdg-email fails, then none on PATH at all) the
    // folder is shown.
    env.Set("STANDIN_SLEEP", "0");
    env.Set("STANDIN_EXIT", "3");
    EXPECT_EQ(sender.Send(game, "s"), CMailSender::Outcome::FolderShown);
    env.Set("PATH", dir.filePath("nothing").toLocal8Bit());
    EXPECT_EQ(sender.Send(game, "s"), CMailSender::Outcome::FolderShown);
    EXPECT_EQ(opened, QStringList({dir.path(), dir.path()}));
    folderOpens = false;
    EXPECT_EQ(sender.Send(game, "s"), CMailSender::Outcome::Failed);
}

#include "contexts/IGameContext.h"
#include "support/WindowFixture.h"
#include "tokens/IToken.h"
#include "ui/app/CTranslators.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>

#include <map>
#include <memory>

namespace {

// The main window built under a player's language.
class Language : public WindowFixture, public ::testing::WithParamInterface<const char*>
{
protected:
    void SetUp() override
    {
        translators = std::make_unique<CTranslators>(QStringList{QLatin1String(GetParam())});
        WindowFixture::SetUp();
    }
    void TearDown() override
    {
        WindowFixture::TearDown();
        translators.reset();
    }
    // Which items of the menu share an access key, as "File: &Save, &Send".
    static QString clashes(QMenu* menu)
    {
        Q_EMIT menu->aboutToShow();
        return clashesOf(menu->title(), menu->actions());
    }
    static QString clashesOf(const QString& title, const QList<QAction*>& items)
    {
        std::map<QString, QStringList> byKey;
        for (QAction* item : items) {
            const QString key = QKeySequence::mnemonic(item->text()).toString();
            if (item->isVisible() && !item->isSeparator() && !key.isEmpty())
                byKey[key] << item->text();
        }
        QString found;
        for (const auto& [key, texts] : byKey) {
            if (texts.size() > 1)
                found += title + QStringLiteral(": ") + texts.join(QStringLiteral(", ")) + '\n';
        }
        return found;
    }

    std::unique_ptr<CTranslators> translators;
};

} // namespace

TEST_P(Language, MenusSpeakThePlayersLanguageWithOneAccessKeyPerItem)
{
    const std::map<QString, std::pair<QString, QString>> expected{
        {QStringLiteral("de"),
         {QStringLiteral("&Datei"), QStringLiteral("&Rückgängig: Neuen Spielstein setzen")}},
        {QStringLiteral("fr"),
         {QStringLiteral("&Fichier"), QStringLiteral("&Annuler : Placer un nouveau pion")}}};
    ASSERT_EQ(translators->Language(), QLatin1String(GetParam()));
    const auto& [file, undo] = expected.at(translators->Language());
    EXPECT_EQ(window->findChild<QMenu*>(QStringLiteral("mnuFile"))->title(), file);

    // Undo's caption is composed of two translated texts.
    newGame();
    Root().Context()->Tokens().Item(1)->HandleDrop(100, 100);
    auto* actionMenu = window->findChild<QMenu*>(QStringLiteral("mnuAction"));
    Q_EMIT actionMenu->aboutToShow();
    EXPECT_EQ(window->findChild<QAction*>(QStringLiteral("mnuActionUndo"))->text(), undo);

    // Qt's own texts (message box and file dialog buttons) follow too.
    EXPECT_NE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QLatin1String("Cancel"));

    QString found = clashesOf(QStringLiteral("menu bar"), window->menuBar()->actions());
    for (QMenu* menu : window->findChildren<QMenu*>())
        found += clashes(menu);
    EXPECT_TRUE(found.isEmpty()) << found.toStdString();
}

INSTANTIATE_TEST_SUITE_P(GermanAndFrench, Language, ::testing::Values("de", "fr"));

TEST(LanguageChoice, FirstLanguageKorvaneSpeaksWinsAndEnglishNeedsNoTranslation)
{
    EXPECT_EQ(CTranslators::Available(), (QStringList{"de", "fr"}));
    EXPECT_EQ(CTranslators({"de-AT", "fr"}).Language(), QLatin1String("de"));
    EXPECT_EQ(CTranslators({"tlh", "pt-BR", "fr_FR"}).Language(), QLatin1String("fr"));
    // English before German: the English source texts, no translator.
    const CTranslators english({"en-GB", "de"});
    EXPECT_TRUE(english.Language().isEmpty());
    EXPECT_EQ(QCoreApplication::translate("CFileMenu", "&File"), QLatin1String("&File"));
    {
        const CTranslators german({"de"});
        EXPECT_EQ(QCoreApplication::translate("CFileMenu", "&File"), QLatin1String("&Datei"));
    }
    {
        // Counts agree with their number where the language wants it.
        const CTranslators french({"fr"});
        EXPECT_EQ(QCoreApplication::translate("CMapComparison", "%n moved", nullptr, 1),
                  QStringLiteral("1 déplacé"));
        EXPECT_EQ(QCoreApplication::translate("CMapComparison", "%n moved", nullptr, 3),
                  QStringLiteral("3 déplacés"));
    }
    // Gone with its object: later windows are English again.

    EXPECT_EQ(QCoreApplication::translate("CFileMenu", "&File"), QLatin1String("&File"));
}

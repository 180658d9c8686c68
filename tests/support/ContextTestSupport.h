#pragma once

#include "core/CKorvane.h"
#include "core/FMessageBox.h"
#include "core/FProgressWin.h"
#include "support/TestHome.h"

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <utility>
#include <vector>

// One token of a test module; the three picture entries default to "<id>.png".
struct TestToken
{
    explicit TestToken(QString id, QString type = QStringLiteral("Image"),
                       QString category = QStringLiteral("Units"))
        : Id(std::move(id)), Type(std::move(type)), Category(std::move(category))
    {}

    QString Id;
    QString Type;
    QString Category;
    QString Caption;
    QString Pallet;
    QString Drag;
    QString Unit;
    int Left = -1;
    int Top = -1;
    int Width = -1;
    int Height = -1;
    // Written after the region: "<default_text>..</default_text>" and the like.
    QString Extra;
};

// A module pack written by the test itself: a valid definition, a board and
// one solid picture per named entry, each in a colour of its own.
struct TestModule
{
    QString UniqueId = QStringLiteral("test_module");
    QString Version = QStringLiteral("1");
    QString Title = QStringLiteral("Test Module");
    QString Board = QStringLiteral("board.png");
    QSize BoardSize{300, 200};
    QString InitialGame;
    int PalletSize = 24;
    int UnitSize = 32;
    std::vector<TestToken> Tokens{TestToken{QStringLiteral("counter")}};
    bool WithDefinition = true;
    bool WithBoard = true;
    // Further entries, packed as they are.
    std::vector<std::pair<QString, QByteArray>> Extra;

    // The default module under another id and title.
    static TestModule Titled(const QString& uniqueId, const QString& title);

    QString Definition() const;
    // The pack's entries in order. replace gives entries other bytes (adding
    // those the module lacks at the end); entries named in drop are left out.
    std::vector<std::pair<QString, QByteArray>> Entries(QMap<QString, QByteArray> replace = {},
                                                        const QStringList& drop = {}) const;
    QByteArray Pack(const QMap<QString, QByteArray>& replace = {},
                    const QStringList& drop = {}) const;
    // Writes the pack to path, creating folders; returns the path.
    QString WriteTo(const QString& path) const { return TestHome::Write(path, Pack()); }

    // The colour of the solid picture written for an entry.
    static QColor ColorOf(const QString& entry);
    static QByteArray Picture(const QString& entry, QSize size);
};

// One record of a pack's directory, saying whatever the test wants it to.
struct RawEntry
{
    QString Name;
    std::int32_t Position;
    std::int32_t Stored;
    std::int32_t Unpacked;
};

// A pack assembled by hand: its header, a directory that claims count records
// and holds these, then data.
QByteArray RawPack(std::int32_t count, const std::vector<RawEntry>& entries,
                   const QByteArray& data);

// The module's pack with further entries appended under names the writer
// would refuse ("notes..txt", a second "Board.png"); all data stored as it is.
QByteArray AppendRawEntries(const TestModule& module,
                            const std::vector<std::pair<QString, QByteArray>>& entries);

// Keeps every call in order: "Load", "Show", "status text", "Hide", "Unload".
class RecordingProgress : public FProgressWin
{
public:
    void Load() override { Calls << QStringLiteral("Load"); }
    void Show() override { Calls << QStringLiteral("Show"); }
    void Hide() override { Calls << QStringLiteral("Hide"); }
    void Unload() override { Calls << QStringLiteral("Unload"); }
    void UpdateStatus(const QString& text, float) override { Calls << text; }
    QStringList Calls;
};

// Answers questions from a script and keeps what was shown.
class ScriptedMessages : public FMessageBox
{
public:
    struct Shown
    {
        QString Title;
        QString Text;
        Icon Kind;
        bool IsQuestion;
        Answer Default;
    };

    Answer Question(const QString& title, const QString& text, Buttons, Icon icon,
                    Answer defaultButton) override
    {
        Boxes.push_back({title, text, icon, true, defaultButton});
        if (Answers.isEmpty())
            return defaultButton;
        return Answers.takeFirst();
    }
    void Information(const QString& title, const QString& text, Icon icon) override
    {
        Boxes.push_back({title, text, icon, false, Answer::Cancel});
    }

    QList<Answer> Answers;
    std::vector<Shown> Boxes;
};

// Installs a new root with that GUI factory and constructs it, which
// discovers the home's modules.
CKorvane& StartRoot(IProgressMonitor* progress = nullptr, CKorvane::GuiFactory gui = {});

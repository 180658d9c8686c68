#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Message
{
    QString Context;
    QString Source;
    QString Translation;
    bool Finished = true;
};

// The messages of a .ts file; a translation lrelease would not use (marked
// unfinished, or empty) counts as unfinished.
std::vector<Message> readMessages(const QString& path)
{
    std::vector<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QString context;
    Message message;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            message = Message{context, {}, {}, true};
        } else if (xml.name() == QLatin1String("source")) {
            message.Source = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        } else if (xml.name() == QLatin1String("translation")) {
            const QString type = xml.attributes().value(QLatin1String("type")).toString();
            message.Translation = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            if (type == QLatin1String("vanished") || type == QLatin1String("obsolete"))
                continue;
            message.Finished = type.isEmpty() && !message.Translation.isEmpty();
            messages.push_back(message);
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return messages;
}

QStringList shippedFiles()
{
    const QDir folder(QStringLiteral(KORVANE_SOURCE_DIR "/translations"));
    QStringList files;
    for (const QString& name : folder.entryList({QStringLiteral("korvane_*.ts")}, QDir::Files))
        files << folder.filePath(name);
    return files;
}

QString describe(const Message& message)
{
    return message.Context + QStringLiteral(": \"") + message.Source + QStringLiteral("\"\n");
}

// The access key of a menu or label text: "&" before a character, "&&" being a plain "&".
int accessKeys(const QString& text)
{
    static const QRegularExpression key(QStringLiteral("&(&|[^&\\s])"));
    int count = 0;
    for (auto it = key.globalMatch(text); it.hasNext();) {
        if (it.next().captured(1) != QLatin1String("&"))
            ++count;
    }
    return count;
}

QSet<QString> placeholders(const QString& text)
{
    static const QRegularExpression marker(QStringLiteral("%\\d+"));
    QSet<QString> found;
    for (auto it = marker.globalMatch(text); it.hasNext();)
        found.insert(it.next().captured());
    return found;
}

} // namespace

// A text added to the sources without a translation, or a translation file
// that was not brought up to date, fails here (and so in CI), naming the text.
TEST(TranslationFiles, EveryTextOfTheSourcesIsTranslatedInEveryShippedLanguage)
{
    const QStringList files = shippedFiles();
    ASSERT_GE(files.size(), 2) << "the German and French translations are shipped";
    QTemporaryDir scratch;
    ASSERT_TRUE(scratch.isValid());
    QStringList copies;
    for (const QString& file : files) {
        const QString copy = scratch.filePath(QFileInfo(file).fileName());
        ASSERT_TRUE(QFile::copy(file, copy));
        QFile::setPermissions(copy, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        copies << copy;
    }

    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(KORVANE_SOURCE_DIR));
    lupdate.start(QStringLiteral(KORVANE_LUPDATE),
                  QStringList{QStringLiteral("-no-obsolete"), QStringLiteral("-locations"),
                              QStringLiteral("none"), QStringLiteral("src"), QStringLiteral("app"),
                              QStringLiteral("-ts")} +
                      copies);
    ASSERT_TRUE(lupdate.waitForFinished(-1));
    ASSERT_EQ(lupdate.exitStatus(), QProcess::NormalExit);
    ASSERT_EQ(lupdate.exitCode(), 0) << lupdate.readAllStandardError().toStdString();

    for (const QString& copy : copies) {
        const std::vector<Message> messages = readMessages(copy);
        EXPECT_GT(messages.size(), 150u) << copy.toStdString();
        QString unfinished;
        for (const Message& message : messages) {
            if (!message.Finished)
                unfinished += describe(message);
        }
        EXPECT_TRUE(unfinished.isEmpty())
            << QFileInfo(copy).fileName().toStdString()
            << " lacks translations (build update_translations, then translate):\n"
            << unfinished.toStdString();
    }
}

// A translation that drops a "%1" loses a file name or number, and one
// without its "&" loses the item's access key.
TEST(TranslationFiles, TranslationsKeepPlaceholdersAndAccessKeys)
{
    for (const QString& file : shippedFiles()) {
        QString faults;
        for (const Message& message : readMessages(file)) {
            if (!message.Finished)
                continue;
            if (placeholders(message.Source) != placeholders(message.Translation))
                faults += QStringLiteral("placeholders of ") + describe(message);
            if (accessKeys(message.Source) != accessKeys(message.Translation))
                faults += QStringLiteral("access key of ") + describe(message);
        }
        EXPECT_TRUE(faults.isEmpty()) << QFileInfo(file).fileName().toStdString() << ":\n"
                                      << faults.toStdString();
    }
}

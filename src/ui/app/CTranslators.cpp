#include "CTranslators.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {

const QString folder = QStringLiteral(":/i18n");
const QString prefix = QStringLiteral("korvane_");

// "de-DE" and "de_DE" both name German; a name Qt does not know gives "".
QString languageOf(const QString& name)
{
    const QLocale locale(name);
    if (locale.language() == QLocale::C)
        return name == QLatin1String("C") ? QStringLiteral("en") : QString();
    return locale.name().section(QLatin1Char('_'), 0, 0);
}

} // namespace

CTranslators::CTranslators(const QStringList& languages)
{
    const QStringList available = Available();
    for (const QString& wanted : languages) {
        const QString language = languageOf(wanted);
        if (language == QLatin1String("en"))
            return;
        if (available.contains(language)) {
            m_language = language;
            break;
        }
    }
    if (m_language.isEmpty())
        return;
    m_program = std::make_unique<QTranslator>();
    if (m_program->load(prefix + m_language, folder))
        QCoreApplication::installTranslator(m_program.get());
    // Qt's own texts come from the system's Qt translations when it has them.
    m_qt = std::make_unique<QTranslator>();
    if (m_qt->load(QStringLiteral("qtbase_") + m_language,
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(m_qt.get());
}

CTranslators::~CTranslators()
{
    if (m_qt)
        QCoreApplication::removeTranslator(m_qt.get());
    if (m_program)
        QCoreApplication::removeTranslator(m_program.get());
}

QStringList CTranslators::Available()
{
    QStringList languages;
    for (const QString& file : QDir(folder).entryList({prefix + QStringLiteral("*.qm")}))
        languages << file.mid(prefix.size()).chopped(3);
    return languages;
}

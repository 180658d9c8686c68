#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class QTranslator;

// The program's texts and Qt's own (dialog and message box buttons) in the
// first language of the list that Korvane speaks, installed for as long as
// the object lives. English is the language of the source texts: it needs no
// translator, and a list that reaches English first stays English.
class CTranslators
{
public:
    // Languages as QLocale::uiLanguages gives them ("de-DE", "fr", "en-US").
    explicit CTranslators(const QStringList& languages);
    ~CTranslators();
    CTranslators(const CTranslators&) = delete;
    CTranslators& operator=(const CTranslators&) = delete;

    // The language whose translation is installed ("de", "fr"), empty for English.
    const QString& Language() const { return m_language; }

    // The languages Korvane has translations for, built into the program.
    static QStringList Available();

private:
    QString m_language;
    std::unique_ptr<QTranslator> m_program;
    std::unique_ptr<QTranslator> m_qt;
};

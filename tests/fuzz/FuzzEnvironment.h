#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class CKorvane;
class IGameContext;

// What every fuzz target shares, built once per process and never destroyed
// (libFuzzer ends the process with exit() from inside a run): an offscreen
// QGuiApplication, settings and a home holding the shipped modules in a
// temporary folder removed at exit, and a constructed application root.
class FuzzEnvironment
{
public:
    static FuzzEnvironment& Get();

    CKorvane& Root() const { return *m_root; }
    // The first installed context whose module can be used and whose token
    // list is not empty; null when there is none.
    std::shared_ptr<IGameContext> AnyUsableContext();
    // Writes bytes to a file of that name in a scratch folder and returns
    // the folder, ending in "/".
    QString WriteScratch(const QString& name, const QByteArray& bytes) const;

private:
    FuzzEnvironment();

    QString m_scratch;
    std::shared_ptr<CKorvane> m_root;
};

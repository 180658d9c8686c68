#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class CKorvane;
class IGameContext;

// What every fuzz target shares, built once per process: an offscreen
// QGuiApplication, settings in a temporary folder, a temporary home with the
// shipped modules installed, and a constructed application root. The
// temporary folders are removed when the process exits.
class FuzzEnvironment
{
public:
    static FuzzEnvironment& Get();

    CKorvane& Root() const;
    // Makes context the active one, activating it only when it changes.
    // False when its module cannot be used.
    bool Activate(const std::shared_ptr<IGameContext>& context);
    // The first installed context whose module can be used and whose token
    // list is not empty; null when there is none.
    std::shared_ptr<IGameContext> AnyUsableContext();
    // Writes bytes to a file of that name in a scratch folder and returns
    // the folder, ending in "/".
    QString WriteScratch(const QString& name, const QByteArray& bytes) const;

private:
    FuzzEnvironment();

    QString m_base;
    QString m_scratch;
    std::shared_ptr<CKorvane> m_root;
};

#pragma once

#include "IToolCommand.h"

#include <memory>

class CGame;
class CMap;

// "diff GAME.krf [--from MAP] [--to MAP] [--json]": what changed between two
// maps of a game, by default from the map before the last to the last.
// "diff OLD.krf NEW.krf [--json]": whether a newer file of the same game
// still holds the earlier maps as they were; exit status 3 when a map both
// files hold differs.
class CDiffCommand : public IToolCommand
{
public:
    static constexpr int DifferStatus = 3;

    QString Name() const override { return QStringLiteral("diff"); }
    QString Summary() const override;
    QList<Argument> Arguments() const override;
    int OptionalArguments() const override { return 1; }
    QList<QCommandLineOption> Options() const override;
    void Run(CToolSession& session, const QCommandLineParser& parser, const QStringList& arguments,
             QTextStream& out) override;
    int Outcome() const override { return m_outcome; }

    // The map a MAP argument names: "G:M" (group and map from 1) or a map's
    // name (the first map of that name). Raises CToolFailure naming path.
    static std::shared_ptr<CMap> FindMap(const CGame& game, const QString& which,
                                         const QString& path);

private:
    void compareMaps(CToolSession& session, const QCommandLineParser& parser, const QString& path,
                     QTextStream& out);
    void compareFiles(CToolSession& session, const QCommandLineParser& parser,
                      const QString& olderPath, const QString& newerPath, QTextStream& out);

    int m_outcome = 0;
};

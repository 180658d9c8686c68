#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

#include <memory>

class CMap;
class IGameContext;

// A map as a PNG picture, drawn by the board renderer: File > Export Map
// Picture and "korvane-tool render" both come here, so the two give the same
// bytes for the same map and scale.
class CMapExport
{
public:
    struct Picture
    {
        QByteArray Png;
        QSize Size;
        // Why there is no picture; empty on success.
        QString Error;
    };

    // Draws the map at scale (1 is the board's own size), holding a lock on
    // it meanwhile, and encodes the picture.
    static Picture Render(const std::shared_ptr<CMap>& map,
                          const std::shared_ptr<IGameContext>& context, double scale);
    // Render, then write the file whole or not at all (an existing file
    // survives a failure). False with a reason a player can read.
    static bool ToPng(const std::shared_ptr<CMap>& map,
                      const std::shared_ptr<IGameContext>& context, double scale,
                      const QString& path, QString& error);
};

#include "CMapExport.h"

#include "actions/CMapLock.h"
#include "core/KorvaneError.h"
#include "render/CBoardRenderer.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QImageWriter>
#include <QSaveFile>

CMapExport::Picture CMapExport::Render(const std::shared_ptr<CMap>& map,
                                       const std::shared_ptr<IGameContext>& context, double scale)
{
    Picture picture;
    if (!map) {
        picture.Error = QCoreApplication::translate("CMapExport", "there is no map to draw");
        return picture;
    }
    QImage image;
    try {
        const CMapLock lock(map);
        image = CBoardRenderer(context).RenderMap(*map, scale);
    } catch (const KorvaneError& error) {
        picture.Error = error.Description();
        return picture;
    }
    QBuffer buffer(&picture.Png);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    if (!writer.write(image)) {
        picture.Png.clear();
        picture.Error =
            QCoreApplication::translate("CMapExport", "the picture cannot be encoded: %1")
                .arg(writer.errorString());
        return picture;
    }
    picture.Size = image.size();
    return picture;
}

bool CMapExport::ToPng(const std::shared_ptr<CMap>& map,
                       const std::shared_ptr<IGameContext>& context, double scale,
                       const QString& path, QString& error)
{
    const Picture picture = Render(map, context, scale);
    if (!picture.Error.isEmpty()) {
        error = picture.Error;
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(picture.Png) != picture.Png.size() ||
        !file.commit()) {
        error = QCoreApplication::translate("CMapExport", "cannot be written: %1")
                    .arg(file.errorString());

        return false;
    }
    return true;
}

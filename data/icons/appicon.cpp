#include "appicon.h"

#include <QPainter>
#include <QSvgRenderer>

QImage appicon::render(const QString &file, int side)
{
    QSvgRenderer renderer(file);
    if (!renderer.isValid() || side < 1)
        return {};
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(0, 0, side, side));
    return image;
}

#include "ui/symbolprovider.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QUrlQuery>

SymbolProvider::SymbolProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{ }

QImage SymbolProvider::render(const QString &name, const QColor &color, QSize size)
{
    QFile file(QStringLiteral(":/QuivraMac/Ui/icons/") + name + QStringLiteral(".svg"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // The symbols draw in currentColor, so one file serves every tint.
    QByteArray svg = file.readAll();
    svg.replace("currentColor", color.name(QColor::HexRgb).toLatin1());
    QSvgRenderer renderer(svg);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setOpacity(color.alphaF());
    renderer.render(&painter);
    return image;
}

QIcon SymbolProvider::icon(const QString &name, const QColor &color)
{
    QIcon icon;
    for (const int side : { 16, 22, 32, 44, 64 })
        icon.addPixmap(QPixmap::fromImage(render(name, color, QSize(side, side))));
    return icon;
}

QImage SymbolProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const qsizetype query = id.indexOf(u'?');
    const QString name = id.left(query);
    const QColor color(QUrlQuery(id.mid(query + 1)).queryItemValue(QStringLiteral("color")));
    const QSize pixels = requestedSize.isValid() ? requestedSize : QSize(32, 32);
    if (size)
        *size = pixels;
    return render(name, color.isValid() ? color : QColor(Qt::black), pixels);
}

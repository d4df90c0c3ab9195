#pragma once

#include <QIcon>
#include <QQuickImageProvider>

// The shipped monochrome symbols, tinted on request: "image://symbol/gear?color=#8e8e93".
class SymbolProvider : public QQuickImageProvider
{
public:
    SymbolProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

    // One symbol drawn in a colour at a pixel size; a null image for an unknown name.
    static QImage render(const QString &name, const QColor &color, QSize size);
    static QIcon icon(const QString &name, const QColor &color);
};

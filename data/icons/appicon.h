#pragma once

#include <QImage>
#include <QString>

// The application's own icon, compiled into quivraicons under :/QuivraMac/Icons.
namespace appicon {

// Full colour, for windows, the launcher and the about box.
inline QString application()
{
    return QStringLiteral(":/QuivraMac/Icons/quivramac.svg");
}
// One flat grey for desktops that recolour symbolic icons to suit the panel.
inline QString symbolic()
{
    return QStringLiteral(":/QuivraMac/Icons/quivramac-symbolic.svg");
}
// For panels that draw icons as they are: a mid tone that stands at 3:1 or more against light
// and dark panels alike (the tray's other states have drawings of the same kind beside it).
inline QString tray()
{
    return QStringLiteral(":/QuivraMac/Icons/quivramac-tray.svg");
}

// The SVG at `file` drawn antialiased on a transparent side x side square, exactly as the build
// renders the theme's bitmaps; a null image if the file is missing or not SVG.
QImage render(const QString &file, int side);

} // namespace appicon

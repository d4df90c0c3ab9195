#include "ui/panelplacement.h"

#include <algorithm>

namespace panelplacement {
namespace {

constexpr int gap = 4;

QPoint clamped(QPoint at, const QSize &panel, const QRect &available)
{
    at.setX(std::clamp(at.x(), available.left(),
                       std::max(available.left(), available.right() + 1 - panel.width())));
    at.setY(std::clamp(at.y(), available.top(),
                       std::max(available.top(), available.bottom() + 1 - panel.height())));
    return at;
}

} // namespace

QPoint beside(const QRect &anchor, const QSize &panel, const QRect &available)
{
    const QPoint centre = anchor.center();
    QPoint at;
    if (anchor.width() > 1)
        at.setX(centre.x() - panel.width() / 2);
    else if (centre.x() < available.center().x())
        at.setX(anchor.left());
    else
        at.setX(anchor.right() + 1 - panel.width());
    if (centre.y() <= available.center().y())
        at.setY(anchor.bottom() + 1 + gap);
    else
        at.setY(anchor.top() - gap - panel.height());
    return clamped(at, panel, available);
}

QRect itemCell(QPoint pointer, const QRect &screen, const QRect &available, int fallbackSide)
{
    struct Bar
    {
        QRect strip;
        bool horizontal;
    };
    const Bar bars[] = {
        { QRect(screen.left(), screen.top(), screen.width(), available.top() - screen.top()),
          true },
        { QRect(screen.left(), available.bottom() + 1, screen.width(),
                screen.bottom() - available.bottom()),
          true },
        { QRect(screen.left(), screen.top(), available.left() - screen.left(), screen.height()),
          false },
        { QRect(available.right() + 1, screen.top(), screen.right() - available.right(),
                screen.height()),
          false },
    };
    const Bar *nearest = nullptr;
    int nearestDistance = 0;
    for (const Bar &bar : bars) {
        if (bar.strip.isEmpty())
            continue;
        const QPoint inside(std::clamp(pointer.x(), bar.strip.left(), bar.strip.right()),
                            std::clamp(pointer.y(), bar.strip.top(), bar.strip.bottom()));
        const int distance = (inside - pointer).manhattanLength();
        if (!nearest || distance < nearestDistance) {
            nearest = &bar;
            nearestDistance = distance;
        }
    }
    if (!nearest)
        return { pointer - QPoint(fallbackSide / 2, fallbackSide / 2),
                 QSize(fallbackSide, fallbackSide) };
    const QRect &strip = nearest->strip;
    if (nearest->horizontal) {
        const int side = strip.height();
        return { std::clamp(pointer.x() - side / 2, strip.left(), strip.right() + 1 - side),
                 strip.top(), side, side };
    }
    const int side = strip.width();
    return { strip.left(),
             std::clamp(pointer.y() - side / 2, strip.top(), strip.bottom() + 1 - side), side,
             side };
}

QPoint besideWindow(const QRect &other, const QSize &panel, const QRect &available)
{
    const int spacing = 16;
    QPoint at(other.right() + 1 + spacing, other.top());
    if (at.x() + panel.width() > available.right() + 1)
        at.setX(other.left() - spacing - panel.width());
    return clamped(at, panel, available);
}

} // namespace panelplacement

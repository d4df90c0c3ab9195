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

QPoint besideWindow(const QRect &other, const QSize &panel, const QRect &available)
{
    const int spacing = 16;
    QPoint at(other.right() + 1 + spacing, other.top());
    if (at.x() + panel.width() > available.right() + 1)
        at.setX(other.left() - spacing - panel.width());
    return clamped(at, panel, available);
}

} // namespace panelplacement

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// Where the panel pops over, in screen coordinates.
namespace panelplacement {

// Beside the anchor, inside `available` (the screen's area left free by its bars): below it in
// the top half of the screen and above it in the bottom half; centred under a tray icon's
// geometry, or, for a bare activation point (a 1x1 anchor), reaching away from the nearer side
// edge so the panel's corner sits at the point.
QPoint beside(const QRect &anchor, const QSize &panel, const QRect &available);

// Next to the window whose frame is `other`, on its right where there is room and else on its
// left, top edges aligned; inside `available`.
QPoint besideWindow(const QRect &other, const QSize &panel, const QRect &available);

} // namespace panelplacement

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

// The tray item's cell around a pointer on a StatusNotifierItem host, which does not say where
// its item is: a square as thick as the bar the pointer is on, across that bar. A pointer off
// every bar (a menu entry under it) is taken onto the nearest one; with no bar reserved on the
// screen, a square of fallbackSide around the pointer.
QRect itemCell(QPoint pointer, const QRect &screen, const QRect &available, int fallbackSide);

// Next to the window whose frame is `other`, on its right where there is room and else on its
// left, top edges aligned; inside `available`.
QPoint besideWindow(const QRect &other, const QSize &panel, const QRect &available);

} // namespace panelplacement

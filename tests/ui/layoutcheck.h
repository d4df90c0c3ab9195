#pragma once

#include <QStringList>

class QQuickWindow;

// What a person would find wrong with a window's layout, one line per fault, naming the item:
// a visible control or text that is not fully inside the window (or inside a scroll area that
// can bring it into view), a text cut short, a text that may read markup, a text with less contrast
// against what it is drawn on than WCAG AA asks, and two visible controls on top of each other.
namespace layoutcheck {

QStringList faults(QQuickWindow *window);

// True once no finite animation runs in the window: a switch's knob has finished its slide and
// a screen its entrance. Endless ones (spinners, pulsing dots) do not count.
bool settled(QQuickWindow *window);

} // namespace layoutcheck

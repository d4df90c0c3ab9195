#pragma once

// The windowing platform, chosen before the application object exists.
namespace displayplatform {

// Only where there is a display (launch::hasDisplay). In a Wayland session: Wayland itself, else
// X11 through Xwayland. False, after saying why, when no platform can work.
bool choose();
// After start-up: why a Wayland session got X11 windows, when it did.
void explainFallback();

} // namespace displayplatform

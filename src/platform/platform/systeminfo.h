#pragma once

#include <QString>

namespace platform {

// The login name of the user this process runs as.
QString userName();

// Whether Tailscale is installed, connected or not.
bool tailscaleInstalled();

} // namespace platform

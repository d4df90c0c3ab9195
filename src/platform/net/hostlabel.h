#pragma once

#include <QString>

namespace net {

// The host name up to its first ".": "studio.example.lan" gives "studio".
QString hostLabel(const QString &hostName);
QString hostLabel();

} // namespace net

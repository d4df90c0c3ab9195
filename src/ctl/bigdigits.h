#pragma once

#include <QStringList>

namespace bigdigits {

// Five rows of block characters for digits, "." and ":", readable from across a desk. Other
// characters are left out.
QStringList render(const QString &text);

} // namespace bigdigits

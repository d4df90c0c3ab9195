#pragma once

#include <QString>

namespace platform {

// The running executable's folder, known before the application object exists (which is what
// QCoreApplication::applicationDirPath needs).
QString executableDirectory();

} // namespace platform

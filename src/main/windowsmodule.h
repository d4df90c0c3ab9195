#pragma once

#include <QString>

// The windows live in a module of their own (quivramac-windows), loaded only where there is a
// display: without one the process never maps Qt's GUI, Quick or Widgets libraries.
namespace windowsmodule {

// Runs the whole app with its windows; the module makes its own application object.
using Run = int (*)(int *argc, char **argv);

// The module's entry point, or nullptr with the reason in *error. Looked for beside the
// executable (the build tree), then in ../lib/quivramac (an installed package).
Run load(QString *error);

} // namespace windowsmodule

#pragma once

#include <QLocale>

// The app's catalogues are built into it (":/i18n/quivramac_<language>.qm").
namespace translations {

// Installs the catalogue for `locale`, and Qt's own where the system has it, on the running
// application; call it before any window or tray text is made. The English one always comes
// first, beneath the others: it holds only the plural forms ("1 other address"), so that C and
// English read as the source text does.
void install(const QLocale &locale = QLocale::system());

// Installs the catalogue in the file `qmFile` above the others: the test's pseudo-language.
bool installFile(const QString &qmFile);

} // namespace translations

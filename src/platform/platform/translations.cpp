#include "platform/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace translations {

namespace {

// Owned by the application, so that they live exactly as long as it does.
bool load(QTranslator *translator, const QLocale &locale, const QString &name,
          const QString &folder)
{
    if (translator->load(locale, name, QStringLiteral("_"), folder)
        && QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
}

} // namespace

void install(const QLocale &locale)
{
    QCoreApplication *app = QCoreApplication::instance();
    const QString own = QStringLiteral(":/i18n");
    load(new QTranslator(app), QLocale(QLocale::English), QStringLiteral("quivramac"), own);
    if (locale.language() == QLocale::C || locale.language() == QLocale::English)
        return;
    load(new QTranslator(app), locale, QStringLiteral("qtbase"),
         QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    load(new QTranslator(app), locale, QStringLiteral("quivramac"), own);
}

bool installFile(const QString &qmFile)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(qmFile) && QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
}

} // namespace translations

#include "platform/userdefaults.h"

#include "platform/logging.h"
#include "platform/safefile.h"

#include <QSettings>
#include <QStandardPaths>

namespace userdefaults {
namespace {

QVariantMap &registered()
{
    static QVariantMap defaults;
    return defaults;
}

QSettings settings()
{
    return QSettings(QStringLiteral("Quivra"), QStringLiteral("QuivraMac"));
}

// QSettings opens its file, and its lock file when it writes, with plain opens: a FIFO at either
// would block the main thread for good, a link would have the settings written elsewhere. While
// something like that is there, the defaults answer and nothing is written. (On macOS the
// preferences live in the system's own store.)
bool filesAreUsable()
{
#ifdef Q_OS_MACOS
    return true;
#else
    // Where QSettings keeps them on this platform.
    const QString file = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/Quivra/QuivraMac.conf");
    for (const QString &path : QStringList { file, file + QStringLiteral(".lock") }) {
        if (const auto why = safefile::refusal(path, path)) {
            static bool told = false;
            if (!std::exchange(told, true))
                qCInfo(lcLog).nospace().noquote()
                    << "[QuivraMac] Settings neither read nor saved: " << *why;
            return false;
        }
    }
    return true;
#endif
}

} // namespace

void registerDefaults(const QVariantMap &defaults)
{
    registered().insert(defaults);
}

QVariant value(const QString &key)
{
    return filesAreUsable() ? settings().value(key, registered().value(key))
                            : registered().value(key);
}

bool boolValue(const QString &key)
{
    return value(key).toBool();
}

void setValue(const QString &key, const QVariant &value)
{
    if (filesAreUsable())
        settings().setValue(key, value);
}

} // namespace userdefaults

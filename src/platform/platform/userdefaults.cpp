#include "platform/userdefaults.h"

#include <QSettings>

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

} // namespace

void registerDefaults(const QVariantMap &defaults)
{
    registered().insert(defaults);
}

QVariant value(const QString &key)
{
    return settings().value(key, registered().value(key));
}

bool boolValue(const QString &key)
{
    return value(key).toBool();
}

void setValue(const QString &key, const QVariant &value)
{
    settings().setValue(key, value);
}

} // namespace userdefaults

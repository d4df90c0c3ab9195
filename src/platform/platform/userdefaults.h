#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

// The user's preferences: QSettings("Quivra", "QuivraMac"), with registered defaults that are
// answered for absent keys but never written.
namespace userdefaults {

void registerDefaults(const QVariantMap &defaults);
QVariant value(const QString &key);
bool boolValue(const QString &key);
void setValue(const QString &key, const QVariant &value);

} // namespace userdefaults

#pragma once

#include <QDBusInterface>
#include <QObject>
#include <QVariant>

#include <optional>

// quivractl's view of the running app over the session bus.
class ControlClient : public QObject
{
    Q_OBJECT

public:
    ControlClient();

    // Empty when the app can be reached; else why not, in one line for the user.
    QString unreachableReason() const;

    QVariant property(const char *name) const;
    // Calls a method and waits for it; the reply's first value, or nothing on an error.
    std::optional<QVariant> call(const QString &method);
    // With arguments; every value of the reply, or nothing on an error.
    std::optional<QVariantList> callWith(const QString &method, const QVariantList &arguments);
    // Why the last call failed, in one line for the user.
    QString lastError() const { return m_lastError; }

Q_SIGNALS:
    void propertyChanged(const QString &name, const QVariant &value);
    // A phone has paired: its name and its key's fingerprint.
    void paired(const QString &name, const QString &fingerprint);

private Q_SLOTS:
    void onPropertiesChanged(const QString &interface, const QVariantMap &changed,
                             const QStringList &invalidated);
    void onPaired(const QString &name, const QString &fingerprint, const QString &pairedAt,
                  const QString &address);

private:
    QDBusInterface m_interface;
    QString m_lastError;
};

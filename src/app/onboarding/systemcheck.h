#pragma once

#include "diagnostics/checks.h"
#include "onboarding/scheduler.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>

class ServerManager;

// The setup window's system check: four items checked one after another with short pauses,
// stopping at the first failure with a message and a ready-made help request.
class SystemCheck : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList checks READ checksForView NOTIFY checksChanged)
    Q_PROPERTY(int currentCheckIndex READ currentCheckIndex NOTIFY checksChanged)
    Q_PROPERTY(bool allPassed READ allPassed NOTIFY allPassedChanged)
    Q_PROPERTY(int failedIndex READ failedIndex NOTIFY checksChanged)
    Q_PROPERTY(QString failedMessage READ failedMessage NOTIFY checksChanged)
    Q_PROPERTY(QString failedPrompt READ failedPrompt NOTIFY checksChanged)
    // A command that mends the failure, shown apart so that it can be copied; may be empty.
    Q_PROPERTY(QString failedCommand READ failedCommand NOTIFY checksChanged)
    // The app can mend the failure itself (fix()).
    Q_PROPERTY(bool failedCanFix READ failedCanFix NOTIFY checksChanged)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)

public:
    enum State { Pending, Checking, Passed, Failed };
    Q_ENUM(State)

    struct Item
    {
        QString id;
        QString name;
        QString successMessage;
        State state = Pending;
        QString message {};
        QString prompt {};
        QString command {};
        bool canFix = false;
    };

    static constexpr std::chrono::milliseconds beforeEachCheck { 300 };
    static constexpr std::chrono::milliseconds checkDelay { 400 };
    static constexpr std::chrono::milliseconds celebrationDelay { 800 };
    static constexpr std::chrono::milliseconds afterStartingServer { 1000 };

    explicit SystemCheck(ServerManager *serverManager, Scheduler scheduler = realScheduler(),
                         QString sshHost = QStringLiteral("127.0.0.1"), quint16 sshPort = 22,
                         QObject *parent = nullptr);

    QList<Item> items() const { return m_items; }
    QVariantList checksForView() const;
    int currentCheckIndex() const { return m_current; }
    bool allPassed() const { return m_allPassed; }
    int failedIndex() const { return m_failed; }
    QString failedMessage() const;
    QString failedPrompt() const;
    QString failedCommand() const;
    bool failedCanFix() const;
    QString title() const;

    // The screen appears: the list is built (port and address read now), then checked.
    Q_INVOKABLE void appear();
    // "Try Again": every item back to pending, the same list checked from the first item.
    Q_INVOKABLE void start();
    // "Fix": mends what failed, then checks again; where it cannot, the failure says why.
    Q_INVOKABLE void fix();

Q_SIGNALS:
    void checksChanged();
    void allPassedChanged();
    void titleChanged();

private:
    void runNext();
    void runCheck(const QString &id, std::function<void(Item)> done);
    void store(quint64 run, const Item &result);
    void checkSsh(std::function<void(Item)> done);
    Item checkSshDirectory() const;
    void checkServer(std::function<void(Item)> done);
    Item checkNetwork() const;

    QPointer<ServerManager> m_serverManager;
    // What the status report's checks read: the same home and addresses.
    DiagnosticSystem m_system;
    Scheduler m_schedule;
    QString m_sshHost;
    quint16 m_sshPort;
    QList<Item> m_items;
    int m_current = 0;
    bool m_allPassed = false;
    int m_failed = -1;
    // A result from a run that "Try Again" or a new appearance has replaced is dropped.
    quint64 m_run = 0;
};

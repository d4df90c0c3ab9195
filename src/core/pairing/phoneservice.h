#pragma once

#include "devices/deviceregistry.h"
#include "devices/paireddevice.h"
#include "net/addresswatcher.h"
#include "pairing/pairinglistener.h"
#include "pairing/pairingsession.h"
#include "server/clocktimer.h"
#include "server/keyinstaller.h"
#include "server/serverenvironment.h"

#include <QObject>
#include <QString>

// Everything a phone meets, for as long as the app runs: the listener on the pairing port with
// its DNS-SD advertisement, pairing mode and its code, the installing of a paired phone's key
// and the list of paired phones. Neither a pairing nor the server's stop ends the listener.
class PhoneService : public QObject
{
    Q_OBJECT

public:
    // Starts listening (and advertising) at once; a taken port is tried again every
    // `retryInterval`. `serverRunning` feeds the status report's server check.
    PhoneService(const ServerEnvironment &environment, ServerRunning serverRunning,
                 QObject *parent = nullptr);

    PairingSession &session() { return m_session; }
    const PairingSession &session() const { return m_session; }
    DeviceRegistry &devices() { return m_devices; }
    PairingListener &listener() { return m_listener; }
    // The pairing port, the system's choice when the environment asked for any.
    quint16 port() const { return m_listener.port(); }
    bool isListening() const { return m_listener.isListening(); }
    // Why phones cannot reach this computer, in the user's language, while the listener retries;
    // empty otherwise.
    QString problem() const { return m_problem; }
    // The address phones are told to use, worked out again whenever the machine's addresses
    // change and when the user switches pairing on.
    QString localIP() const { return m_localIP; }
    // The newest of the phones that can log in; empty while there is none.
    QString lastPairedDevice() const;

    // The user's switch: on refreshes the address and issues a fresh code, and both ways log.
    void togglePairingMode();
    // Stores the phone's key and records the phone, announces paired() and ends pairing mode;
    // false (with the reason logged) when the key could not be stored. The listener calls it
    // for every accepted request.
    bool completePairing(const PairingResult &result);

    static constexpr std::chrono::seconds retryInterval { 5 };

Q_SIGNALS:
    // One per finished pairing, once the key is stored and the phone recorded.
    void paired(const PairedDevice &device);
    void problemChanged();
    void localIPChanged();
    void lastPairedDeviceChanged();

private:
    void listen();
    void setLocalIP(const QString &address);

    ServerEnvironment m_env;
    QString m_localIP = QStringLiteral("127.0.0.1");
    QString m_problem;
    PairingSession m_session;
    KeyInstaller m_keys;
    DeviceRegistry m_devices;
    PairingListener m_listener;
    ClockTimer m_retry;
    net::AddressWatcher m_addresses;
};

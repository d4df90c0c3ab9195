#pragma once

#include <QObject>
#include <QPointer>

class QuivraMacApp;
class ServerManager;

// The setup window's steps, from the welcome screen to a paired phone, and the pairing state
// the pairing screen shows.
class OnboardingFlow : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Step step READ step NOTIFY stepChanged)
    Q_PROPERTY(PairingKind pairingKind READ pairingKind NOTIFY stepChanged)
    // The session's current code, renewed wherever it was renewed.
    Q_PROPERTY(QString code READ code NOTIFY codeChanged)
    Q_PROPERTY(double expiresIn READ expiresIn NOTIFY stepChanged)
    Q_PROPERTY(QString deviceName READ deviceName NOTIFY stepChanged)
    Q_PROPERTY(ErrorKind errorKind READ errorKind NOTIFY stepChanged)
    Q_PROPERTY(QString errorTitle READ errorTitle NOTIFY stepChanged)
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY stepChanged)
    // Changes with every step set, a new code included: what transitions and countdowns key on.
    Q_PROPERTY(int stepSerial READ stepSerial NOTIFY stepChanged)

public:
    enum Step { Welcome, Explanation, SystemCheck, Pairing, Success };
    Q_ENUM(Step)
    enum PairingKind { WaitingForDevice, DeviceConnecting, Error };
    Q_ENUM(PairingKind)
    enum ErrorKind { NetworkMismatch, WrongCode, Timeout, ConnectionFailed };
    Q_ENUM(ErrorKind)

    static constexpr double codeLifetime = 300;

    OnboardingFlow(ServerManager *serverManager, QuivraMacApp *app, QObject *parent = nullptr);

    Step step() const { return m_step; }
    PairingKind pairingKind() const { return m_pairingKind; }
    QString code() const;
    double expiresIn() const { return m_expiresIn; }
    QString deviceName() const { return m_deviceName; }
    ErrorKind errorKind() const { return m_errorKind; }
    QString errorTitle() const { return title(m_errorKind); }
    QString errorMessage() const { return message(m_errorKind, m_macNetwork); }
    int stepSerial() const { return m_serial; }

    static QString title(ErrorKind kind);
    static QString message(ErrorKind kind, const QString &macNetwork = {});

    // Each showing of the window starts at the beginning.
    Q_INVOKABLE void appear();
    Q_INVOKABLE void welcomeContinue() { setStep(Explanation); }
    Q_INVOKABLE void explanationContinue() { setStep(SystemCheck); }
    Q_INVOKABLE void explanationBack() { setStep(Welcome); }
    Q_INVOKABLE void systemCheckBack() { setStep(Explanation); }
    Q_INVOKABLE void pairingBack() { setStep(SystemCheck); }
    // From the system check: pairing mode on with a fresh code and a fresh five minutes.
    Q_INVOKABLE void startPairing();
    // "Try Again" and the countdown's end: a new code, and pairing back on if it had expired.
    Q_INVOKABLE void renewCode();
    // "Done": onboarding is recorded as complete, then the window closes.
    Q_INVOKABLE void finish();

    // Only the pairing screen's states can be shown this way besides waiting (screenshots).
    void showPairingState(PairingKind kind, const QString &deviceName = {},
                          ErrorKind error = WrongCode, const QString &macNetwork = {});

Q_SIGNALS:
    void stepChanged();
    void codeChanged();
    void dismiss();

private:
    void setStep(Step step);
    void waitForDevice();
    void onPaired(const QString &deviceName);

    QPointer<ServerManager> m_serverManager;
    QuivraMacApp *m_app;
    Step m_step = Welcome;
    PairingKind m_pairingKind = WaitingForDevice;
    double m_expiresIn = codeLifetime;
    QString m_deviceName;
    ErrorKind m_errorKind = WrongCode;
    QString m_macNetwork;
    int m_serial = 0;
};

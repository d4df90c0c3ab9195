// Renders every screen and state of the panel, the settings window and the setup window to PNG
// files, light and dark, checks that each file was written at the size expected, and checks each
// layout as a person would see it. Any fault fails the run, naming the screen, state and item.
// With a language (de, ja) or a catalogue file (the pseudo-language's .qm), the same set in it.
#include "layoutcheck.h"
#include "onboarding/onboardingflow.h"
#include "onboarding/systemcheck.h"
#include "platform/translations.h"
#include "qmlharness.h"
#include "ui/pairingcountdown.h"
#include "ui/uicontroller.h"

#include <QApplication>
#include <QDir>
#include <QTest>

using testsupport::QmlHarness;

namespace {

struct Shot
{
    QString name;
    QString view;
    std::function<void(QmlHarness &)> prepare;
    QSize expected; // zero height: the view's own height
};

// Four minutes and a second later, as the countdown shows it.
void lastMinute(QmlHarness &h, const QString &countdownName)
{
    h.advanceClock(std::chrono::seconds(241));
    if (auto *countdown = h.find<PairingCountdown>(countdownName))
        countdown->tick();
}

// Three wrong codes from each of `senders` addresses.
void guessAt(QmlHarness &h, int senders)
{
    for (int sender = 0; sender < senders; ++sender) {
        for (int i = 0; i < PairingSession::maxFailedAttemptsPerAddress; ++i)
            h.manager().pairingSession()->recordFailedAttempt(
                QStringLiteral("192.168.1.%1").arg(77 + sender));
    }
}

void setRunning(QmlHarness &h, bool running)
{
    if (running != h.manager().isRunning())
        running ? h.manager().startServer() : h.manager().stopServer();
}

// Waits for transitions, springs and sliding knobs to finish, then grabs the view; a picture
// taken mid-animation would be checked as it never stays.
QImage settledGrab(QmlHarness &h)
{
    h.grab();
    if (!QTest::qWaitFor([&h] { return layoutcheck::settled(h.window()); }, 5000))
        qWarning("an animation did not finish");
    return h.grab();
}

// Writes the picture and reports what is wrong with it; the number of faults found.
int saveAndCheck(QmlHarness &h, const QString &file, QSize expected)
{
    const QImage image = settledGrab(h);
    int faults = 0;
    const bool sizeOk = image.width() == expected.width()
        && (expected.height() == 0 ? image.height() > 100 : image.height() == expected.height());
    if (!sizeOk || !image.save(file) || QFileInfo(file).size() == 0) {
        qCritical("%s: not written at the expected size (%dx%d)", qPrintable(file), image.width(),
                  image.height());
        ++faults;
    }
    const QStringList layout = layoutcheck::faults(h.window()) + h.takeQmlWarnings();
    for (const QString &fault : layout)
        qCritical("%s: %s", qPrintable(QFileInfo(file).baseName()), qPrintable(fault));
    if (faults == 0 && layout.isEmpty())
        qInfo("%s %dx%d", qPrintable(file), image.width(), image.height());
    return faults + int(layout.size());
}

void runChecksUntil(QmlHarness &h, const std::function<bool()> &done)
{
    if (!QTest::qWaitFor(
            [&] {
                h.runScheduled();
                return done();
            },
            5000))
        qWarning("the system check did not reach the state wanted");
}

int onboardingShots(const QDir &out)
{
    using Flow = OnboardingFlow;
    const QString ssh = QDir::homePath() + "/.ssh";
    int failures = 0;
    for (const bool dark : { false, true }) {
        QmlHarness h;
        h.setDark(dark);
        h.manager().startServer();
        QDir(ssh).removeRecursively();
        h.onboarding().appear();
        h.show("OnboardingView");
        Flow &flow = h.onboarding();
        SystemCheck &check = h.systemCheck();
        const QList<std::pair<QString, std::function<void()>>> shots {
            { "setup-welcome", [] {} },
            { "setup-explanation", [&] { flow.welcomeContinue(); } },
            { "setup-check-checking", [&] { flow.explanationContinue(); } },
            { "setup-check-failed",
              [&] { runChecksUntil(h, [&] { return check.failedIndex() >= 0; }); } },
            { "setup-check-passed",
              [&] {
                  check.fix();
                  runChecksUntil(h, [&] { return check.allPassed(); });
              } },
            { "setup-check-ssh-stopped",
              [&] {
                  h.closeSshDaemon();
                  check.start();
                  runChecksUntil(h, [&] { return check.failedIndex() >= 0; });
              } },
            { "setup-pairing-waiting", [&] { flow.startPairing(); } },
            { "setup-pairing-last-minute", [&] { lastMinute(h, "onboardingCountdown"); } },
            { "setup-pairing-guessed-at", [&] { guessAt(h, 1); } },
            { "setup-pairing-connecting",
              [&] { flow.showPairingState(Flow::DeviceConnecting, "Ana's iPhone"); } },
            { "setup-error-wrong-code",
              [&] { flow.showPairingState(Flow::Error, {}, Flow::WrongCode); } },
            { "setup-error-timeout",
              [&] { flow.showPairingState(Flow::Error, {}, Flow::Timeout); } },
            { "setup-error-connection-failed",
              [&] { flow.showPairingState(Flow::Error, {}, Flow::ConnectionFailed); } },
            { "setup-error-network-mismatch",
              [&] {
                  flow.showPairingState(Flow::Error, {}, Flow::NetworkMismatch, "Home Wi-Fi");
              } },
            { "setup-success", [&] { Q_EMIT h.manager().phones().paired({ "Ana's iPhone" }); } },
        };
        for (const auto &[name, prepare] : shots) {
            prepare();
            failures += saveAndCheck(h, out.filePath(name + (dark ? "-dark" : "-light") + ".png"),
                                     { 600, 500 });
        }
    }
    return failures;
}

// Without etserver: the panel and the setup check point to the install steps.
int missingEtserverShots(const QDir &out)
{
    const QString ssh = QDir::homePath() + "/.ssh";
    int failures = 0;
    for (const bool dark : { false, true }) {
        const QString scheme = dark ? "-dark.png" : "-light.png";
        QmlHarness h(QmlHarness::withoutEtserver);
        h.setDark(dark);
        QDir().mkpath(ssh);
        QFile::setPermissions(ssh, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        h.manager().startServer();
        h.show("MenuBarView");
        failures += saveAndCheck(h, out.filePath("panel-etserver-missing" + scheme), { 280, 0 });
        h.show("SettingsView");
        h.ui().openInstallSteps();
        QMetaObject::invokeMethod(h.view(), "takeRequest");
        failures += saveAndCheck(h, out.filePath("install-etserver" + scheme), { 500, 400 });
        h.onboarding().appear();
        h.show("OnboardingView");
        h.onboarding().welcomeContinue();
        h.onboarding().explanationContinue();
        runChecksUntil(h, [&] { return h.systemCheck().failedIndex() >= 0; });
        failures +=
            saveAndCheck(h, out.filePath("setup-check-etserver-missing" + scheme), { 600, 500 });
    }
    return failures;
}

// The check itself must fail a window too short for its content: the panel, 60 px shorter.
int checkCatchesAShortWindow()
{
    QmlHarness h;
    h.show("MenuBarView");
    settledGrab(h);
    h.grab(60);
    const QStringList faults = layoutcheck::faults(h.window());
    if (faults.isEmpty()) {
        qCritical("the layout check passed a panel 60 px too short");
        return 1;
    }
    qInfo("a panel 60 px too short fails as it should: %s", qPrintable(faults.first()));
    return 0;
}

// And a text too faint to read: the panel's status in nearly its background's colour.
int checkCatchesFaintText()
{
    QmlHarness h;
    h.show("MenuBarView");
    const QColor faint = h.view()->property("color").value<QColor>().darker(115);
    h.find<QObject>("serverStatus")->setProperty("color", faint);
    settledGrab(h);
    const QStringList faults = layoutcheck::faults(h.window()).filter("contrast");
    if (faults.isEmpty()) {
        qCritical("the layout check passed a status in %s", qPrintable(faint.name()));
        return 1;
    }
    qInfo("a faint status fails as it should: %s", qPrintable(faults.first()));
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    testsupport::isolateHome();
    testsupport::routeLogging();
    testsupport::prepareQuick();
    QApplication app(argc, argv);
    if (argc != 2 && argc != 3) {
        qCritical("usage: quivra-screenshots OUTPUT_FOLDER [LANGUAGE|CATALOGUE.qm]");
        return 2;
    }
    // As the app does, English's plural forms included.
    const QString language = QString::fromLocal8Bit(argc == 3 ? argv[2] : "C");
    const bool catalogue = language.endsWith(".qm");
    translations::install(catalogue ? QLocale::c() : QLocale(language));
    if (catalogue && !translations::installFile(language)) {
        qCritical("cannot load %s", argv[2]);
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    QDir().mkpath(out.path());

    const QString longLog = [] {
        QString log;
        for (int i = 0; i < 60; ++i)
            log += QStringLiteral("[etserver] session %1 attached from 192.168.1.%2\n")
                       .arg(i)
                       .arg(i + 10);
        return log;
    }();
    const QList<Shot> shots {
        { "panel-server-off",
          "MenuBarView",
          [](QmlHarness &h) { setRunning(h, false); },
          { 280, 0 } },
        { "panel-running", "MenuBarView", [](QmlHarness &h) { setRunning(h, true); }, { 280, 0 } },
        { "panel-pairing",
          "MenuBarView",
          [](QmlHarness &h) {
              setRunning(h, true);
              h.manager().togglePairingMode();
          },
          { 280, 0 } },
        { "panel-pairing-last-minute",
          "MenuBarView",
          [](QmlHarness &h) { lastMinute(h, "pairingCountdown"); },
          { 280, 0 } },
        { "panel-pairing-guessed-at",
          "MenuBarView",
          [](QmlHarness &h) { guessAt(h, 2); },
          { 280, 0 } },
        { "panel-keyboard-focus",
          "MenuBarView",
          [](QmlHarness &h) {
              // The ring where the keyboard is: Tab twice, to "Pair New Device".
              h.window()->requestActivate();
              if (!QTest::qWaitForWindowActive(h.window()))
                  qWarning("the panel did not become active");
              QTest::keyClick(h.window(), Qt::Key_Tab);
              QTest::keyClick(h.window(), Qt::Key_Tab);
          },
          { 280, 0 } },
        { "settings-general-running",
          "SettingsView",
          [](QmlHarness &h) { setRunning(h, true); },
          { 500, 400 } },
        { "settings-general-stopped",
          "SettingsView",
          [](QmlHarness &h) { setRunning(h, false); },
          { 500, 400 } },
        { "settings-logs-empty",
          "SettingsView",
          [](QmlHarness &h) {
              h.manager().setLogs({});
              h.view()->setProperty("selectedTab", 1);
          },
          { 500, 400 } },
        { "settings-logs-full",
          "SettingsView",
          [longLog](QmlHarness &h) {
              h.manager().setLogs(longLog);
              h.view()->setProperty("selectedTab", 1);
          },
          { 500, 400 } },
        { "settings-devices-empty",
          "SettingsView",
          [](QmlHarness &h) {
              // The light pictures' phones would still be paired in the dark ones.
              QFile::remove(QDir::homePath() + "/.ssh/authorized_keys");
              h.view()->setProperty("selectedTab", 2);
              if (!QTest::qWaitFor([&h] { return h.find<QQuickItem>("noDevices")->isVisible(); },
                                   5000))
                  qWarning("the device list did not follow authorized_keys");
          },
          { 500, 400 } },
        { "settings-devices",
          "SettingsView",
          [](QmlHarness &h) {
              h.pairPhone("Work iPhone", QDate(2026, 9, 14));
              h.pairPhone("Ana’s iPhone 15 Pro", QDate(2026, 11, 20));
              h.view()->setProperty("selectedTab", 2);
          },
          { 500, 400 } },
        { "settings-devices-confirm",
          "SettingsView",
          [](QmlHarness &h) {
              h.view()->setProperty("selectedTab", 2);
              const QString newest =
                  h.manager().phones().devices().devices().constFirst().fingerprint;
              h.find<QObject>("devicesTab")->setProperty("confirming", newest);
          },
          { 500, 400 } },
    };

    int failures = 0;
    for (const bool dark : { false, true }) {
        QmlHarness harness;
        harness.setDark(dark);
        QString shownView;
        for (const Shot &shot : shots) {
            // The pairing shots continue the panel as it is; everything else starts afresh.
            if (shot.view != shownView || !shot.name.startsWith("panel-pairing-"))
                harness.show(shot.view);
            shownView = shot.view;
            shot.prepare(harness);
            failures += saveAndCheck(harness,
                                     out.filePath(shot.name + (dark ? "-dark" : "-light") + ".png"),
                                     shot.expected);
        }
    }
    failures += onboardingShots(out);
    failures += missingEtserverShots(out);
    failures += checkCatchesAShortWindow();
    failures += checkCatchesFaintText();
    return failures == 0 ? 0 : 1;
}

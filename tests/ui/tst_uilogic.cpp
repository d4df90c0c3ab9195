#include "platform/systeminfo.h"
#include "platform/translations.h"
#include "platform/userdefaults.h"
#include "qmlharness.h"
#include "ui/formats.h"
#include "ui/pairingcountdown.h"
#include "ui/uicontroller.h"

class TestUiLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timeFormats()
    {
        QCOMPARE(formats::uptime(0), "0s");
        QCOMPARE(formats::uptime(59.9), "59s");
        QCOMPARE(formats::uptime(60), "1m 0s");
        QCOMPARE(formats::uptime(3599), "59m 59s");
        QCOMPARE(formats::uptime(3600), "1h 0m 0s");
        QCOMPARE(formats::uptime(3725), "1h 2m 5s");
        QCOMPARE(formats::uptime(25 * 3600 + 61), "25h 1m 1s");
        QCOMPARE(formats::countdown(300), "5:00");
        QCOMPARE(formats::countdown(59), "0:59");
        QCOMPARE(formats::countdown(0), "0:00");
    }

    void countdownRendersTheCodesExpiry()
    {
        PairingCountdown::manualTicks(true);
        auto offset = std::make_shared<std::chrono::seconds>(0);
        PairingSession session([offset] { return std::chrono::system_clock::now() + *offset; });
        session.switchOn();
        PairingCountdown countdown;
        QSignalSpy expired(&countdown, &PairingCountdown::expired);
        countdown.setSession(&session);
        countdown.setRunning(true);
        QCOMPARE(countdown.text(), "5:00");
        *offset += std::chrono::seconds(241);
        countdown.tick();
        QCOMPARE(countdown.text(), "0:59");
        QVERIFY(countdown.urgent());
        *offset += std::chrono::seconds(59);
        countdown.tick();
        QCOMPARE(countdown.text(), "0:00"); // shown for one tick
        QCOMPARE(expired.size(), 0);
        countdown.tick();
        countdown.tick();
        QCOMPARE(expired.size(), 1); // once per code
        // A code renewed elsewhere shows at once, and its own end is announced again.
        session.renew();
        QCOMPARE(countdown.text(), "5:00");
        *offset += std::chrono::seconds(301);
        countdown.tick();
        countdown.tick();
        QCOMPARE(expired.size(), 2);
        // Not shown, not ticking.
        countdown.setRunning(false);
        session.renew();
        *offset += std::chrono::seconds(301);
        countdown.tick();
        countdown.tick();
        QCOMPARE(expired.size(), 2);
    }

    void toggleDecidesOnTheStateAtCallTime()
    {
        testsupport::QmlHarness harness;
        UiController ui(&harness.manager());
        QVERIFY(!harness.manager().isRunning());
        ui.toggleServer();
        QVERIFY(harness.manager().isRunning());
        ui.toggleServer();
        QTRY_VERIFY(!harness.manager().isRunning());
    }

    void pairingScreenTexts()
    {
        userdefaults::setValue(QStringLiteral("autoStartServer"), false);
        auto address = std::make_shared<QString>("10.0.0.7");
        ServerEnvironment env =
            testsupport::environment(std::make_shared<testsupport::GuardedProcessTable>());
        env.localIP = [address] { return *address; };
        env.sshPort = 2222;
        ServerManager manager(env);
        UiController ui(&manager);
        QCOMPARE(ui.manualSetupDetails(),
                 "Address: 10.0.0.7\nUser: " + platform::userName()
                     + "\nSSH port: 2222\nEternal Terminal port: 2022");
        // Pairing mode reads the address afresh, and the details follow it.
        QSignalSpy changed(&ui, &UiController::manualSetupDetailsChanged);
        *address = "192.168.1.30";
        manager.togglePairingMode();
        QCOMPARE(changed.size(), 1);
        QVERIFY(ui.manualSetupDetails().startsWith("Address: 192.168.1.30\n"));

        // The phone names itself: its name is never markup.
        QCOMPARE(ui.deviceConnectingText("Eve's <i>Phone</i> & co"),
                 "<b>Eve's &lt;i&gt;Phone&lt;/i&gt; &amp; co</b> is connecting...");

        // English counts its guessers in its own plural forms, as the app installs them.
        translations::install(QLocale::c());
        QVERIFY(ui.guessingText({ "a", "b" }).endsWith("from a and 1 other address"));
        QVERIFY(ui.guessingText({ "a", "b", "c" }).endsWith("from a and 2 other addresses"));
    }
};

QUIVRA_QUICK_TEST_MAIN(TestUiLogic)
#include "tst_uilogic.moc"

#include "qmlharness.h"
#include "ui/formats.h"
#include "ui/pairingcountdown.h"
#include "ui/trayicon.h"
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

    void countdownEndsOnceAndStopComesFirst()
    {
        PairingCountdown countdown(nullptr, false);
        QSignalSpy stopRequests(&countdown, &PairingCountdown::stopPairing);
        countdown.start();
        QCOMPARE(countdown.text(), "5:00");
        for (int i = 0; i < 241; ++i)
            countdown.tick();
        QCOMPARE(countdown.text(), "0:59");
        QVERIFY(countdown.urgent());
        for (int i = 0; i < 59; ++i)
            countdown.tick();
        QCOMPARE(countdown.text(), "0:00"); // shown for one tick
        QCOMPARE(stopRequests.size(), 0);
        countdown.tick();
        QCOMPARE(stopRequests.size(), 1);
        QVERIFY(!countdown.isActive());
        countdown.tick();
        QCOMPARE(stopRequests.size(), 1);

        // Appearing again starts over; "Stop Pairing" stops before it asks, so no tick asks again.
        countdown.start();
        QCOMPARE(countdown.text(), "5:00");
        connect(&countdown, &PairingCountdown::stopPairing, this,
                [&] { QVERIFY(!countdown.isActive()); });
        countdown.requestStop();
        for (int i = 0; i < 400; ++i)
            countdown.tick();
        QCOMPARE(stopRequests.size(), 2);
    }

    void toggleDecidesOnTheStateAtCallTime()
    {
        testsupport::QmlHarness harness;
        UiController ui(&harness.manager(), nullptr);
        QVERIFY(!harness.manager().isRunning());
        ui.toggleServer();
        QVERIFY(harness.manager().isRunning());
        ui.toggleServer();
        QVERIFY(!harness.manager().isRunning());

        QVERIFY(ui.autoStartServer() == false); // the harness turned it off
        ui.setAutoStartServer(true);
        QVERIFY(ui.autoStartServer());
        QCOMPARE(TrayIcon::symbolName(false), "questionmark.circle");
        QCOMPARE(TrayIcon::symbolName(true), "terminal.fill");
    }
};

QUIVRA_QUICK_TEST_MAIN(TestUiLogic)
#include "tst_uilogic.moc"

#include "qmlharness.h"
#include "ui/devicelist.h"
#include "ui/pairingcountdown.h"
#include "ui/uicontroller.h"
#include "ui/uptimewatch.h"
#include "ui/windowmanager.h"

#include <QClipboard>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlProperty>
#include <QTcpSocket>

// What each view shows for each state of the one ServerManager.
class TestViews : public QObject
{
    Q_OBJECT

    std::unique_ptr<testsupport::QmlHarness> m_harness;

    testsupport::QmlHarness &h() { return *m_harness; }
    QString text(const QString &objectName)
    {
        return h().find<QObject>(objectName)->property("text").toString();
    }
    void click(const QString &objectName)
    {
        QMetaObject::invokeMethod(h().find<QObject>(objectName), "clicked");
    }

    // The names of the controls Tab visits from the first, once round, in order.
    QStringList tabRound()
    {
        QQuickWindow *window = h().window();
        window->requestActivate();
        if (!QTest::qWaitForWindowActive(window))
            return {};
        QStringList names;
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(window, Qt::Key_Tab);
            QQuickItem *focused = window->activeFocusItem();
            const QString name = focused
                ? QQmlProperty(focused, "Accessible.name", qmlContext(focused)).read().toString()
                : QString();
            if (!names.isEmpty() && name == names.constFirst())
                break;
            names.append(name);
        }
        return names;
    }

private Q_SLOTS:
    void init() { m_harness = std::make_unique<testsupport::QmlHarness>(); }
    void cleanup()
    {
        const QStringList warnings = h().takeQmlWarnings();
        QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join('\n')));
        m_harness.reset();
    }

    // The server switch sits at the panel's end whether or not a reason shows below the status.
    bool switchAtTheEnd()
    {
        auto *control = h().find<QQuickItem>("serverSwitch");
        return control->mapRectToScene(control->boundingRect()).right()
            > h().window()->width() - 24;
    }

    void headerFollowsTheServer()
    {
        QVERIFY(h().show("MenuBarView"));
        const auto dot = [&] {
            return h().find<QObject>("statusDot")->property("color").value<QColor>();
        };
        QCOMPARE(text("serverStatus"), "Server off");
        const QColor stopped = dot();
        QVERIFY(!h().find<QObject>("serverSwitch")->property("checked").toBool());
        h().manager().startServer();
        QCOMPARE(text("serverStatus"), "Port 2022");
        QVERIFY(dot() != stopped);
        QVERIFY(h().find<QObject>("serverSwitch")->property("checked").toBool());
        QVERIFY(switchAtTheEnd());
        const QStringList titles = h().visibleTexts();
        for (const char *title :
             { "Pair New Device", "Setup Assistant...", "Settings...", "Quit QuivraMac" })
            QVERIFY2(titles.contains(title), title);
    }

    void pairingShowsOneBoxPerCharacter()
    {
        QVERIFY(h().show("MenuBarView"));
        h().manager().startServer();
        h().manager().togglePairingMode();
        QQuickItem *boxes = h().find<QQuickItem>("codeBoxes");
        QVERIFY(boxes);
        const auto shownCode = [&] {
            QString code;
            for (QQuickItem *box : boxes->childItems()) {
                if (!box->childItems().isEmpty())
                    code += box->childItems().constFirst()->property("text").toString();
            }
            return code;
        };
        QCOMPARE(shownCode(), h().manager().pairingToken());
        QCOMPARE(text("countdownText"), "5:00");
        const auto colour = [&] {
            return h().find<QObject>("countdownText")->property("color").value<QColor>();
        };
        const QColor calm = colour();
        h().advanceClock(std::chrono::seconds(241));
        h().find<PairingCountdown>("pairingCountdown")->tick();
        QCOMPARE(text("countdownText"), "0:59");
        QVERIFY(colour() != calm); // the last minute stands out
        // A new code has its own five minutes.
        h().manager().togglePairingMode();
        QTRY_VERIFY(!h().find<QObject>("pairingCountdown"));
        h().manager().togglePairingMode();
        QTRY_COMPARE(text("countdownText"), "5:00");
    }

    void settingsShowStatusAndLogs()
    {
        QQuickItem *view = h().show("SettingsView");
        QCOMPARE(text("runningText"), "Stopped");
        QCOMPARE(text("startStopButton"), "Start Server");
        const auto uptimeShown = [&] { return h().find<QQuickItem>("uptimeRow")->opacity() > 0; };
        const auto buttonAt = [&] {
            return h().find<QQuickItem>("startStopButton")->mapToScene(QPointF(0, 0));
        };
        QVERIFY(!uptimeShown());
        const QPointF stoppedAt = buttonAt();
        click("startStopButton");
        QVERIFY(h().manager().isRunning());
        QCOMPARE(text("startStopButton"), "Stop Server");
        QVERIFY(uptimeShown());
        QCOMPARE(buttonAt(), stoppedAt); // the button does not jump as the row appears
        QCOMPARE(text("uptimeText"), "0s");
        // Shown, it ticks by itself.
        QTRY_VERIFY(text("uptimeText") != "0s");

        view->setProperty("selectedTab", 1);
        // Behind another tab the uptime no longer wakes the app every second.
        QTRY_VERIFY(!h().find<QObject>("uptimeText")->findChild<UptimeWatch *>()->isActive());
        h().manager().setLogs({});
        QCOMPARE(text("logsEnd"), "No logs yet...");
        // An empty log still replaces what the clipboard held before.
        QGuiApplication::clipboard()->setText("something copied earlier");
        click("copyButton");
        QCOMPARE(QGuiApplication::clipboard()->text(), QString());
        h().manager().setLogs("[QuivraMac] one\n[etserver] two\n");
        QCOMPARE(text("logsEnd"), "[QuivraMac] one\n[etserver] two\n");
        click("copyButton");
        QCOMPARE(QGuiApplication::clipboard()->text(), h().manager().logs());
        click("clearButton");
        QCOMPARE(h().manager().logs(), QString());
        QCOMPARE(text("logsEnd"), "No logs yet...");

        view->setProperty("selectedTab", 0);
        click("startStopButton");
        QTRY_VERIFY(!h().manager().isRunning());
    }

    void missingEtserverIsExplainedWithItsInstallSteps()
    {
        m_harness.reset();
        m_harness =
            std::make_unique<testsupport::QmlHarness>(testsupport::QmlHarness::withoutEtserver);
        h().show("MenuBarView");
        QVERIFY(!h().find<QQuickItem>("serverReason")->isVisible());
        QVERIFY(!h().find<QQuickItem>("installEtRow")->isVisible());
        h().manager().startServer();
        const QString reason = "Eternal Terminal (etserver) is not installed";
        QCOMPARE(text("serverReason"), reason);
        QVERIFY(h().find<QQuickItem>("serverReason")->isVisible());
        QCOMPARE(text("serverStatus"), "Server off");
        QVERIFY(switchAtTheEnd());
        QVERIFY(h().find<QQuickItem>("installEtRow")->isVisible());
        QSignalSpy requested(&h().ui(), &UiController::windowRequested);
        click("installEtRow");
        QCOMPARE(requested.value(0).value(0).toString(), "settings");

        // The steps open over the settings, on General, whichever tab it showed.
        h().show("SettingsView");
        h().view()->setProperty("selectedTab", 2);
        QMetaObject::invokeMethod(h().view(), "takeRequest");
        QTRY_VERIFY(h().find<QQuickItem>("installEtSheet")
                    && h().find<QQuickItem>("installEtSheet")->isVisible());
        QCOMPARE(h().view()->property("selectedTab").toInt(), 0);
        QCOMPARE(text("statusReason"), reason);
        QVERIFY(h().visibleTexts().contains(
            "2. Turn on the server with the switch in the QuivraMac panel."));
        h().window()->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(h().window()));
        QTest::keyClick(h().window(), Qt::Key_Escape);
        QTRY_VERIFY(!h().find<QQuickItem>("installEtSheet")->isVisible());
    }

    // Tab visits every control once, in reading order, links and switches included.
    void tabReachesEveryControlInReadingOrder()
    {
        h().show("MenuBarView");
        QCOMPARE(tabRound(),
                 (QStringList { "Server", "Pair New Device", "Setup Assistant...", "Settings...",
                                "Quit QuivraMac" }));
        h().show("SettingsView");
        QCOMPARE(tabRound(),
                 (QStringList { "General", "Logs", "Devices", "Start server automatically",
                                "Start Server" }));
    }

    void pairedPhonesAreListedAndRevokedWithConfirmation()
    {
        h().show("MenuBarView");
        QVERIFY(!h().find<QQuickItem>("lastPairedRow")->isVisible());
        h().pairPhone("Ana's iPhone", QDate(2026, 11, 20));
        QTRY_VERIFY(h().find<QQuickItem>("lastPairedRow")->isVisible());
        QCOMPARE(text("lastPairedRow"), "Last paired: Ana's iPhone");
        QSignalSpy requested(&h().ui(), &UiController::windowRequested);
        click("lastPairedRow");
        QCOMPARE(requested.value(0).value(0).toString(), "settings");
        // The window takes the tab once; opened again by the tray menu, it starts on General.
        QCOMPARE(h().ui().takeSettingsTab(), UiController::DevicesTab);
        QCOMPARE(h().ui().takeSettingsTab(), UiController::GeneralTab);

        QQuickItem *view = h().show("SettingsView");
        view->setProperty("selectedTab", UiController::DevicesTab);
        const QString fingerprint = h().manager().phones().devices().devices().value(0).fingerprint;
        QTRY_VERIFY(h().find<QObject>("deviceName"));
        QCOMPARE(text("deviceName"), "Ana's iPhone");
        QVERIFY(!h().find<QQuickItem>("confirmRevoke")->isVisible());
        click("revokeButton");
        QVERIFY(h().find<QQuickItem>("confirmRevoke")->isVisible());
        click("cancelRevoke");
        QVERIFY(!h().find<QQuickItem>("confirmRevoke")->isVisible());
        QCOMPARE(h().manager().phones().devices().devices().size(), 1);
        // From the keyboard: the confirmation takes the focus on Cancel, Escape cancels it.
        h().window()->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(h().window()));
        click("revokeButton");
        QTRY_VERIFY(h().find<QQuickItem>("cancelRevoke")->hasActiveFocus());
        QTest::keyClick(h().window(), Qt::Key_Escape);
        QVERIFY(!h().find<QQuickItem>("confirmRevoke")->isVisible());
        QVERIFY(h().find<QQuickItem>("revokeButton")->hasActiveFocus());
        QCOMPARE(h().manager().phones().devices().devices().size(), 1);

        click("revokeButton");
        click("confirmRevoke");
        QVERIFY(h().manager().phones().devices().devices().isEmpty());
        QTRY_VERIFY(h().find<QQuickItem>("noDevices")->isVisible());
        QVERIFY(text("revokeOutcome").startsWith("Revoked"));

        QFile keys(QDir::homePath() + "/.ssh/authorized_keys");
        QVERIFY(keys.open(QIODevice::ReadOnly));
        QVERIFY(!keys.readAll().contains("ssh-ed25519"));
        h().pairPhone("Ana's iPhone", QDate(2026, 11, 21)); // the message is history now
        QTRY_VERIFY(!h().find<QQuickItem>("revokeOutcome")->isVisible());
        QCOMPARE(DeviceList::shortFingerprint(fingerprint).size(), 7 + 12 + 1);
    }

    // A while after the last window closed the views' engine is let go; the panel opened after
    // that loads again and shows the state of now, not the one it was closed with.
    void panelReleasedWhileClosedOpensAgainUpToDate()
    {
        auto now = std::make_shared<std::chrono::steady_clock::time_point>();
        WindowManager windows(
            { &h().manager(), &h().app(), &h().ui(), &h().onboarding(), &h().systemCheck() },
            [now] { return *now; }, std::chrono::milliseconds(5));
        const auto shown = [&](const char *name) {
            auto *item = windows.window("panel")->findChild<QQuickItem *>(name);
            return item && item->isVisible() ? item : nullptr;
        };
        windows.openPanelAsWindow();
        QTRY_VERIFY(windows.isPanelVisible());
        QCOMPARE(shown("serverStatus")->property("text").toString(), "Server off");
        QVERIFY(!shown("codeBoxes"));
        QSignalSpy released(&windows, &WindowManager::released);
        windows.openPanelAsWindow();
        windows.open("settings");
        windows.window("panel")->close();
        // Not while a window shows.
        windows.release();
        QVERIFY(windows.hasEngine());
        QVERIFY(windows.window("settings")->isVisible());
        windows.window("settings")->close();
        *now += WindowManager::releaseDelay;
        QVERIFY(released.wait());
        QVERIFY(!windows.hasEngine());
        QVERIFY(!windows.window("panel"));

        h().manager().startServer();
        h().manager().togglePairingMode();
        windows.openPanelAsWindow();
        QTRY_VERIFY(windows.isPanelVisible());
        QVERIFY(windows.hasEngine());
        QCOMPARE(shown("serverStatus")->property("text").toString(), "Port 2022");
        QString code;
        for (QQuickItem *box : shown("codeBoxes")->childItems()) {
            if (!box->childItems().isEmpty())
                code += box->childItems().constFirst()->property("text").toString();
        }
        QCOMPARE(code, h().manager().pairingToken());
        windows.window("panel")->close();
    }

    // A phone names itself: a tag in its name is shown as typed, and an image it names is never
    // fetched. An image the test itself asks for proves that fetches reach the listener.
    void namesFromPhonesAreShownAsTyped()
    {
        QTcpServer web;
        QVERIFY(web.listen(QHostAddress::LocalHost));
        QByteArray asked;
        connect(&web, &QTcpServer::newConnection, &web, [&] {
            QTcpSocket *socket = web.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket,
                    [&, socket] { asked += socket->readAll(); });
        });
        const QString url = QStringLiteral("http://127.0.0.1:%1/").arg(web.serverPort());
        const QString name = "<img src=\"" + url + "name.png\"><b>Eve</b>";
        h().pairPhone(name, QDate(2026, 11, 30));

        h().show("MenuBarView");
        QTRY_COMPARE(text("lastPairedRow"), "Last paired: " + name);
        QVERIFY(h().visibleTexts().contains("Last paired: " + name));
        h().show("SettingsView")->setProperty("selectedTab", UiController::DevicesTab);
        QTRY_VERIFY(h().find<QObject>("deviceName"));
        QCOMPARE(text("deviceName"), name);
        h().grab();

        QQmlComponent probe(qmlEngine(h().view()));
        probe.setData("import QtQuick\nImage { source: \"" + url.toUtf8() + "probe.png\" }", {});
        const std::unique_ptr<QObject> image(probe.create());
        QTRY_VERIFY(asked.contains("GET /probe.png"));
        QVERIFY2(!asked.contains("name.png"), asked.constData());
    }
};

QUIVRA_QUICK_TEST_MAIN(TestViews)
#include "tst_views.moc"

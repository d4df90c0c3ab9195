#include "app/quivramacapp.h"
#include "onboarding/onboardingflow.h"
#include "onboarding/prompts.h"
#include "onboarding/systemcheck.h"
#include "pairingfixture.h"
#include "phoneclient.h"
#include "platform/autostart.h"
#include "platform/userdefaults.h"
#include "qmlharness.h"
#include "ui/promptcard.h"
#include "ui/uicontroller.h"

#include <QClipboard>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <sys/stat.h>

using Flow = OnboardingFlow;

namespace {

void makeSshDirectory(QFile::Permissions permissions)
{
    const QString path = QDir::homePath() + "/.ssh";
    QDir(path).removeRecursively();
    if (permissions) {
        QDir().mkpath(path);
        QFile::setPermissions(path, permissions);
    }
}

constexpr auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

uint mode(const QString &path)
{
    struct stat info
    {
    };
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 07777 : 0;
}

QList<SystemCheck::State> states(const SystemCheck &check)
{
    QList<SystemCheck::State> result;
    for (const SystemCheck::Item &item : check.items())
        result.append(item.state);
    return result;
}

bool isAncestorOf(const QQuickItem *ancestor, const QQuickItem *item)
{
    for (; item; item = item->parentItem()) {
        if (item == ancestor)
            return true;
    }
    return false;
}

} // namespace

class TestOnboarding : public QObject
{
    Q_OBJECT

    std::unique_ptr<testsupport::QmlHarness> m_harness;
    testsupport::QmlHarness &h() { return *m_harness; }

    // Runs the check's pauses and waits for its probes until it stops or all pass.
    void runChecks(SystemCheck &check)
    {
        QVERIFY(QTest::qWaitFor([&] {
            h().runScheduled();
            return check.allPassed() || check.failedIndex() >= 0;
        }));
    }
    void simulatePairing(const QString &device)
    {
        Q_EMIT h().manager().phones().paired({ device });
    }

private Q_SLOTS:
    void init()
    {
        m_harness = std::make_unique<testsupport::QmlHarness>();
        makeSshDirectory(owner);
    }
    void cleanup()
    {
        const QStringList warnings = h().takeQmlWarnings();
        QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join('\n')));
        m_harness.reset();
    }

    void flowFollowsItsTransitionTable()
    {
        Flow &flow = h().onboarding();
        ServerManager &manager = h().manager();
        manager.startServer();
        flow.appear();
        QCOMPARE(flow.step(), Flow::Welcome);
        flow.welcomeContinue();
        flow.explanationBack();
        QCOMPARE(flow.step(), Flow::Welcome);
        flow.welcomeContinue();
        flow.explanationContinue();
        QCOMPARE(flow.step(), Flow::SystemCheck);
        simulatePairing("Early Phone"); // not while the check is shown
        QCOMPARE(flow.step(), Flow::SystemCheck);

        flow.startPairing();
        QVERIFY(manager.isPairing());
        QCOMPARE(flow.step(), Flow::Pairing);
        QCOMPARE(flow.code(), manager.pairingToken());
        QCOMPARE(flow.expiresIn(), 300.0);
        const QString first = flow.code();
        flow.renewCode();
        QVERIFY(flow.code() != first && flow.code() == manager.pairingToken());
        QVERIFY(manager.isPairing());
        // The same name as an earlier phone is still a pairing of its own.
        simulatePairing("Early Phone");
        QCOMPARE(flow.step(), Flow::Success);
        QCOMPARE(flow.deviceName(), "Early Phone");

        bool persistedFirst = false;
        connect(&flow, &Flow::dismiss, this,
                [&] { persistedFirst = userdefaults::boolValue("hasCompletedOnboarding"); });
        flow.finish();
        QVERIFY(persistedFirst);
        QVERIFY(h().app().hasCompletedOnboarding());
        flow.appear();
        QCOMPARE(flow.step(), Flow::Welcome);
        QCOMPARE(Flow::message(Flow::NetworkMismatch, "Home"),
                 "Your computer is on \"Home\". Make sure your iPhone is on the same network.");
    }

    // A code renewed elsewhere (the panel's switch, or quivractl pair over the session bus once
    // the shown code has expired) is the one the pairing step shows.
    void pairingStepShowsCodesRenewedElsewhere()
    {
        h().show("OnboardingView");
        h().onboarding().startPairing();
        QTRY_COMPARE(h().shownCode("onboardingCode"), h().manager().pairingToken());
        const QString first = h().shownCode("onboardingCode");
        h().manager().togglePairingMode();
        h().manager().togglePairingMode();
        QVERIFY(h().manager().pairingToken() != first);
        QTRY_COMPARE(h().shownCode("onboardingCode"), h().manager().pairingToken());
    }

    // As the desktop's own dialogs: focus on the default button, Space for the focused control
    // only, Return for the default action even mid-slide, Escape as Back where there is one, and
    // a sheet that keeps the keyboard until it closes. Nothing closes the window on the way.
    void keyboardAloneReachesSuccessWithARealPhone()
    {
        h().onboarding().appear();
        h().show("OnboardingView");
        QQuickWindow *window = h().window();
        window->requestActivate();
        QTRY_VERIFY(QGuiApplication::focusWindow() == window);
        QSignalSpy dismissed(&h().onboarding(), &Flow::dismiss);
        QObject *stack = h().find<QObject>("onboardingStack");
        const auto press = [&](Qt::Key key) {
            QTRY_VERIFY(!stack->property("busy").toBool());
            QTest::keyClick(window, key);
        };
        press(Qt::Key_Space);
        QCOMPARE(h().onboarding().step(), Flow::Explanation);
        press(Qt::Key_Escape);
        QCOMPARE(h().onboarding().step(), Flow::Welcome);
        // The second Return comes while the first one's slide still runs.
        press(Qt::Key_Return);
        QTest::keyClick(window, Qt::Key_Return);
        QCOMPARE(h().onboarding().step(), Flow::SystemCheck);
        press(Qt::Key_Escape);
        QCOMPARE(h().onboarding().step(), Flow::Explanation);
        press(Qt::Key_Return);
        runChecks(h().systemCheck());
        QVERIFY(h().systemCheck().allPassed());
        press(Qt::Key_Return);
        QCOMPARE(h().onboarding().step(), Flow::Pairing);

        // The manual-setup sheet: reached with Tab, opened with Space, Tab stays inside it,
        // Escape closes it alone and gives the focus back.
        QTRY_VERIFY(!stack->property("busy").toBool());
        auto *link = h().find<QQuickItem>("manualSetupLink");
        QTRY_VERIFY(link->hasActiveFocus());
        press(Qt::Key_Tab);
        press(Qt::Key_Backtab);
        QVERIFY(link->hasActiveFocus());
        press(Qt::Key_Space);
        auto *sheet = h().find<QObject>("manualSetupSheet");
        QTRY_VERIFY(sheet->property("opened").toBool());
        for (int i = 0; i < 3; ++i) {
            press(Qt::Key_Tab);
            QVERIFY(isAncestorOf(sheet->property("contentItem").value<QQuickItem *>(),
                                 window->activeFocusItem()));
            QVERIFY(window->activeFocusItem()->property("visualFocus").toBool()); // its ring
        }
        press(Qt::Key_Escape);
        QTRY_VERIFY(!sheet->property("visible").toBool());
        QVERIFY(link->hasActiveFocus());
        press(Qt::Key_Escape); // no Back while the code waits for the phone
        QCOMPARE(h().onboarding().step(), Flow::Pairing);
        QCOMPARE(dismissed.count(), 0);

        const QByteArray key = testsupport::ed25519Key();
        const QByteArray request = "POST /pair?token=" + h().onboarding().code().toLatin1()
            + " HTTP/1.1\r\nHost: 127.0.0.1\r\nX-Device-Name: Test Phone\r\nContent-Length: "
            + QByteArray::number(key.size()) + "\r\n\r\n" + key;
        QCOMPARE(
            testsupport::replyBody(testsupport::exchange(h().manager().phones().port(), request)),
            "Paired Successfully");
        QCOMPARE(h().onboarding().step(), Flow::Success);
        press(Qt::Key_Return);
        QVERIFY(h().app().hasCompletedOnboarding());

        // Showing the window again puts the first screen up at once, with no transition.
        QTRY_VERIFY(!stack->property("busy").toBool());
        QMetaObject::invokeMethod(h().view(), "restart");
        QCOMPARE(h().onboarding().step(), Flow::Welcome);
        QVERIFY(!stack->property("busy").toBool());
    }

    void systemCheckPassesAfterItsPauses()
    {
        SystemCheck &check = h().systemCheck();
        check.appear();
        QCOMPARE(states(check),
                 (QList { SystemCheck::Checking, SystemCheck::Pending, SystemCheck::Pending,
                          SystemCheck::Pending }));
        QCOMPARE(check.title(), "Checking your computer...");
        runChecks(check);
        QVERIFY(check.allPassed());
        QCOMPARE(check.title(), "Looking good!");
        // 0.3 s before each check, 0.4 s after each pass, 1 s after starting the server, 0.8 s.
        QCOMPARE(h().scheduledTotal(), std::chrono::milliseconds(4 * 300 + 4 * 400 + 1000 + 800));
        QCOMPARE(check.items().at(2).successMessage, "Running on port 2022");
        QCOMPARE(check.items().at(3).successMessage, "Connected at 192.168.1.20");
        QVERIFY(h().manager().isRunning());
    }

    // A fresh account has no ~/.ssh; a dotfile copy may have loose modes. Fix mends both from
    // the window and checks again by itself, but never through a link.
    void systemCheckStopsAtTheFirstFailureAndFixesSshKeys()
    {
        SystemCheck &check = h().systemCheck();
        const QString ssh = QDir::homePath() + "/.ssh";
        makeSshDirectory({});
        check.appear();
        runChecks(check);
        QCOMPARE(states(check),
                 (QList { SystemCheck::Passed, SystemCheck::Failed, SystemCheck::Pending,
                          SystemCheck::Pending }));
        QCOMPARE(check.title(), "Almost there...");
        QCOMPARE(check.failedMessage(), "~/.ssh directory doesn't exist");
        QCOMPARE(check.failedPrompt(), prompts::missingSshDirectory());
        QVERIFY(check.failedCanFix());
        check.fix();
        runChecks(check);
        QVERIFY(check.allPassed());
        QCOMPARE(mode(ssh), 0700u);

        const auto loose =
            owner | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
        QFile::setPermissions(ssh, loose);
        QFile keys(ssh + "/authorized_keys");
        QVERIFY(keys.open(QIODevice::WriteOnly));
        keys.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup
                            | QFile::WriteGroup);
        check.start();
        runChecks(check);
        QCOMPARE(check.failedMessage(), "~/.ssh has wrong permissions");
        QVERIFY(check.failedPrompt().contains("Current permissions: 755\nExpected: 700"));
        check.fix();
        runChecks(check);
        QVERIFY(check.allPassed());
        QCOMPARE(mode(ssh), 0700u);
        QCOMPARE(mode(keys.fileName()), 0600u);

        // A link the user made to a folder of theirs: its mode is theirs to set.
        const QString elsewhere = QDir::homePath() + "/dotfiles-ssh";
        QVERIFY(QDir().rename(ssh, elsewhere));
        QFile::setPermissions(elsewhere, loose);
        QVERIFY(QFile::link(elsewhere, ssh));
        check.start();
        runChecks(check);
        QCOMPARE(check.failedMessage(), "~/.ssh has wrong permissions");
        check.fix();
        QVERIFY(check.failedMessage().startsWith("~/.ssh is a link"));
        QVERIFY(!check.failedCanFix());
        QCOMPARE(mode(elsewhere), 0755u);
        QFile::setPermissions(elsewhere, owner);
        check.start();
        runChecks(check);
        QVERIFY(check.allPassed());

        h().closeSshDaemon();
        check.start();
        runChecks(check);
        QCOMPARE(check.failedIndex(), 0);
        QCOMPARE(check.failedMessage(), "SSH server is installed but not running. Start it with:");
        QCOMPARE(check.failedCommand(), "sudo systemctl enable --now ssh");
        QVERIFY(!check.failedCanFix());
        QVERIFY(check.failedPrompt().contains("Help me install and start the SSH server on this "
                                              "computer so I can connect from my iPhone."));
    }

    void missingEtserverIsNamedWithItsRequest()
    {
        m_harness =
            std::make_unique<testsupport::QmlHarness>(testsupport::QmlHarness::withoutEtserver);
        makeSshDirectory(owner);
        SystemCheck &check = h().systemCheck();
        check.appear();
        runChecks(check);
        QCOMPARE(check.items().value(check.failedIndex()).id, "etserver");
        QCOMPARE(check.failedMessage(), "Eternal Terminal is not installed");
        QVERIFY(check.failedPrompt().endsWith("Help me install Eternal Terminal's etserver on "
                                              + QSysInfo::prettyProductName() + "."));
    }

    void serverThatCannotBindNamesThePort()
    {
        qputenv("FAKE_ETSERVER_OUTPUT", "bind failed: EADDRINUSE\\n");
        qputenv("FAKE_ETSERVER_EXIT_CODE", "1");
        SystemCheck &check = h().systemCheck();
        check.appear();
        // Up to the server check's start; the child then fails before its 1 s pause ends.
        QVERIFY(QTest::qWaitFor([&] { return h().runOne() && h().manager().supervisor().pid(); }));
        QTRY_VERIFY(!h().manager().isRunning() && h().manager().logs().contains("EADDRINUSE"));
        runChecks(check);
        qunsetenv("FAKE_ETSERVER_OUTPUT");
        qunsetenv("FAKE_ETSERVER_EXIT_CODE");
        QCOMPARE(check.failedMessage(), "Port 2022 is in use");
        QCOMPARE(check.failedPrompt(), prompts::portInUse(2022));
    }

    void promptsAndTheirPreviews()
    {
        QCOMPARE(prompts::context().section('\n', 0, 0),
                 QSysInfo::prettyProductName() + ", QuivraMac " QUIVRA_VERSION);
        QCOMPARE(prompts::preview("one"), "one");
        QCOMPARE(prompts::preview("1\n2\n3"), "1\n2\n3");
        QCOMPARE(prompts::preview("1\n2\n3\n4"), "1\n2\n3\n...");
        for (const QString &prompt : { prompts::remoteLogin(), prompts::missingSshDirectory(),
                                       prompts::wrongPermissions("755"), prompts::portInUse(2022),
                                       prompts::serverCrash(-1, "log"), prompts::noNetwork() }) {
            QCOMPARE(prompts::preview(prompt),
                     prompt.section('\n', 0, 0) + "\n\n" + prompts::context().section('\n', 0, 0)
                         + "\n...");
        }
        const QString log = QString(600, 'a') + QString(500, 'b');
        QVERIFY(
            prompts::serverCrash(-1, log).contains("exited with code -1.\n\nLast log output:\n```\n"
                                                   + QString(500, 'b') + "\n```\n\nHelp me"));
        QVERIFY(prompts::serverCrash(-1, {}).contains("exited with code -1.\n\nHelp me"));
    }

    // The screens are scanned by the screenshots' layout check; these are the texts they do not
    // show whole: the help requests, the phone's report, the check's rows and messages.
    void linuxWordsNeverSpeakOfAMac()
    {
#ifdef Q_OS_MACOS
        QSKIP("macOS keeps its own words");
#endif
        QStringList texts = { prompts::context(),
                              prompts::remoteLogin(),
                              prompts::missingSshDirectory(),
                              prompts::wrongPermissions("755"),
                              prompts::portInUse(2022),
                              prompts::serverCrash(1, {}),
                              prompts::noNetwork(),
                              prompts::etserverMissing(),
                              h().systemCheck().title() };
        for (const auto kind :
             { Flow::NetworkMismatch, Flow::WrongCode, Flow::Timeout, Flow::ConnectionFailed })
            texts << Flow::message(kind, "Home");
        h().closeSshDaemon();
        h().systemCheck().appear();
        runChecks(h().systemCheck());
        texts << h().systemCheck().failedMessage() << h().systemCheck().failedPrompt();
        for (const SystemCheck::Item &item : h().systemCheck().items())
            texts << item.name << item.successMessage;
        const QJsonDocument report = QJsonDocument::fromJson(testsupport::replyBody(
            testsupport::exchange(h().manager().phones().port(), "GET /status HTTP/1.1\r\n\r\n")));
        for (const QJsonValue check : report["diagnostics"].toArray())
            texts << check["name"].toString() << check["message"].toString();
        QCOMPARE(report["diagnostics"][0]["name"].toString(), "SSH Server");
        for (const QString &text : std::as_const(texts))
            QVERIFY2(!testsupport::speaksOfAMac(text), qPrintable(text));
    }

    void promptCardCopiesAndResetsPerCopy()
    {
        PromptCard card;
        QList<std::function<void()>> resets;
        card.setScheduler(
            [&](QObject *, std::chrono::milliseconds delay, std::function<void()> work) {
                QCOMPARE(delay, std::chrono::milliseconds(2000));
                resets.append(std::move(work));
            });
        QSignalSpy onCopied(&card, &PromptCard::copiedToClipboard);
        card.setPrompt(prompts::noNetwork());
        card.copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), prompts::noNetwork());
        QVERIFY(card.copied());
        card.copy();
        resets.takeFirst()(); // the first copy's reset clears it, whatever came after
        QVERIFY(!card.copied());
        QCOMPARE(onCopied.size(), 2);
    }

    void launchAtLoginFollowsThePreference()
    {
        // Only the user's own choices write the entry: finishing the setup window, the setting.
        QFile::remove(platform::launchAtLoginEntry());
        UiController ui(&h().manager());
        QVERIFY(!QFile::exists(platform::launchAtLoginEntry()));
        h().onboarding().finish();
        QVERIFY(ui.launchAtLogin()); // on by default
        QFile entry(platform::launchAtLoginEntry());
        QVERIFY(entry.open(QIODevice::ReadOnly));
        const QByteArray exec = "Exec=\"" + QCoreApplication::applicationFilePath().toUtf8() + "\"";
        QVERIFY(entry.readAll().contains(exec));
        ui.setLaunchAtLogin(false);
        QVERIFY(!QFile::exists(platform::launchAtLoginEntry()));
        QVERIFY(!userdefaults::boolValue("launchAtLogin"));
    }
};

QUIVRA_QUICK_TEST_MAIN(TestOnboarding)
#include "tst_onboarding.moc"

#include "onboarding/onboardingflow.h"
#include "pairingfixture.h"
#include "phoneclient.h"
#include "qmlharness.h"
#include "testsupport.h"
#include "ui/pairingcountdown.h"

// One code, one clock: the setup window's screen and the panel render the session's expiry, on
// a clock the test moves, and only the session, a person or a pairing switches pairing.
class TestPairingClock : public QObject
{
    Q_OBJECT

    std::unique_ptr<testsupport::QmlHarness> m_h;
    QQuickItem *m_setup = nullptr;
    QQuickItem *m_panel = nullptr;
    int m_renewals = 0;

    PairingCountdown *countdown(QQuickItem *view, const char *name) const
    {
        return view ? view->findChild<PairingCountdown *>(name) : nullptr;
    }
    QString shown(QQuickItem *view, const char *name) const
    {
        auto *text = view ? view->findChild<QObject *>(name) : nullptr;
        return text ? text->property("text").toString() : QStringLiteral("<none>");
    }
    QByteArray pair() const
    {
        const QByteArray key = testsupport::ed25519Key();
        const QByteArray request = "POST /pair?token=" + m_h->manager().pairingToken().toLatin1()
            + " HTTP/1.1\r\nHost: 127.0.0.1\r\nContent-Length: " + QByteArray::number(key.size())
            + "\r\n\r\n" + key;
        const QByteArray reply = testsupport::exchange(m_h->manager().phones().port(), request);
        return reply.left(reply.indexOf("\r\n"));
    }

    void run(const QString &step)
    {
        const QString verb = step.section(' ', 0, 0);
        const QString arg = step.section(' ', 1);
        ServerManager &manager = m_h->manager();
        if (verb == "server") {
            manager.startServer();
            QTRY_VERIFY(manager.isRunning());
        } else if (verb == "setup") {
            m_setup = m_h->show("OnboardingView");
            QVERIFY(m_setup);
            m_h->onboarding().startPairing();
            connect(&manager, &ServerManager::pairingTokenChanged, this, [this] { ++m_renewals; });
        } else if (verb == "panel") {
            m_panel = m_h->showAlso("MenuBarView");
        } else if (verb == "toggle") {
            manager.togglePairingMode();
        } else if (verb == "advance") {
            m_h->advanceClock(std::chrono::seconds(arg.toInt()));
        } else if (verb == "expire") { // the session's own timer fires
            manager.pairingSession()->expireIfDue();
        } else if (verb == "tick") {
            for (int i = 0; i < arg.toInt(); ++i) {
                // The setup screen is made anew for each code: look it up every time.
                for (auto *c : { countdown(m_setup, "onboardingCountdown"),
                                 countdown(m_panel, "pairingCountdown") }) {
                    if (c)
                        c->tick();
                }
            }
        } else if (verb == "hide" || verb == "show") {
            QQuickItem *view = arg == "panel" ? m_panel : m_setup;
            view->window()->setVisible(verb == "show");
        } else if (verb == "panel-shows") {
            QCOMPARE(shown(m_panel, "countdownText"), arg);
        } else if (verb == "setup-shows") {
            QTRY_COMPARE(shown(m_setup, "expiresText"), "Expires in " + arg);
        } else if (verb == "pairing") {
            QCOMPARE(manager.isPairing(), arg == "on");
        } else if (verb == "renewals") {
            QCOMPARE(m_renewals, arg.toInt());
        } else if (verb == "phone") {
            QCOMPARE(pair(), "HTTP/1.1 " + arg.toLatin1());
        } else {
            QFAIL(qPrintable("unknown step " + step));
        }
    }

private Q_SLOTS:
    void init()
    {
        m_h = std::make_unique<testsupport::QmlHarness>();
        m_renewals = 0;
        m_setup = m_panel = nullptr;
    }
    void cleanup() { m_h.reset(); }

    void scenarios_data()
    {
        QTest::addColumn<QStringList>("steps");
        QTest::newRow("expiry on the setup screen, then renewal, then a phone pairs")
            << QStringList { "server",           "setup",       "advance 300",
                             "expire",           "pairing off", "tick 1",
                             "setup-shows 0:00", "tick 1",      "pairing on",
                             "setup-shows 5:00", "renewals 1",  "phone 200 OK" };
        QTest::newRow("panel hidden for 100 s shows the real time left")
            << QStringList { "server",     "toggle",           "panel",      "advance 60",
                             "tick 1",     "panel-shows 4:00", "hide panel", "advance 100",
                             "show panel", "panel-shows 2:20", "pairing on" };
        QTest::newRow("setup renewal while the panel is open: the panel follows")
            << QStringList { "server",           "setup",       "panel",
                             "advance 300",      "tick 1",      "panel-shows 0:00",
                             "tick 1",           "pairing on",  "renewals 1",
                             "panel-shows 5:00", "advance 1",   "tick 1",
                             "panel-shows 4:59", "phone 200 OK" };
        QTest::newRow("setup window closed on the pairing step renews nothing")
            << QStringList { "server",     "setup",       "hide setup",         "advance 300",
                             "expire",     "tick 3",      "advance 300",        "tick 3",
                             "renewals 0", "pairing off", "phone 403 Forbidden" };
        QTest::newRow("a code switched off by a person stays off when renewed")
            << QStringList { "server",      "setup",  "toggle",     "pairing off",
                             "advance 300", "tick 2", "renewals 1", "pairing off" };
    }
    void scenarios()
    {
        QFETCH(QStringList, steps);
        for (const QString &step : steps) {
            run(step);
            if (QTest::currentTestFailed())
                QFAIL(qPrintable("at step: " + step));
        }
    }
};

QUIVRA_QUICK_TEST_MAIN(TestPairingClock)
#include "tst_pairingclock.moc"

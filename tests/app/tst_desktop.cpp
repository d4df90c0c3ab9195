#include "appbundle.h"
#include "testsupport.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QSettings>

#include <optional>

// A desktop's StatusNotifierItem watcher with its host: it notes every item that registers.
class Watcher : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hostRegistered)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    QStringList registered;
    bool hostRegistered() const { return true; }
    int protocolVersion() const { return 0; }
    QStringList items() const { return registered; }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service)
    {
        registered << (service.startsWith('/') ? message().service() : service);
    }
    void RegisterStatusNotifierHost(const QString &) { }
};

// The real app on a real X server (Xvfb) and session bus, with a tray that comes and goes.
class TestDesktop : public QObject
{
    Q_OBJECT

    testsupport::AppBundle m_bundle;
    QProcess m_xvfb;
    Watcher m_watcher;
    static constexpr auto watcherName = "org.kde.StatusNotifierWatcher";
    // Qt's own, as no settings daemon on this X server says otherwise.
    static constexpr int doubleClickInterval = 400;

    // Waits with the event loop running: the app's calls to this test's watcher must be
    // answered meanwhile, or both sides stall until the bus gives up on the call.
    static bool finished(QProcess &process, int milliseconds)
    {
        return QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; },
                               milliseconds);
    }

    static QString run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        finished(process, 10000);
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    // The visible top-level window with this exact title, as the X server has it.
    static std::optional<QRect> window(const QString &title)
    {
        const QString id =
            run("xdotool", { "search", "--onlyvisible", "--name", '^' + title + '$' })
                .section('\n', 0, 0)
                .trimmed();
        if (id.isEmpty())
            return std::nullopt;
        QHash<QString, int> values;
        for (const QString &line :
             run("xdotool", { "getwindowgeometry", "--shell", id }).split('\n'))
            values.insert(line.section('=', 0, 0), line.section('=', 1).toInt());
        return QRect(values["X"], values["Y"], values["WIDTH"], values["HEIGHT"]);
    }

    static void setOnboarded(bool done)
    {
        QSettings settings(qEnvironmentVariable("XDG_CONFIG_HOME") + "/Quivra/QuivraMac.conf",
                           QSettings::IniFormat);
        settings.setValue("hasCompletedOnboarding", done);
        settings.setValue("autoStartServer", false);
    }

    QDBusMessage callItem(const QString &method, const QVariantList &arguments)
    {
        QDBusMessage call =
            QDBusMessage::createMethodCall(m_watcher.registered.constLast(), "/StatusNotifierItem",
                                           "org.kde.StatusNotifierItem", method);
        call.setArguments(arguments);
        // Not a blocking call: whatever the app asks this test's watcher meanwhile is answered.
        const QDBusPendingCall pending = QDBusConnection::sessionBus().asyncCall(call);
        if (!QTest::qWaitFor([&] { return pending.isFinished(); }, 30000))
            return {};
        return pending.reply();
    }

    void activateAt(int x, int y)
    {
        run("xdotool", { "mousemove", QString::number(x), QString::number(y) });
        QCOMPARE(callItem("Activate", { x, y }).type(), QDBusMessage::ReplyMessage);
    }

    // A click the user makes on its own, not as the second half of a double-click: the wait is
    // the input being simulated, not a wait for the app.
    void activateLaterAt(int x, int y)
    {
        QTest::qWait(doubleClickInterval + 100);
        activateAt(x, y);
    }

    // The panel after an activation at the point; fails the test when none shows.
    std::optional<QRect> panelAfterActivationAt(int x, int y)
    {
        activateLaterAt(x, y);
        std::optional<QRect> panel;
        if (!QTest::qWaitFor([&] { return (panel = window("QuivraMac")).has_value(); }, 10000))
            qWarning("no panel after an activation at %d,%d", x, y);
        return panel;
    }

    // By a click on the item at that point, as the user closes it.
    void closePanel(QPoint item = { 640, 2 })
    {
        if (!window("QuivraMac"))
            return;
        activateLaterAt(item.x(), item.y());
        QTRY_VERIFY(!window("QuivraMac"));
    }

    QString menuPath()
    {
        QDBusMessage get =
            QDBusMessage::createMethodCall(m_watcher.registered.constLast(), "/StatusNotifierItem",
                                           "org.freedesktop.DBus.Properties", "Get");
        get << "org.kde.StatusNotifierItem"
            << "Menu";
        const QDBusMessage reply = QDBusConnection::sessionBus().call(get);
        return reply.arguments()
            .value(0)
            .value<QDBusVariant>()
            .variant()
            .value<QDBusObjectPath>()
            .path();
    }

    QString menuLayout()
    {
        return run("dbus-send",
                   { "--session", "--print-reply", "--dest=" + m_watcher.registered.constLast(),
                     menuPath(), "com.canonical.dbusmenu.GetLayout", "int32:0", "int32:-1",
                     "array:string:" });
    }

    // Clicks the menu entry with this label, as the desktop's menu does.
    void chooseFromMenu(const QString &label)
    {
        const QString layout = menuLayout();
        const qsizetype at = layout.indexOf(QStringLiteral("string \"%1\"").arg(label));
        QVERIFY2(at > 0, qPrintable(label));
        const qsizetype idAt = layout.lastIndexOf(QStringLiteral("int32 "), at);
        const int id = layout.mid(idAt + 6).section('\n', 0, 0).trimmed().toInt();
        QDBusMessage event = QDBusMessage::createMethodCall(
            m_watcher.registered.constLast(), menuPath(), "com.canonical.dbusmenu", "Event");
        event << id << QStringLiteral("clicked") << QVariant::fromValue(QDBusVariant(0)) << 0u;
        const QDBusPendingCall pending = QDBusConnection::sessionBus().asyncCall(event);
        QVERIFY(QTest::qWaitFor([&] { return pending.isFinished(); }, 30000));
    }

    static void missing(const QString &why)
    {
        if (qEnvironmentVariableIntValue("QUIVRA_REQUIRE_E2E") == 1)
            QFAIL(qPrintable(why));
        QSKIP(qPrintable(why));
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!QDBusConnection::sessionBus().isConnected())
            missing("no session bus; run under dbus-run-session");
        for (const char *tool : { "Xvfb", "xdotool" }) {
            if (QStandardPaths::findExecutable(tool).isEmpty())
                missing(
                    QStringLiteral("%1 is not installed (scripts/setup.sh installs it)").arg(tool));
        }
        // Xvfb picks a free display and names it once it accepts connections. Without -noreset
        // it resets whenever its last client leaves, and refuses the relaunched app meanwhile.
        m_xvfb.start(
            "Xvfb",
            { "-displayfd", "1", "-noreset", "-screen", "0", "1280x800x24", "-nolisten", "tcp" });
        QTRY_VERIFY_WITH_TIMEOUT(m_xvfb.canReadLine(), 10000);
        qputenv("DISPLAY", ':' + m_xvfb.readLine().trimmed());
        qputenv("QT_QPA_PLATFORM", "xcb");

        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY(bus.registerObject("/StatusNotifierWatcher", &m_watcher,
                                   QDBusConnection::ExportAllSlots
                                       | QDBusConnection::ExportAllProperties));
        QVERIFY(bus.registerService(watcherName));
        setOnboarded(true);
        m_bundle.launch();
        QTRY_VERIFY(m_bundle.printed("Tray item shown (StatusNotifierItem)"));
        QTRY_COMPARE(m_watcher.registered.size(), 1);
    }

    void cleanupTestCase()
    {
        m_bundle.stop();
        m_xvfb.terminate();
        m_xvfb.waitForFinished();
    }

    void itemOffersItsMenu()
    {
        const QString path = menuPath();
        QVERIFY2(!path.isEmpty() && path != "/NO_DBUSMENU", qPrintable(path));
        const QString layout = menuLayout();
        for (const char *label : { "Open", "Pair New Device", "Settings...", "Quit QuivraMac" })
            QVERIFY2(layout.contains(QStringLiteral("string \"%1\"").arg(label)), label);
    }

    void activationPlacesPanelAtItsCorner_data()
    {
        QTest::addColumn<QPoint>("point");
        QTest::newRow("top left") << QPoint(2, 2);
        QTest::newRow("top right") << QPoint(1277, 2);
        QTest::newRow("bottom left") << QPoint(2, 797);
        QTest::newRow("bottom right") << QPoint(1277, 797);
    }

    void activationPlacesPanelAtItsCorner()
    {
        QFETCH(QPoint, point);
        const std::optional<QRect> panel = panelAfterActivationAt(point.x(), point.y());
        QVERIFY(panel);
        QVERIFY2(QRect(0, 0, 1280, 800).contains(*panel), qPrintable(QDebug::toString(*panel)));
        // The panel's corner nearest the point lies beside the item's cell around it.
        const QPoint corner(point.x() < 640 ? panel->left() : panel->right(),
                            point.y() < 400 ? panel->top() : panel->bottom());
        QVERIFY2(std::abs(corner.x() - point.x()) <= 24 && std::abs(corner.y() - point.y()) <= 24,
                 qPrintable(QDebug::toString(*panel)));
        activateLaterAt(point.x(), point.y());
        QTRY_VERIFY(!window("QuivraMac"));
    }

    // Clicks anywhere on the same item open the panel in one place, and the menu's Open and
    // `quivractl open` put it there too, wherever the pointer is by then.
    void panelStaysWithTheItem()
    {
        const QPoint item(900, 2);
        const std::optional<QRect> first = panelAfterActivationAt(item.x(), item.y());
        QVERIFY(first);
        closePanel(item);
        const std::optional<QRect> second = panelAfterActivationAt(910, 9);
        QVERIFY(second);
        QCOMPARE(*second, *first);
        closePanel(item);

        run("xdotool", { "mousemove", "700", "300" });
        chooseFromMenu("Open");
        QTRY_COMPARE(window("QuivraMac").value_or(QRect()), *first);
        closePanel(item);
        QCOMPARE(testsupport::quivractl({ "open" }).first, 0);
        QTRY_COMPARE(window("QuivraMac").value_or(QRect()), *first);
        closePanel(item);
    }

    void doubleClickLeavesThePanelOpen()
    {
        closePanel();
        QTest::qWait(doubleClickInterval + 100);
        run("xdotool", { "mousemove", "900", "2" });
        QCOMPARE(callItem("Activate", { 900, 2 }).type(), QDBusMessage::ReplyMessage);
        QCOMPARE(callItem("Activate", { 900, 2 }).type(), QDBusMessage::ReplyMessage);
        QTRY_VERIFY(window("QuivraMac"));
        // Had the second click toggled, the panel would be gone by now.
        QTest::qWait(500);
        QVERIFY(window("QuivraMac"));
        closePanel();
    }

    void panelBecomesWindowWhileWatcherIsGone()
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        QVERIFY(bus.unregisterService(watcherName));
        QTRY_VERIFY(m_bundle.printed(
            "The system tray went away: the QuivraMac panel opens as a window instead"));
        QTRY_VERIFY(window("QuivraMac"));
        QVERIFY(bus.registerService(watcherName));
        QTRY_COMPARE(m_watcher.registered.size(), 2);
        QTRY_VERIFY(!window("QuivraMac"));
    }

    void secondLaunchAndOpenShowThePanel()
    {
        testsupport::AppBundle second;
        second.launch();
        QVERIFY(second.process().waitForFinished(10000));
        QCOMPARE(second.process().exitCode(), 0);
        QVERIFY(second.printed("QuivraMac is already running"));
        QTRY_VERIFY(window("QuivraMac"));

        closePanel();
        QCOMPARE(testsupport::quivractl({ "open" }).first, 0);
        QTRY_VERIFY(window("QuivraMac"));
    }

    void withoutTrayPanelOpensBesideFirstRunWindow()
    {
        m_bundle.stop();
        QVERIFY(QDBusConnection::sessionBus().unregisterService(watcherName));
        setOnboarded(false);
        m_bundle.launch();
        std::optional<QRect> setup, panel;
        QTRY_VERIFY2_WITH_TIMEOUT((setup = window("QuivraMac Setup"))
                                      && (panel = window("QuivraMac")),
                                  qPrintable(m_bundle.output()), 10000);
        QVERIFY2(!setup->intersects(*panel),
                 qPrintable(QDebug::toString(*setup) + QDebug::toString(*panel)));

        // The X11 tray starts after the app, as at login: the panel moves into it.
        if (QStandardPaths::findExecutable("trayer").isEmpty())
            missing("trayer is not installed (scripts/setup.sh installs it)");
        QProcess tray;
        tray.start("trayer", { "--edge", "top", "--align", "right", "--widthtype", "request" });
        QTRY_VERIFY_WITH_TIMEOUT(m_bundle.printed("Tray item shown (the desktop's own tray)"),
                                 10000);
        QTRY_VERIFY(!window("QuivraMac"));
        tray.terminate();
        QVERIFY(finished(tray, 5000));
        QTRY_VERIFY_WITH_TIMEOUT(window("QuivraMac"), 15000);
    }
};

QUIVRA_TEST_MAIN(TestDesktop)
#include "tst_desktop.moc"

#include "net/hostlabel.h"
#include "net/localaddress.h"
#include "pairing/phoneservice.h"
#include "testsupport.h"

using net::InterfaceAddress;
using Addresses = QList<InterfaceAddress>;
Q_DECLARE_METATYPE(Addresses)

class TestLocalAddress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesAddressPhonesCanUse_data()
    {
        QTest::addColumn<Addresses>("addresses");
        QTest::addColumn<QString>("expected");
        const InterfaceAddress lo { "lo0", true, "127.0.0.1" };
        const InterfaceAddress en0 { "en0", true, "192.168.1.20" };
        const InterfaceAddress utunTailscale { "utun3", true, "100.101.102.103" };
        QTest::newRow("only loopback") << Addresses { lo } << "127.0.0.1";
        QTest::newRow("nothing at all") << Addresses {} << "127.0.0.1";
        QTest::newRow("tailscale after lan")
            << Addresses { lo, en0, utunTailscale } << "100.101.102.103";
        QTest::newRow("tailscale before lan")
            << Addresses { utunTailscale, en0 } << "100.101.102.103";
        QTest::newRow("tunnel that is not tailscale")
            << Addresses { { "utun3", true, "10.8.0.2" }, en0 } << "192.168.1.20";
        QTest::newRow("last lan interface wins")
            << Addresses { en0, { "en5", true, "10.0.0.7" } } << "10.0.0.7";
        QTest::newRow("bridge only")
            << Addresses { lo, { "bridge0", true, "192.168.2.1" } } << "127.0.0.1";
        QTest::newRow("ipv6 never")
            << Addresses { { "en0", false, "fe80::1" }, { "utun3", false, "100::1" } }
            << "127.0.0.1";
        QTest::newRow("linux names")
            << Addresses { { "eth0", true, "10.1.1.1" }, { "wlp2s0", true, "10.2.2.2" } }
            << "10.2.2.2";
        QTest::newRow("linux tailscale")
            << Addresses { { "wlan0", true, "10.2.2.2" }, { "tailscale0", true, "100.64.0.9" } }
            << "100.64.0.9";
        QTest::newRow("prefix is case sensitive")
            << Addresses { { "EN0", true, "10.3.3.3" } } << "127.0.0.1";
    }

    void choosesAddressPhonesCanUse()
    {
        QFETCH(Addresses, addresses);
        QFETCH(QString, expected);
        QCOMPARE(net::chooseLocalIP(addresses), expected);
    }

    void findsTailscaleAddressOnlyOnTailscaleInterfaces()
    {
        QVERIFY(!net::tailscaleAddress({ { "en0", true, "100.1.1.1" } }));
        QCOMPARE(
            net::tailscaleAddress({ { "utun1", true, "10.8.0.2" }, { "utun2", true, "100.7.7.7" } })
                .value_or(QString()),
            QStringLiteral("100.7.7.7"));
    }

    // The system's own interface list feeds the choice, and the phone service follows it as the
    // network changes after start-up: a LAN interface with an IPv4 and an IPv6 address, added to
    // this test's private network and removed again.
    void addressFollowsTheInterfaces()
    {
        const auto ip = [](const QStringList &arguments) {
            QProcess process;
            process.start("ip", arguments);
            return process.waitForFinished(5000) && process.exitStatus() == QProcess::NormalExit
                && process.exitCode() == 0;
        };
        ServerEnvironment env =
            testsupport::environment(std::make_shared<testsupport::GuardedProcessTable>());
        env.localIP = net::getLocalIP;
        PhoneService phones(env, [] { return false; });
        QCOMPARE(phones.localIP(), QStringLiteral("127.0.0.1"));

        if (!ip({ "link", "add", "eth7", "type", "veth", "peer", "name", "peer7" }))
            QSKIP("cannot add a network interface here (needs root in a private network)");
        QVERIFY(ip({ "address", "add", "fd00::7/64", "dev", "eth7" }));
        QVERIFY(ip({ "address", "add", "10.9.8.7/24", "dev", "eth7" }));
        QVERIFY(ip({ "link", "set", "eth7", "up" }));
        QCOMPARE(net::getLocalIP(), QStringLiteral("10.9.8.7"));
        QTRY_COMPARE(phones.localIP(), QStringLiteral("10.9.8.7"));
        QVERIFY(ip({ "link", "del", "eth7" }));
        QTRY_COMPARE(phones.localIP(), QStringLiteral("127.0.0.1"));
    }

    void hostLabelIsNameUpToFirstDot()
    {
        QCOMPARE(net::hostLabel("studio.example.lan"), QStringLiteral("studio"));
        QCOMPARE(net::hostLabel("mini"), QStringLiteral("mini"));
        QCOMPARE(net::hostLabel("studio-mini.local"), QStringLiteral("studio-mini"));
    }
};

QUIVRA_TEST_MAIN(TestLocalAddress)
#include "tst_localaddress.moc"

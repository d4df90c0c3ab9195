#include "net/hostlabel.h"
#include "net/localaddress.h"
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

    void systemAddressIsDottedIPv4()
    {
        QVERIFY(QHostAddress(net::getLocalIP()).protocol() == QAbstractSocket::IPv4Protocol);
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

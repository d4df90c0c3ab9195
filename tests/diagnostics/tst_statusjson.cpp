#include "diagnostics/statusresponse.h"
#include "testsupport.h"

class TestStatusJson : public QObject
{
    Q_OBJECT

    static StatusResponse sample()
    {
        return { false,
                 { { "ssh_dir", "SSH \"Directory\"", false,
                     QStringLiteral("~/.ssh\\x \u2192\n\x01"), true },
                   { "network", "Network", true, std::nullopt, false } },
                 "studio",
                 "tester",
                 "192.168.1.20",
                 QStringLiteral("100.64.0.1"),
                 8080 };
    }

private Q_SLOTS:
    void writesCompactOrderedEscapedUtf8()
    {
        QCOMPARE(statusjson::encode(sample()),
                 QByteArray("{\"ready\":false,\"diagnostics\":[{\"id\":\"ssh_dir\","
                            "\"name\":\"SSH \\\"Directory\\\"\",\"passed\":false,"
                            "\"message\":\"~\\/.ssh\\\\x \xe2\x86\x92\\n\\u0001\","
                            "\"canFix\":true},{\"id\":\"network\",\"name\":\"Network\","
                            "\"passed\":true,\"canFix\":false}],\"hostname\":\"studio\","
                            "\"username\":\"tester\",\"ip\":\"192.168.1.20\","
                            "\"tailscaleIP\":\"100.64.0.1\",\"pairingPort\":8080}"));
    }

    void readsBackAndRejectsWhatIsWrong()
    {
        StatusResponse withoutTailscale = sample();
        withoutTailscale.tailscaleIP.reset();
        for (const StatusResponse &response : { sample(), withoutTailscale })
            QCOMPARE(statusjson::decode(statusjson::encode(response)), response);

        const QByteArray good = statusjson::encode(sample());
        const QList<std::pair<QByteArray, QString>> broken {
            { QByteArray(good).replace("\"hostname\"", "\"host\""), "missing key \"hostname\"" },
            { QByteArray(good).replace("8080", "\"8080\""), "wrong type for key \"pairingPort\"" },
            { QByteArray(good).replace("8080", "80.5"), "wrong type for key \"pairingPort\"" },
            { QByteArray(good).replace("\"passed\":true", "\"passed\":1"),
              "wrong type for key \"passed\"" },
            { QByteArray(good).replace("\"canFix\":false", ""), "" },
            { "[1]", "not an object" },
        };
        for (const auto &[json, error] : broken) {
            QString reported;
            QVERIFY2(!statusjson::decode(json, &reported), json.constData());
            if (!error.isEmpty())
                QCOMPARE(reported, error);
        }
        QVERIFY(statusjson::decode(
            QByteArray(good).replace("\"tailscaleIP\":\"100.64.0.1\"", "\"tailscaleIP\":null")));
    }
};

QUIVRA_TEST_MAIN(TestStatusJson)
#include "tst_statusjson.moc"

#include "pairing/publickey.h"
#include "pairing/requestparsing.h"
#include "testsupport.h"

using namespace requestparsing;

class TestRequestParsing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headersAndBody()
    {
        const QString request = "POST /pair HTTP/1.1\r\nx-device-name: \t Work Phone \r\n"
                                "X-Device-Name: Second\r\nEmpty:\r\n\r\nbody\r\n\r\nkey";
        QCOMPARE(headerValue("X-Device-Name", request), "Work Phone");
        QCOMPARE(headerValue("Empty", request), std::nullopt);
        QCOMPARE(body(request), "key");
        QCOMPARE(body("a\r\n\r\n\r\n"),
                 "\r\n"); // split left to right: the last piece is a line end
        // A bare LF separates nothing, and the body holds no headers.
        QCOMPARE(headerValue("B", "GET / HTTP/1.1\r\nA: 1\nB: 2\r\n\r\n"), std::nullopt);
        QCOMPARE(headerValue("B", "GET / HTTP/1.1\r\n\r\nB: 2"), std::nullopt);
    }

    void onlyFramedRequestsAreRead()
    {
        QVERIFY(isWellFormed("GET /status HTTP/1.1\r\n\r\n"));
        QVERIFY(isWellFormed("POST /pair?token=1 HTTP/1.0\r\nHost: a\r\nX-A:\r\n\r\nkey"));
        const QStringList refused {
            "ssh-ed25519 AAAA k /pair?token=123456", // no line at all: the code is in the comment
            "GET /status HTTP/1.1\r\n", // headers never ended
            "GET /status HTTP/1.1",
            "\r\nGET /status HTTP/1.1\r\n\r\n",
            "GET  /status HTTP/1.1\r\n\r\n",
            "GET /status\r\n\r\n",
            "GET /status HTTP/2.0\r\n\r\n",
            "GET /st\x01tus HTTP/1.1\r\n\r\n",
            "G(T /status HTTP/1.1\r\n\r\n",
            "GET /status HTTP/1.1\r\nno colon\r\n\r\n",
            "GET /status HTTP/1.1\r\nOrigin : x\r\n\r\n",
            "GET /status HTTP/1.1\r\n folded: x\r\n\r\n",
        };
        for (const QString &request : refused)
            QVERIFY2(!isWellFormed(request), qPrintable(logging::oneLine(request)));
    }

    void tokenMustBeItsOwnExactParameter()
    {
        QVERIFY(tokenMatches("POST /pair?token=012345 HTTP/1.1", "012345"));
        QVERIFY(tokenMatches("POST /pair?x=1&token=012345#f HTTP/1.1", "012345"));
        QVERIFY(tokenMatches("POST /pair?token=012345&x=1 HTTP/1.1", "012345"));
        QVERIFY(!tokenMatches("POST /pair?token=0123456 HTTP/1.1", "012345"));
        QVERIFY(!tokenMatches("POST /pair?token=01234 HTTP/1.1", "012345"));
        QVERIFY(!tokenMatches("POST /pair?a=token=012345 HTTP/1.1", "012345"));
        QVERIFY(!tokenMatches("POST /pairtoken=012345 HTTP/1.1", "012345"));
        QVERIFY(!tokenMatches("POST /pair?token=111111&token=012345 HTTP/1.1", "012345"));
        QVERIFY(!tokenMatches("POST /pair?token= HTTP/1.1", ""));
    }

    void webPageDetection_data()
    {
        QTest::addColumn<QString>("headers");
        QTest::addColumn<bool>("webPage");
        QTest::newRow("phone") << "" << false;
        QTest::newRow("v6") << "Host: [fe80::1]:8080\r\n" << false;
        QTest::newRow("bare v6") << "Host: fe80::1\r\n" << false;
        QTest::newRow("our label") << "Host: Studio.local.\r\n" << false;
        QTest::newRow("tailscale name") << "Host: studio.tail1a2b.ts.net.:8080\r\n" << false;
        QTest::newRow("rebound name") << "Host: studio.local.evil.example\r\n" << true;
        QTest::newRow("bare local") << "Host: .local\r\n" << true;
        QTest::newRow("not a name") << "Host: a_b/c.local\r\n" << true;
        QTest::newRow("bad port") << "Host: studio.local:80x\r\n" << true;
        QTest::newRow("unclosed v6") << "Host: [::1\r\n" << true;
        QTest::newRow("origin") << "origin: null\r\n" << true;
        QTest::newRow("cross-site") << "SEC-FETCH-SITE: cross-site\r\n" << true;
        QTest::newRow("same-origin") << "Sec-Fetch-Site: same-origin\r\n" << true;
        QTest::newRow("fetch mode alone") << "Sec-Fetch-Mode: no-cors\r\n" << true;
        QTest::newRow("none and cross-site")
            << "Sec-Fetch-Site: none\r\nSec-Fetch-Site: cross-site\r\n"
            << true;
    }
    void webPageDetection()
    {
        QFETCH(QString, headers);
        QFETCH(bool, webPage);
        QCOMPARE(comesFromWebPage("GET /status HTTP/1.1\r\n" + headers + "\r\nkey"), webPage);
        // Only headers count: the body is the key.
        QVERIFY(!comesFromWebPage("POST /pair HTTP/1.1\r\n\r\n" + headers));
    }

    // Names, comments and console lines that could pass for another's or start a line of their own.
    void networkTextIsDefused()
    {
        QCOMPARE(sanitizeDeviceName(u"A\nB\x1b[31m\u202e\u2066C\u2028\u200e\u200f\u061c\u200b"
                                    u"\u2060\ufeff\U000E0041D"_qs),
                 "AB[31mCD");
        const QString emoji = QString(63, 'x') + QStringLiteral("\U0001F600");
        QCOMPARE(sanitizeDeviceName(emoji), QString(63, 'x')); // never half a character
        QCOMPARE(sanitizeDeviceName(QString(100, 'y')).size(), 64);

        QCOMPARE(
            publickey::withPlainComment(u"ssh-ed25519 AAAA me\u200e@ph\u2028one \U0001F600"_qs),
            u"ssh-ed25519 AAAA me@phone \U0001F600"_qs);
        QCOMPARE(publickey::withPlainComment(u"ssh-ed25519 AAAA \ufeff"_qs), "ssh-ed25519 AAAA");

        QCOMPARE(logging::oneLine(u"GET /\r\n\t\x1b]0;t\x07\\ \u0085\u2028\u2029\u202e é"_qs),
                 R"(GET /\r\n\t\x1b]0;t\x07\\ \x85\u2028\u2029\u202e é)");
    }
};

QUIVRA_TEST_MAIN(TestRequestParsing)
#include "tst_requestparsing.moc"

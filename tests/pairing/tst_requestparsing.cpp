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
        QCOMPARE(headerValue("Missing", request), std::nullopt);
        QCOMPARE(body(request), "key");
        QCOMPARE(body("no blank line"), "no blank line");
        QCOMPARE(body("ends in a blank line\r\n\r\n"), "");
        QCOMPARE(body("a\r\n\r\n\r\n"),
                 "\r\n"); // split left to right: the last piece is a line end
        // A bare LF separates nothing.
        QCOMPARE(headerValue("B", "A: 1\nB: 2"), std::nullopt);
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

    void webPageDetection()
    {
        const auto from = [](const QString &headers) {
            return comesFromWebPage("POST /pair HTTP/1.1\r\n" + headers + "\r\nkey", "studio");
        };
        QVERIFY(!from(""));
        QVERIFY(!from("Host: 10.0.0.2:8080\r\n"));
        QVERIFY(!from("Host: Studio.local.\r\n"));
        QVERIFY(!from("Host: fe80::1\r\n"));
        QVERIFY(from("Host: studio.local.evil.example\r\n"));
        QVERIFY(from("Host: [::1\r\n"));
        QVERIFY(from("origin: null\r\n"));
        QVERIFY(from("SEC-FETCH-SITE: cross-site\r\n"));
        // Only headers count: the body is the key.
        QVERIFY(!comesFromWebPage("POST /pair HTTP/1.1\r\n\r\nOrigin: x", "studio"));
    }

    void deviceNamesAreDefused()
    {
        QCOMPARE(sanitizeDeviceName("A\nB\x1b[31m\u202e\u2066C\u2028"), "AB[31mC");
        const QString emoji = QString(63, 'x') + QStringLiteral("\U0001F600");
        QCOMPARE(sanitizeDeviceName(emoji), QString(63, 'x')); // never half a character
        QCOMPARE(sanitizeDeviceName(QString(100, 'y')).size(), 64);
        QCOMPARE(printable("GET /\r\n\x1b]0;title\x07"), "GET /\r\n]0;title");
    }
};

QUIVRA_TEST_MAIN(TestRequestParsing)
#include "tst_requestparsing.moc"

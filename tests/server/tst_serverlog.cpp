#include "server/processids.h"
#include "server/serverlog.h"
#include "testsupport.h"

#include <QRandomGenerator>
#include <QTextBoundaryFinder>

class TestServerLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outputEntries()
    {
        const auto outputEntry = [](const QByteArray &chunk) {
            return serverlog::outputEntry(chunk).value_or(QStringLiteral("<dropped>"));
        };
        QCOMPARE(outputEntry("ready\n"), QStringLiteral("[etserver] ready"));
        QCOMPARE(outputEntry("first\nsecond\n"), QStringLiteral("[etserver] first\nsecond"));
        QCOMPARE(outputEntry(" \n\t\n"), QStringLiteral("[etserver] "));
        QCOMPARE(outputEntry("caf\xc3\xa9"), QStringLiteral("[etserver] caf\u00e9"));
        QCOMPARE(outputEntry(""), "<dropped>");
        QCOMPARE(outputEntry("bad \xff\xfe bytes"), "<dropped>");
        // A multi-byte character cut by the read boundary makes the chunk invalid as a whole.
        QCOMPARE(outputEntry("cut \xe2\x86"), "<dropped>");
    }

    void trimsToLastUserPerceivedCharacters()
    {
        using serverlog::keepLastCharacters;
        QCOMPARE(keepLastCharacters("abc", 5), QStringLiteral("abc"));
        QCOMPARE(keepLastCharacters("abcdef", 3), QStringLiteral("def"));
        // A family emoji (7 UTF-16 units, one character) and "e" + combining acute (2 units).
        const QString family = QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467");
        const QString accented = QStringLiteral("e\u0301");
        QCOMPARE(keepLastCharacters("x" + family + accented, 2), family + accented);
        QCOMPARE(keepLastCharacters("ab\r\n", 2), QStringLiteral("b\r\n"));

        QString big;
        for (int i = 0; i < 6000; ++i)
            big += family + "z";
        const QString kept = keepLastCharacters(big, serverlog::maxCharacters);
        QCOMPARE(kept.size(), 5000 * (family.size() + 1));
        QVERIFY(kept.startsWith(family));
    }

    void trimmingNearTheEndMatchesTrimmingTheWhole()
    {
        // The same answer as walking the whole text, for logs of lines mixing long clusters,
        // flag pairs (whose pairing depends on everything before them) and line breaks.
        const auto whole = [](const QString &text, qsizetype limit) {
            QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
            finder.toEnd();
            for (qsizetype kept = 0; kept < limit; ++kept) {
                if (finder.toPreviousBoundary() <= 0)
                    return text;
            }
            return text.mid(finder.position());
        };
        const QStringList pieces { "a",
                                   "\n",
                                   "\r\n",
                                   "e\u0301\u0301",
                                   QStringLiteral("\U0001F1E9"), // a regional indicator
                                   QStringLiteral("\U0001F468\u200D\U0001F469") };
        QRandomGenerator random(7);
        for (int round = 0; round < 50; ++round) {
            QString text;
            for (int i = 0, n = random.bounded(4000); i < n; ++i)
                text += pieces[random.bounded(int(pieces.size()))];
            const qsizetype limit = 1 + random.bounded(300);
            QCOMPARE(serverlog::keepLastCharacters(text, limit), whole(text, limit));
        }
    }

    void parsesProcessIds()
    {
        const auto parse = [](const QString &text) { return processids::parse(text).value_or(0); };
        QCOMPARE(parse("  12345\n"), 12345);
        QCOMPARE(parse("+7"), 7);
        QCOMPARE(parse("-1"), -1); // parsed; the signalling side refuses it
        QCOMPARE(parse(""), 0);
        QCOMPARE(parse("12a"), 0);
        QCOMPARE(parse("abc"), 0);
        QCOMPARE(parse("+"), 0);
        QCOMPARE(parse("1 2"), 0);
        QCOMPARE(parse("2147483648"), 0);
        QCOMPARE(processids::parseList("12\n\n  34\t\nxyz\n56"), (QList<qint32> { 12, 34, 56 }));
        QCOMPARE(processids::parseList("12\n\xff"), QList<qint32> {});
    }
};

QUIVRA_TEST_MAIN(TestServerLog)
#include "tst_serverlog.moc"

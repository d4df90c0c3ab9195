#include "platform/logging.h"
#include "server/processids.h"
#include "server/serverlog.h"
#include "testsupport.h"

#include <QScopeGuard>
#include <QTextBoundaryFinder>
#include <QThread>

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

    void outputKeepsTheLastUserPerceivedCharacters()
    {
        const auto afterOutput = [](const QString &entry, qsizetype limit) {
            ServerLog log(limit);
            log.appendOutput(entry);
            return log.text();
        };
        QCOMPARE(afterOutput("abc", 5), QStringLiteral("abc\n"));
        QCOMPARE(afterOutput("abcdef", 3), QStringLiteral("ef\n"));
        // A family emoji (7 UTF-16 units, one character) and "e" + combining acute (2 units).
        const QString family = QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467");
        const QString accented = QStringLiteral("e\u0301");
        QCOMPARE(afterOutput("x" + family + accented, 3), family + accented + "\n");

        QString big;
        for (int i = 0; i < 6000; ++i)
            big += family + "z";
        const QString kept = afterOutput(big, serverlog::maxCharacters);
        QCOMPARE(kept.size(), 4999 * (family.size() + 1) + 2);
        QVERIFY(kept.startsWith("z" + family));

        // Supervision messages are not held to the limit; the next output entry is.
        ServerLog log(4);
        log.appendMessage(u"message");
        QCOMPARE(log.text(), QStringLiteral("message\n"));
        log.appendOutput(u"ab");
        QCOMPARE(log.text(), QStringLiteral("\nab\n"));
        // A line may continue the last character of a log that does not end in a line break.
        log.assign("e");
        log.appendOutput(u"\u0301xy");
        QCOMPARE(log.text(), QStringLiteral("e\u0301xy\n"));
    }

    void entriesMatchTrimmingTheWholeText()
    {
        // The same answer as analysing everything ever appended, for lines mixing long clusters,
        // flag pairs (whose pairing depends on everything before them) and line breaks.
        const auto lastOfWhole = [](const QString &text, qsizetype limit) {
            QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
            finder.toEnd();
            for (qsizetype kept = 0; kept < limit; ++kept) {
                if (finder.toPreviousBoundary() <= 0)
                    return text;
            }
            return text.mid(finder.position());
        };
        const QStringList pieces { "a", "bc", "\n",
                                   QStringLiteral("\u0600"), // joins what follows it
                                   "\r\n", "\r", "e\u0301\u0301",
                                   QStringLiteral("\U0001F1E9"), // a regional indicator
                                   // Not a ZWJ sequence: Qt 6.4 stops pairing flags after one.
                                   QStringLiteral("\U0001F44D\U0001F3FD") };
        QRandomGenerator &random = testsupport::random();
        for (int round = 0; round < 40; ++round) {
            const qsizetype limit = 1 + random.bounded(300);
            ServerLog log(limit);
            QString expected;
            for (int entry = 0; entry < 30; ++entry) {
                QString text;
                for (int i = 0, n = random.bounded(round % 2 ? 40 : 400); i < n; ++i)
                    text += pieces[random.bounded(int(pieces.size()))];
                switch (random.bounded(6)) {
                case 0:
                    log.assign(text);
                    expected = text;
                    break;
                case 1:
                    log.appendMessage(text);
                    expected += text + "\n";
                    break;
                default:
                    log.appendOutput(text);
                    expected = lastOfWhole(expected + text + "\n", limit);
                }
                QCOMPARE(log.text(), expected);
            }
        }
    }

    void linesGoWhereTheirCategorySays()
    {
        using logging::Entry;
        QList<QPair<Entry, QString>> logged;
        const auto previous = logging::setAppLog([&](Entry kind, const QString &text) {
            logged.append({ kind, text });
        });
        const auto restore = qScopeGuard([previous] { logging::setAppLog(previous); });
        testsupport::ConsoleCapture console;

        // Exact text: a trailing space, a percent sign, a character outside the BMP.
        const QString odd = QStringLiteral("100% \U0001F4F1 ");
        qCInfo(lcConsole).nospace().noquote() << "console " << odd;
        qCInfo(lcLog).nospace().noquote() << "log " << odd;
        qCInfo(lcServerOutput).nospace().noquote() << "[etserver] " << odd;
        QCOMPARE(console.lines(), QStringList({ "console " + odd, "[etserver] " + odd }));
        QCOMPARE(logged,
                 (QList<QPair<Entry, QString>> { { Entry::Message, "log " + odd },
                                                 { Entry::ServerOutput, "[etserver] " + odd } }));

        // The usual rules switch standard output off and leave the in-app log alone.
        QLoggingCategory::setFilterRules(QStringLiteral("quivra.console=false"));
        qCInfo(lcConsole) << "hidden";
        qCInfo(lcServerOutput).nospace().noquote() << "[etserver] still logged";
        QLoggingCategory::setFilterRules(QString());
        QCOMPARE(console.lines().size(), 2);
        QCOMPARE(logged.last().second, QStringLiteral("[etserver] still logged"));

        // Lines from another thread reach the in-app log on the main thread.
        logged.clear();
        QThread *deliveredOn = nullptr;
        logging::setAppLog([&](Entry, const QString &) { deliveredOn = QThread::currentThread(); });
        std::unique_ptr<QThread> worker(QThread::create([] { qCInfo(lcLog) << "from a worker"; }));
        worker->start();
        QVERIFY(worker->wait(5000));
        QTRY_COMPARE(deliveredOn, QThread::currentThread());

        // What is not the app's own reaches the handler underneath, here the test runner's.
        QTest::ignoreMessage(QtWarningMsg, "not ours");
        qWarning("not ours");
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

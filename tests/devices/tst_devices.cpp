#include "devices/authorizedkeysrewrite.h"
#include "devices/deviceregistry.h"
#include "devices/sshkey.h"
#include "pairingfixture.h"
#include "server/authorizedkeys.h"
#include "testsupport.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

using Kind = RewriteResult::Kind;

// A well-formed Ed25519 key line; `seed` fills its 32 key bytes.
QByteArray key(const QByteArray &seed, const QByteArray &comment = "phone")
{
    const QByteArray blob = QByteArray::fromHex("0000000b") + "ssh-ed25519"
        + QByteArray::fromHex("00000020") + seed.leftJustified(32, '.', true);
    return "ssh-ed25519 " + blob.toBase64() + " " + comment;
}
QString fingerprint(const QByteArray &seed)
{
    return SshKey::fromLine(key(seed))->fingerprint();
}

const QByteArray appComment = "# Quivra Terminal - Added on 2024-05-06";

// The lines, each with `end`.
QByteArray text(const QByteArrayList &lines, const QByteArray &end = "\n")
{
    return lines.join(end) + end;
}

QString keysFile()
{
    return QDir::homePath() + "/.ssh/authorized_keys";
}

void writeFile(const QString &path, const QByteArray &bytes, int mode = 0600)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(bytes), bytes.size());
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode_t(mode)), 0);
}

// As a pairing appends: one write, O_APPEND, no lock.
void append(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append | QIODevice::Unbuffered));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

int modeOf(const QString &path)
{
    struct stat info = {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

QStringList temporaries()
{
    return QDir(QDir::homePath() + "/.ssh")
        .entryList({ ".authorized_keys.quivra-*" }, QDir::Files | QDir::Hidden);
}

QStringList names(const QList<PairedDevice> &devices)
{
    QStringList result;
    for (const PairedDevice &device : devices)
        result.append(device.name);
    return result;
}

} // namespace

class TestDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QDir(QDir::homePath() + "/.ssh").removeRecursively(); }

    void fingerprintsMatchSshKeygen()
    {
        const QString keygen = QStandardPaths::findExecutable("ssh-keygen");
        if (keygen.isEmpty())
            QSKIP("ssh-keygen is not installed (Debian package openssh-client)");
        QTemporaryDir dir;
        QByteArrayList pub;
        for (const QString type : { "ed25519", "rsa" }) {
            QCOMPARE(QProcess::execute(keygen,
                                       { "-q", "-t", type, "-N", "", "-C", "me@laptop", "-f",
                                         dir.filePath(type) }),
                     0);
            pub.append(contents(dir.filePath(type + ".pub")).trimmed());
        }
        const QByteArrayList lines {
            "# comment",
            "",
            " ",
            "garbage here",
            "from=\"10.0.0.1, 10.0.0.2\",command=\"echo \\\"a b\\\"\",no-pty " + pub[0] + " more",
            pub[1] + "\r",
            " \t" + pub[0].first(pub[0].lastIndexOf(' ')) + "\r",
            "ssh-rsa " + pub[0].split(' ').at(1) + " type and blob disagree",
            "# " + pub[1],
            // RSA moduli sshd refuses, with and without options before them, and its largest.
            testsupport::rsaKey(16400),
            "no-pty " + testsupport::rsaKey(16400),
            testsupport::rsaKey(1016),
            testsupport::rsaKey(16384),
        };
        writeFile(dir.filePath("keys"), text(lines));

        QProcess process;
        process.start(keygen, { "-lf", dir.filePath("keys") });
        QVERIFY(process.waitForFinished());
        QStringList theirs; // "256 SHA256:... comment (ED25519)"
        for (const QByteArray &line : process.readAllStandardOutput().trimmed().split('\n'))
            theirs.append(QString::fromUtf8(line.split(' ').at(1)));
        QStringList ours;
        for (const QByteArray &line : lines) {
            if (const auto key = SshKey::fromLine(line))
                ours.append(key->fingerprint());
        }
        QCOMPARE(ours, theirs);
        QCOMPARE(ours.size(), 4);
        QCOMPARE(SshKey::fromLine(lines[4])->comment, "me@laptop more");
    }

    void revokeKeepsEveryOtherByte_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<int>("removed");
        const QByteArray k = key("k"), o = key("o"), c = appComment;
        QTest::newRow("options") << text({ "from=\"a, b\" " + key("k", "other"), o }) << text({ o })
                                 << 1;
        QTest::newRow("CRLF") << text({ o, c, k, o }, "\r\n") << text({ o, o }, "\r\n") << 1;
        QTest::newRow("twice") << text({ k, o, "", c, "\t" + k }) << text({ o }) << 2;
        QTest::newRow("app comment above another key") << text({ c, o, k }) << text({ c, o }) << 1;
        QTest::newRow("app comment a line away") << text({ c, "", k }) << text({ c, "" }) << 1;
        QTest::newRow("commented out") << "# " + k + "\n" + o << "# " + k + "\n" + o << 0;
    }

    void revokeKeepsEveryOtherByte()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(int, removed);
        writeFile(keysFile(), before, 0640);
        const RewriteResult result = authorizedkeysrewrite::removeKey(keysFile(), fingerprint("k"));
        QCOMPARE(result.kind, removed ? Kind::Removed : Kind::NotPresent);
        QCOMPARE(result.removed, removed);
        QCOMPARE(contents(keysFile()), after);
        QCOMPARE(modeOf(keysFile()), 0640);
        QVERIFY(temporaries().isEmpty());
    }

    // A pairing and the revoke of its key give back the file as it was, byte for byte, however
    // it ended and whatever others appended after the entry; cycles do not make it grow.
    void pairThenRevokeGivesTheFileBack_data()
    {
        QTest::addColumn<QByteArray>("original");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("final newline") << text({ key("o") });
        QTest::newRow("no final newline") << key("o");
        QTest::newRow("blank lines of the user's") << text({ key("o"), "", "" });
        QTest::newRow("CRLF") << text({ key("o"), "# mine" }, "\r\n");
        QTest::newRow("CRLF, no final newline") << key("o") + "\r\n# mine";
    }

    void pairThenRevokeGivesTheFileBack()
    {
        QFETCH(QByteArray, original);
        writeFile(keysFile(), original);
        const auto pairAndRevoke = [](const QByteArray &othersAppend) {
            QVERIFY(!authorizedkeys::install(QDir::homePath(), key("k"), QDate(2024, 5, 6)));
            append(keysFile(), othersAppend);
            QCOMPARE(authorizedkeysrewrite::removeKey(keysFile(), fingerprint("k")).kind,
                     Kind::Removed);
        };
        for (int cycle = 0; cycle < 3; ++cycle) {
            pairAndRevoke({});
            QCOMPARE(contents(keysFile()), original);
        }
        // A line another writer appended after the entry stays on a line of its own.
        pairAndRevoke(key("x") + "\n");
        const QByteArray separated =
            original.isEmpty() || original.endsWith('\n') ? original : original + "\n";
        QCOMPARE(contents(keysFile()), separated + key("x") + "\n");
    }

    void appendDuringRewriteIsKept()
    {
        const QByteArray before = text({ key("o"), appComment, key("k") });
        const QByteArray paired = "\n" + text({ appComment, key("new") });
        writeFile(keysFile(), before);
        int calls = 0;
        auto result = authorizedkeysrewrite::removeKey(keysFile(), fingerprint("k"), [&] {
            if (calls++ == 0)
                append(keysFile(), paired);
        });
        QCOMPARE(result.kind, Kind::Removed);
        QCOMPARE(contents(keysFile()), key("o") + "\n" + paired);

        // A writer that never pauses: the revoke gives up, and every appended line is there.
        writeFile(keysFile(), before);
        calls = 0;
        result = authorizedkeysrewrite::removeKey(keysFile(), fingerprint("k"), [&] {
            ++calls;
            append(keysFile(), "x\n");
        });
        QCOMPARE(result.kind, Kind::Failed);
        QVERIFY(result.message.contains("kept changing"));
        QCOMPARE(contents(keysFile()), before + QByteArray("x\n").repeated(calls));
        QVERIFY(temporaries().isEmpty());
    }

    void refusesFilesItMustNotReplace()
    {
        const QByteArray before = key("k") + "\n";
        const QString target = QDir::homePath() + "/elsewhere";
        writeFile(target, before);
        QDir().mkpath(QDir::homePath() + "/.ssh");
        auto refusal = [] {
            const auto result = authorizedkeysrewrite::removeKey(keysFile(), fingerprint("k"));
            return result.kind == Kind::Refused ? result.message : QString("not refused");
        };

        QVERIFY(QFile::link(target, keysFile()));
        QVERIFY(refusal().contains("symbolic link"));
        QVERIFY(QFileInfo(keysFile()).isSymLink());
        QVERIFY(QFile::remove(keysFile()));
        QCOMPARE(::link(QFile::encodeName(target), QFile::encodeName(keysFile())), 0);
        QVERIFY(refusal().contains("hard links"));
        QCOMPARE(contents(target), before);
        QVERIFY(QFile::remove(keysFile()) && QDir().mkdir(keysFile()));
        QVERIFY(refusal().contains("not a regular file"));
        QVERIFY(QDir().rmdir(keysFile()));
        // The same rules as for adding a key: a file others may change is not the app's to touch.
        writeFile(keysFile(), before);
        QVERIFY(QFile::setPermissions(keysFile(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup
                                          | QFile::WriteGroup));
        QVERIFY(refusal().contains("writable by others (mode 660)"));
        QCOMPARE(contents(keysFile()), before);
        QVERIFY(QFile::remove(keysFile()));

        if (::getuid() != 0)
            QSKIP("Giving a file to another user needs root");
        writeFile(keysFile(), before);
        QCOMPARE(::chown(QFile::encodeName(keysFile()), 65534, 65534), 0);
        QVERIFY(refusal().contains("owned by someone else"));
        QCOMPARE(contents(keysFile()), before);
    }

    // Killed at any moment, a revoke leaves the old file or the new one, never a mix.
    void killedRevokeLeavesOldOrNewFile()
    {
        QByteArray head, tail;
        for (int i = 0; i < 2000; ++i)
            (i < 1000 ? head : tail) += key(QByteArray::number(i)) + "\n";
        const QByteArray before = head + text({ appComment, key("k") }) + tail;
        const QByteArray after = head + tail;
        // Kills the helper `killAfter()` ms after it is ready; `ran` is how long it then lived.
        int ran = -1;
        auto revoke = [&](const std::function<int()> &killAfter) {
            writeFile(keysFile(), before);
            QProcess helper;
            QElapsedTimer clock;
            connect(&helper, &QProcess::readyReadStandardOutput, &helper, [&] {
                clock.start();
                QTimer::singleShot(killAfter(), Qt::PreciseTimer, &helper, &QProcess::kill);
            });
            QSignalSpy finished(&helper, &QProcess::finished);
            helper.start(QUIVRA_KEYS_HELPER, { "revoke", keysFile(), fingerprint("k") });
            QVERIFY(finished.wait(10000));
            ran = clock.isValid() ? int(clock.elapsed()) : -1;
        };
        // How long a whole rewrite takes here, so that the kills spread over all of it.
        int span = 0;
        for (int calibration = 0; calibration < 3; ++calibration) {
            revoke([] { return 10000; });
            QVERIFY(ran >= 0);
            span = std::max(span, ran + 2);
        }
        QCOMPARE(contents(keysFile()), after);

        int old = 0, rewritten = 0;
        for (int run = 0; run < 300; ++run) {
            revoke([&] { return testsupport::random().bounded(span); });
            QVERIFY(!QTest::currentTestFailed());
            const QByteArray now = contents(keysFile());
            QVERIFY2(now == before || now == after, qPrintable(QString("run %1").arg(run)));
            ++(now == before ? old : rewritten);
        }
        QVERIFY(old > 0 && rewritten > 0);

        // What killed runs left behind goes once stale; a fresh one may be a rewrite under way.
        for (const QString &name : temporaries()) {
            const timeval epoch[2] = {};
            QCOMPARE(::utimes(QFile::encodeName(QDir::homePath() + "/.ssh/" + name), epoch), 0);
        }
        writeFile(QDir::homePath() + "/.ssh/.authorized_keys.quivra-fresh", before);
        writeFile(keysFile(), before);
        QCOMPARE(authorizedkeysrewrite::removeKey(keysFile(), fingerprint("k")).kind,
                 Kind::Removed);
        QCOMPARE(temporaries(), QStringList { ".authorized_keys.quivra-fresh" });
    }

    void registryListsWhatCanLogIn()
    {
        const QString support = QDir::homePath() + "/support";
        writeFile(support + "/devices.json", "{ not json");
        writeFile(keysFile(),
                  text({ key("user"), "", appComment, key("old"), key("a"), key("b") }));
        const QDateTime t(QDate(2025, 3, 1), QTime(10, 0), Qt::UTC);
        {
            DeviceRegistry registry(support, QDir::homePath());
            QCOMPARE(registry.devices().size(), 1);
            QCOMPARE(contents(support + "/devices.json"), "{ not json");
            QVERIFY(!registry.record("Ann's iPhone", key("a"), "192.168.1.20", t));
            QVERIFY(!registry.record("iPad", key("b"), "10.0.0.7", t.addDays(1)));
            QVERIFY(!registry.record("Ben's iPad", key("b", "renamed"), "10.0.0.8", t.addDays(2)));
        }
        QCOMPARE(contents(support + "/devices.json.bad"), "{ not json");
        QCOMPARE(modeOf(support + "/devices.json"), 0600);

        DeviceRegistry registry(support, QDir::homePath());
        const QList<PairedDevice> devices = registry.devices();
        QCOMPARE(
            names(devices),
            QStringList({ "Ben's iPad", "Ann's iPhone", "Unknown device (added 2024-05-06)" }));
        QCOMPARE(devices[0],
                 PairedDevice({ "Ben's iPad", "ssh-ed25519", fingerprint("b"), "renamed",
                                t.addDays(2), "10.0.0.8" }));
        QCOMPARE(devices[2].fingerprint, fingerprint("old"));
        QVERIFY(devices[2].address.isEmpty());

        QSignalSpy changed(&registry, &DeviceRegistry::devicesChanged);
        writeFile(keysFile(), key("b") + "\n"); // by hand
        QVERIFY(changed.wait());
        QCOMPARE(names(registry.devices()), QStringList { "Ben's iPad" });
    }

    // A devices.json that is a link is neither read nor written through: the first save moves
    // the link aside as devices.json.bad and puts a file of its own in its place.
    void devicesListLinkIsNeverFollowed()
    {
        const QString support = QDir::homePath() + "/support-link";
        const QString outside = QDir::homePath() + "/outside.json";
        const QByteArray theirs = "{\"devices\": [{\"name\": \"Not mine\", \"fingerprint\": \""
            + fingerprint("a").toUtf8() + "\"}]}";
        writeFile(outside, theirs, 0644);
        QDir().mkpath(support);
        QVERIFY(QFile::link(outside, support + "/devices.json"));
        writeFile(keysFile(), text({ appComment, key("a") }));

        DeviceRegistry registry(support, QDir::homePath());
        QCOMPARE(names(registry.devices()), QStringList { "Unknown device (added 2024-05-06)" });
        QVERIFY(!registry.record("iPhone", key("a"), {}, QDateTime::currentDateTimeUtc()));
        QCOMPARE(contents(outside), theirs);
        QCOMPARE(modeOf(outside), 0644);
        QVERIFY(!QFileInfo(support + "/devices.json").isSymLink());
        QCOMPARE(modeOf(support + "/devices.json"), 0600);
        QCOMPARE(QFileInfo(support + "/devices.json.bad").symLinkTarget(), outside);
        QCOMPARE(names(DeviceRegistry(support, QDir::homePath()).devices()),
                 QStringList { "iPhone" });
    }

    void revokeFindsExactlyOneDevice()
    {
        const QString support = QDir::homePath() + "/support-revoke";
        writeFile(keysFile(), text({ appComment, key("old"), key("a"), key("b"), key("c") }));
        DeviceRegistry registry(support, QDir::homePath());
        const QDateTime t = QDateTime::currentDateTimeUtc();
        QVERIFY(!registry.record("iPhone", key("a"), {}, t));
        QVERIFY(!registry.record("IPHONE", key("b"), {}, t));
        QVERIFY(!registry.record("iPad", key("c"), {}, t));

        const auto ambiguous = registry.revoke("iphone");
        QVERIFY(!ambiguous.ok);
        QVERIFY(ambiguous.message.contains(fingerprint("a"))
                && ambiguous.message.contains(fingerprint("b")));
        QVERIFY(!registry.revoke("iPod").ok);
        QCOMPARE(registry.devices().size(), 4);

        QVERIFY(registry.revoke(fingerprint("a")).ok);
        QVERIFY(registry.revoke("iphone").ok);
        QVERIFY(registry.revoke("unknown device (added 2024-05-06)").ok);
        QCOMPARE(contents(keysFile()), key("c") + "\n");
        QCOMPARE(names(registry.devices()), QStringList { "iPad" });
        QVERIFY(!contents(support + "/devices.json").contains(fingerprint("b").toUtf8()));
    }
};

QUIVRA_TEST_MAIN(TestDevices)
#include "tst_devices.moc"

#include "devices/sshkey.h"
#include "pairing/phoneservice.h"
#include "server/authorizedkeys.h"
#include "testsupport.h"

#include <QDir>
#include <QProcess>

#include <sys/stat.h>

namespace {

const QString keyA =
    "ssh-ed25519 AAAAC3NzaC1lZDI1NTE5AAAAIGx5dGhpcyBpcyBhIHRlc3Qga2V5IG9mIDMyIGI phone-a";
const QString keyB =
    "ssh-ed25519 AAAAC3NzaC1lZDI1NTE5AAAAIHNlY29uZCB0ZXN0IGtleSBvZiAzMiBieXRlcyE phone-b";

QString sshDir()
{
    return QDir::homePath() + "/.ssh";
}
QString keysFile()
{
    return sshDir() + "/authorized_keys";
}

int modeOf(const QString &path)
{
    struct stat info
    {
    };
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777)
                                                                    : -1;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void write(const QString &path, const QByteArray &bytes, int mode)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    ::chmod(QFile::encodeName(path).constData(), mode_t(mode));
}

} // namespace

class TestAuthorizedKeys : public QObject
{
    Q_OBJECT

    const QDate today = QDate(2026, 11, 23);
    QByteArray entryA() const { return authorizedkeys::entry(keyA, today); }

    // The refusal's or failure's text, or none.
    std::optional<QString> install(const QString &key)
    {
        return authorizedkeys::install(QDir::homePath(), key, today);
    }

private Q_SLOTS:
    void init()
    {
        QFile::remove(sshDir()); // a plain file or link left by a test
        QDir(sshDir()).removeRecursively();
    }

    void createsDirectoryAndFileWithPrivateModes()
    {
        // The date is read back by the devices list: ASCII digits and Gregorian in any locale.
        QLocale::setDefault(QLocale(QLocale::Persian, QLocale::Iran));
        QCOMPARE(entryA(), "\n# Quivra Terminal - Added on 2026-11-23\n" + keyA.toUtf8() + "\n");
        QLocale::setDefault(QLocale::c());
        QCOMPARE(install(keyA).value_or("ok"), "ok");
        QCOMPARE(modeOf(sshDir()), 0700);
        QCOMPARE(modeOf(keysFile()), 0600);
        QCOMPARE(contents(keysFile()), entryA());
    }

    void appendsToExistingFileKeepingItsModeAndContent()
    {
        QVERIFY(QDir().mkpath(sshDir()));
        // A key that is only there commented out cannot log in, so it is added.
        const QByteArray existing =
            "# " + keyA.toUtf8() + "\nssh-rsa AAAAB3NzaC1yc2E old@laptop"; // no final newline
        write(keysFile(), existing, 0644);
        QCOMPARE(install(keyA).value_or("ok"), "ok");
        QCOMPARE(install(keyB).value_or("ok"), "ok");
        QCOMPARE(install(keyA.section(' ', 0, 1) + " renamed").value_or("ok"),
                 "ok"); // same key again
        QCOMPARE(contents(keysFile()), existing + entryA() + authorizedkeys::entry(keyB, today));
        QCOMPARE(modeOf(keysFile()), 0644);
    }

    void refusesFilesThatAreNotPlainlyTheUsers()
    {
        QVERIFY(QDir().mkpath(sshDir()));
        // A link into a world-writable place would let anyone there choose what sshd reads.
        QTemporaryDir elsewhere;
        const QString target = elsewhere.filePath("keys");
        write(target, "original\n", 0600);
        QVERIFY(QFile::link(target, keysFile()));
        QVERIFY(install(keyA).value_or("").contains("symbolic link"));
        QCOMPARE(contents(target), "original\n");

        QFile::remove(keysFile());
        write(keysFile(), "original\n", 0664);
        QCOMPARE(install(keyA).value_or(""),
                 "~/.ssh/authorized_keys is writable by others (mode 664); fix with chmod 600 "
                 "~/.ssh/authorized_keys");
        QCOMPARE(contents(keysFile()), "original\n");

        // A link of the user's own to a private directory, as dotfile managers make, is
        // followed; one to a directory others can write to is not.
        QDir(sshDir()).removeRecursively();
        QVERIFY(QFile::link(elsewhere.path(), sshDir()));
        ::chmod(QFile::encodeName(elsewhere.path()).constData(), 0777);
        QVERIFY(install(keyA).value_or("").contains("~/.ssh is writable by others (mode 777)"));
        QVERIFY(!QFile::exists(elsewhere.filePath("authorized_keys")));
        ::chmod(QFile::encodeName(elsewhere.path()).constData(), 0700);
        QCOMPARE(install(keyA).value_or("ok"), "ok");
        QCOMPARE(contents(elsewhere.filePath("authorized_keys")), entryA());
    }

    // On a full disk the install fails and the file holds none of the entry, even where the
    // entry would have begun in the file's last, partly used page.
    void fullDiskLeavesTheFileAsItWas()
    {
        if (QProcess::execute("unshare", { "-m", "true" }) != 0)
            QSKIP("no private mount namespace here (it takes root)");
        QTemporaryDir home, outside;
        // 40 bytes short of a page boundary: the entry is longer.
        const QByteArray original = "# " + QByteArray(2 * 4096 - 40 - 3, 'x') + "\n";
        write(outside.filePath("original"), original, 0600);
        // A tmpfs of its own in a private mount namespace, filled to the last page.
        const QString script = R"(
            mount -t tmpfs -o size=64k,mode=0700 tmpfs "$1" 2>&1 || exit 77
            mkdir -m 700 "$1/.ssh" && cp "$2" "$1/.ssh/authorized_keys" || exit 1
            dd if=/dev/zero of="$1/filler" bs=4096 2>/dev/null
            "$3" install "$1" "$4"; status=$?
            cat "$1/.ssh/authorized_keys" > "$2.after"
            exit $status)";
        QProcess helper;
        helper.setProcessChannelMode(QProcess::MergedChannels);
        helper.start("unshare",
                     { "-m", "--propagation", "private", "sh", "-c", script, "sh", home.path(),
                       outside.filePath("original"), QUIVRA_KEYS_HELPER, keyA });
        QVERIFY(helper.waitForFinished(20000));
        const QString output = QString::fromUtf8(helper.readAll()).trimmed();
        if (helper.exitCode() == 77 || helper.error() == QProcess::FailedToStart)
            QSKIP(qPrintable("cannot mount a small tmpfs here: " + output));
        QCOMPARE(helper.exitCode(), 1);
        QVERIFY2(output.contains("No space left on device") || output.contains("disk is full"),
                 qPrintable(output));
        QCOMPARE(contents(outside.filePath("original.after")), original);
    }

    // Two phones pair one after the other, the second under the name of the first: each is its
    // own event with its own key, and the listener stays for the next one.
    void everyPairingIsItsOwnEventAndKeepsTheListener()
    {
        PhoneService phones(
            testsupport::environment(std::make_shared<testsupport::GuardedProcessTable>()), {});
        QSignalSpy paired(&phones, &PhoneService::paired);
        // Whoever waits for the event hears of it before of the switch-off that comes with it.
        QList<bool> pairingWhenPaired;
        connect(&phones, &PhoneService::paired, this,
                [&] { pairingWhenPaired.append(phones.session().isPairing()); });
        for (const QString &key : { keyA, keyB }) {
            phones.togglePairingMode();
            QVERIFY(phones.completePairing({ key, "iPhone", "192.0.2.7" }));
            QVERIFY(!phones.session().isPairing());
            QVERIFY(phones.isListening());
        }
        QCOMPARE(contents(keysFile()),
                 authorizedkeys::entry(keyA, QDate::currentDate())
                     + authorizedkeys::entry(keyB, QDate::currentDate()));
        QCOMPARE(paired.size(), 2);
        const auto device = [&](int i) { return paired.at(i).at(0).value<PairedDevice>(); };
        QCOMPARE(device(0).fingerprint, SshKey::fromLine(keyA.toUtf8())->fingerprint());
        QCOMPARE(device(1).fingerprint, SshKey::fromLine(keyB.toUtf8())->fingerprint());
        QCOMPARE(device(1).name, "iPhone");
        QCOMPARE(device(1).address, "192.0.2.7");
        QCOMPARE(pairingWhenPaired, (QList<bool> { true, true }));
        QCOMPARE(phones.devices().devices().size(), 2);
        QCOMPARE(phones.lastPairedDevice(), "iPhone");
    }

    void failedInstallLeavesPairingAsItWas()
    {
        write(sshDir(), "not a directory", 0600);
        PhoneService phones(
            testsupport::environment(std::make_shared<testsupport::GuardedProcessTable>()), {});
        QSignalSpy paired(&phones, &PhoneService::paired);
        phones.togglePairingMode();
        testsupport::ConsoleCapture console;
        QVERIFY(!phones.completePairing({ keyA, "Test Phone" }));
        QVERIFY(phones.session().isPairing());
        QVERIFY(paired.isEmpty());
        QCOMPARE(console.lines(),
                 QStringList { "Failed to save key: ~/.ssh is not a directory; move it aside" });
    }
};

QUIVRA_TEST_MAIN(TestAuthorizedKeys)
#include "tst_authorizedkeys.moc"

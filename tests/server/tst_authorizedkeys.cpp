#include "platform/userdefaults.h"
#include "server/authorizedkeys.h"
#include "server/servermanager.h"
#include "testsupport.h"

#include <QDir>
#include <QSettings>

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
        const auto problem = authorizedkeys::install(QDir::homePath(), key, today);
        return problem ? std::optional(problem->text) : std::nullopt;
    }

private Q_SLOTS:
    void init()
    {
        QFile::remove(sshDir()); // a plain file or link left by a test
        QDir(sshDir()).removeRecursively();
    }

    void createsDirectoryAndFileWithPrivateModes()
    {
        QCOMPARE(entryA(), "\n# Quivra Terminal - Added on 2026-11-23\n" + keyA.toUtf8() + "\n");
        QCOMPARE(install(keyA).value_or("ok"), "ok");
        QCOMPARE(modeOf(sshDir()), 0700);
        QCOMPARE(modeOf(keysFile()), 0600);
        QCOMPARE(contents(keysFile()), entryA());
    }

    void appendsToExistingFileKeepingItsModeAndContent()
    {
        QVERIFY(QDir().mkpath(sshDir()));
        const QByteArray existing = "ssh-rsa AAAAB3NzaC1yc2E old@laptop"; // no final newline
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

    void acceptedPairingInstallsKeyAndEndsPairing()
    {
        QSettings(QStringLiteral("Quivra"), QStringLiteral("QuivraMac")).clear();
        userdefaults::setValue(QStringLiteral("autoStartServer"), false);
        ServerManager manager(
            testsupport::environment(std::make_shared<testsupport::GuardedProcessTable>()));
        QVERIFY(!manager.pairingListener()); // no pairing while the server is stopped
        manager.startServer();
        QVERIFY(manager.pairingListener() && manager.pairingListener()->isListening());
        manager.togglePairingMode();

        // What the request protocol does for an accepted request.
        PairingListener *listener = manager.pairingListener();
        QVERIFY(listener->onKeyReceived(keyA));
        listener->onPairingSuccess({ keyA, "Test Phone" });

        QCOMPARE(contents(keysFile()), authorizedkeys::entry(keyA, QDate::currentDate()));
        QVERIFY(!manager.isPairing());
        QVERIFY(!manager.pairingListener());
        QCOMPARE(manager.lastPairedDevice(), "Test Phone");
        QVERIFY(manager.logs().endsWith("[QuivraMac] Pairing successful - key added\n"
                                        "[QuivraMac] Paired with Test Phone\n"));
        manager.stopServer();
    }

    void failedInstallLeavesPairingAsItWas()
    {
        QSettings(QStringLiteral("Quivra"), QStringLiteral("QuivraMac")).clear();
        userdefaults::setValue(QStringLiteral("autoStartServer"), false);
        write(sshDir(), "not a directory", 0600);
        ServerManager manager(
            testsupport::environment(std::make_shared<testsupport::GuardedProcessTable>()));
        manager.startServer();
        manager.togglePairingMode();
        testsupport::ConsoleCapture console;
        QVERIFY(!manager.pairingListener()->onKeyReceived(keyA));
        QVERIFY(manager.isPairing());
        QVERIFY(manager.pairingListener());
        QCOMPARE(console.lines(),
                 QStringList { "Not installing key: ~/.ssh is not a directory; move it aside" });
        QVERIFY(manager.logs().endsWith(
            "[QuivraMac] Not installing key: ~/.ssh is not a directory; move it aside\n"));
        manager.stopServer();
    }
};

QUIVRA_TEST_MAIN(TestAuthorizedKeys)
#include "tst_authorizedkeys.moc"

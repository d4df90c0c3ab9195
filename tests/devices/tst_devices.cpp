#include "devices/sshkey.h"
#include "testsupport.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

// The lines, each with `end`.
QByteArray text(const QByteArrayList &lines, const QByteArray &end = "\n")
{
    return lines.join(end) + end;
}

void writeFile(const QString &path, const QByteArray &bytes, int mode = 0600)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(bytes), bytes.size());
    QCOMPARE(::chmod(QFile::encodeName(path).constData(), mode_t(mode)), 0);
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

} // namespace

class TestDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
            "# " + pub[1]
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
        QCOMPARE(ours.size(), 3);
        QCOMPARE(SshKey::fromLine(lines[4])->comment, "me@laptop more");
    }
};

QUIVRA_TEST_MAIN(TestDevices)
#include "tst_devices.moc"

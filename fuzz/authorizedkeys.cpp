// Reading authorized_keys and the revoke's rewrite of it: any content, any key named. A revoke
// takes out the lines that hold the named key, the app's comment directly above each and the
// newline the app's entry began with, and leaves every other byte as it was; the file on disk
// ends up with exactly that.
#include "devices/authorizedkeysfile.h"
#include "devices/authorizedkeysrewrite.h"
#include "fuzzsupport.h"

#include <QDir>
#include <QFile>

using fuzzsupport::fail;

namespace {

bool holdsKey(QByteArrayView line, const QString &fingerprint)
{
    const std::optional<SshKey> key = SshKey::fromLine(line);
    return key && key->fingerprint() == fingerprint;
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    fuzzsupport::initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray content = fuzzsupport::bytes(data, size);
    const QList<authorizedkeysfile::Line> lines = authorizedkeysfile::lines(content);
    QByteArray joined;
    QStringList fingerprints;
    for (const authorizedkeysfile::Line &line : lines) {
        joined += content.mid(line.begin, line.end - line.begin);
        if (line.key)
            fingerprints.append(line.key->fingerprint());
    }
    if (joined != content)
        fail("lines that do not make up the content", content);

    // The first byte picks the key to revoke, or one that is not there.
    const qsizetype pick = content.isEmpty() ? 0 : uchar(content[0]) % (fingerprints.size() + 1);
    const QString fingerprint = pick < fingerprints.size()
        ? fingerprints[pick]
        : QStringLiteral("SHA256:47DEQpj8HBSa+/TImW+5JCeuQeRkm5NMpJWZG3hSuFU");
    int removed = 0;
    const QByteArray kept = authorizedkeysfile::withoutKey(content, fingerprint, &removed);

    // What is kept is the content less exactly the lines that hold the key, the app's comment
    // directly above each (as the reader marks it with its date) and the newline that entry began
    // with: a lone "\n" line above the comment, or else the line end of the line above when
    // nothing is kept after it. Every other byte stays, in order.
    const auto text = [&](qsizetype i) {
        return QByteArrayView(content).sliced(lines[i].begin, lines[i].end - lines[i].begin);
    };
    const auto entryAt = [&](qsizetype comment) {
        return comment >= 0 && comment + 1 < lines.size() && !lines[comment + 1].addedOn.isEmpty()
            && holdsKey(text(comment + 1), fingerprint);
    };
    QByteArray expected;
    bool lastCompleted = false; // the last line kept had its line end from an entry
    int keyLines = 0;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!lines[i].addedOn.isEmpty()) {
            const QString comment = "# Quivra Terminal - Added on " + lines[i].addedOn;
            if (i == 0 || !QString::fromUtf8(text(i - 1)).startsWith(comment))
                fail("a date read from a line that is not the app's comment above", content);
        }
        if (holdsKey(text(i), fingerprint)) {
            ++keyLines;
            continue;
        }
        if (entryAt(i) || (text(i) == "\n" && entryAt(i + 1)))
            continue;
        expected += text(i);
        lastCompleted = entryAt(i + 1);
    }
    if (lastCompleted)
        expected.chop(1);
    if (kept != expected || removed != keyLines)
        fail("revoke changed more than the key's entries", kept);
    for (const authorizedkeysfile::Line &line : authorizedkeysfile::lines(kept)) {
        if (line.key && line.key->fingerprint() == fingerprint)
            fail("revoke left the key in place", kept);
    }

    // The same on disk, through the rewrite, where there is a key to take out: writing and
    // syncing the file costs more than all the rest.
    if (!removed)
        return 0;
    const QString path = QDir::homePath() + QStringLiteral("/.ssh/authorized_keys");
    QDir().mkpath(QDir::homePath() + QStringLiteral("/.ssh"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        || file.write(content) != content.size())
        fail("cannot write the test file");
    file.close();
    const RewriteResult result = authorizedkeysrewrite::removeKey(path, fingerprint);
    if (result.kind != RewriteResult::Kind::Removed || result.removed != removed)
        fail("the rewrite's result disagrees", result.message.toUtf8());
    if (readFile(path) != kept)
        fail("the rewritten file is not the content less the key's lines", readFile(path));
    return 0;
}

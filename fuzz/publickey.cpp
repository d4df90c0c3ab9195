// The two readers of a public key: the listener's check of what a phone sends and the key reader
// that lists and revokes the keys in authorized_keys. Neither may crash on any line, and a key
// the listener accepts must be one the devices list shows under its type and revoke removes, so
// that no paired phone is left out of sight.
#include "pairing/publickey.h"

#include "devices/authorizedkeysfile.h"
#include "devices/sshkey.h"
#include "fuzzsupport.h"
#include "server/authorizedkeys.h"

#include <QDate>

using fuzzsupport::fail;

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    fuzzsupport::initialize(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = fuzzsupport::bytes(data, size);

    if (const std::optional<SshKey> read = SshKey::fromLine(input)) {
        if (!read->fingerprint().startsWith(QLatin1String("SHA256:"))
            || read->fingerprint().size() != 50)
            fail("a fingerprint not of SHA-256's form", input);
        // Written back plainly, the key reads the same.
        const QByteArray plain = read->type.toLatin1() + ' ' + read->blob.toBase64();
        const std::optional<SshKey> again = SshKey::fromLine(plain);
        if (!again || again->type != read->type || again->blob != read->blob)
            fail("a key that does not read back the same", plain);
    }

    const QString key = QString::fromUtf8(input);
    if (!publickey::isAcceptable(key))
        return 0;
    if (key.contains(u'\n') || key.contains(u'\r'))
        fail("an accepted key of more than one line", input);
    const std::optional<SshKey> listed = SshKey::fromLine(key.toUtf8());
    const QString type = key.section(u' ', 0, 0);
    const QByteArray base64 = key.section(u' ', 1, 1).toLatin1();
    if (!listed || listed->type != type || listed->blob != QByteArray::fromBase64(base64))
        fail("an accepted key the key reader does not read as the same key", input);

    // Installed, it is listed with its date; revoked, its entry goes whole, the newline it
    // began with included.
    const QByteArray entry = authorizedkeys::entry(key, QDate(2026, 1, 2));
    const QList<authorizedkeysfile::Line> lines = authorizedkeysfile::lines(entry);
    if (lines.size() != 3 || !lines[2].key || lines[2].addedOn != QLatin1String("2026-01-02"))
        fail("an installed key not listed with its date", entry);
    int removed = 0;
    if (!authorizedkeysfile::withoutKey(entry, listed->fingerprint(), &removed).isEmpty()
        || removed != 1)
        fail("an installed key that revoke does not take out whole", entry);
    return 0;
}

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

// The public key one line of authorized_keys (or a .pub file, or a phone's request) holds. The
// app's one reader of key lines: what it installs, lists, revokes and finds already installed.
struct SshKey
{
    // The RSA moduli sshd accepts.
    static constexpr int rsaMinimumBits = 1024;
    static constexpr int rsaMaximumBits = 16384;

    QString type; // "ssh-ed25519", "ssh-rsa", ...
    QByteArray blob; // the decoded base64: what sshd compares
    QString comment;
    QByteArray options {}; // as written before the key, such as command="..."; empty when none

    // "SHA256:" and the unpadded base64 of the blob's SHA-256, as `ssh-keygen -lf` prints it.
    QString fingerprint() const;

    // "[options ]type base64[ comment]", with a CR LF or LF line end or none. Nothing for
    // comments, blank lines and anything else that sshd would not take for a key, such as an
    // RSA key of more than rsaMaximumBits. As with sshd, a line that is no key as it stands is
    // read again after its first word, as options.
    static std::optional<SshKey> fromLine(QByteArrayView line);
};

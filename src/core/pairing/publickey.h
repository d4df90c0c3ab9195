#pragma once

#include <QString>

namespace publickey {

// One line "<type> <base64> [comment]" of an Ed25519 key or an RSA key of 2048 to 16384 bits,
// as SshKey reads it, with no options, whose blob is a well-formed key of that type, with a short
// printable comment. Nothing else may reach authorized_keys, where options such as command="..."
// would change what the key allows.
bool isAcceptable(const QString &key);

// The key line with its comment's format characters (text direction, zero-width, byte-order
// marks) and line and paragraph separators dropped: a comment that could pass for another's, or
// break the line for a reader that splits there, is stored without them.
QString withPlainComment(const QString &key);

} // namespace publickey

#pragma once

#include <QString>

#include <optional>

// What the system check's Fix does for ~/.ssh: what pairing would do anyway, done before a phone
// comes, so that the first run can be finished in the app.
namespace sshrepair {

// Creates ~/.ssh (0700) when it is missing, and sets ~/.ssh to 0700 and an existing
// ~/.ssh/authorized_keys to 0600 when their modes differ. Never through a link and never on
// anything this user does not own: such a case is left as it is and named in the reason.
// Returns why it could not, or nothing when all is in order.
std::optional<QString> repair(const QString &home);

} // namespace sshrepair

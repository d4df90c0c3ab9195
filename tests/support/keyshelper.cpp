#include "devices/authorizedkeysrewrite.h"
#include "server/authorizedkeys.h"

#include <cstdio>
#include <cstring>

// The changes to authorized_keys, in a process of their own, for tests that kill one at any
// moment or run it where the test cannot go (a mount namespace).
//   keyshelper revoke PATH FINGERPRINT   "ready" once loaded, then the rewrite; 0 when removed
//   keyshelper install HOME KEY          0 when stored, else 1 and why on standard output
int main(int argc, char *argv[])
{
    if (argc != 4)
        return 2;
    if (std::strcmp(argv[1], "revoke") == 0) {
        // The kills aim at the rewrite, not at the start-up.
        std::puts("ready");
        std::fflush(stdout);
        const RewriteResult result = authorizedkeysrewrite::removeKey(
            QString::fromLocal8Bit(argv[2]), QString::fromLatin1(argv[3]));
        return result.kind == RewriteResult::Kind::Removed ? 0 : 1;
    }
    if (std::strcmp(argv[1], "install") == 0) {
        const auto error = authorizedkeys::install(QString::fromLocal8Bit(argv[2]),
                                                   QString::fromUtf8(argv[3]), QDate(2026, 1, 2));
        if (error)
            std::puts(error->toUtf8().constData());
        return error ? 1 : 0;
    }
    return 2;
}

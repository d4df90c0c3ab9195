#include "devices/authorizedkeysrewrite.h"

#include <cstdio>

// Removes the key with fingerprint argv[2] from the authorized_keys file argv[1], so that
// tst_devices can kill a rewrite at any moment. "ready" says that loading is over and the rewrite
// begins: the kills aim at the rewrite, not at the start-up.
int main(int argc, char *argv[])
{
    if (argc != 3)
        return 2;
    std::puts("ready");
    std::fflush(stdout);
    const RewriteResult result = authorizedkeysrewrite::removeKey(QString::fromLocal8Bit(argv[1]),
                                                                  QString::fromLatin1(argv[2]));
    return result.kind == RewriteResult::Kind::Removed ? 0 : 1;
}

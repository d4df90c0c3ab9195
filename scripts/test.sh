#!/usr/bin/env bash
# Sets up, builds with warnings as errors and runs the whole test suite (the views' lint
# included), checks the formatting, then runs the handling of network input, the listener and
# the server supervision once more under AddressSanitizer and UndefinedBehaviorSanitizer with a
# longer fuzzing run.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh -DQUIVRA_WERROR=ON

echo "== formatting (clang-format, .clang-format)"
find src tests bench -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run -Werror

ctest --test-dir build --output-on-failure --parallel 2 "$@"

sanitized=(tst_requestfuzz tst_requestparsing tst_statusjson tst_records tst_pairinglistener
           tst_pairingsafety tst_servermanager)
cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DQUIVRA_SANITIZE=ON \
    -DQUIVRA_WERROR=ON >/dev/null
cmake --build build-sanitize --target "${sanitized[@]}"
QUIVRA_FUZZ_ITERATIONS=4000 ctest --test-dir build-sanitize --output-on-failure \
    -R "^($(IFS='|'; echo "${sanitized[*]}"))\$"

#!/usr/bin/env bash
# Sets up, builds and runs the whole test suite, then runs the handling of network input once
# more under AddressSanitizer and UndefinedBehaviorSanitizer with a longer fuzzing run.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
ctest --test-dir build --output-on-failure --parallel 2 "$@"

sanitized=(tst_requestfuzz tst_requestparsing tst_statusjson tst_records)
cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DQUIVRA_SANITIZE=ON >/dev/null
cmake --build build-sanitize --target "${sanitized[@]}"
QUIVRA_FUZZ_ITERATIONS=4000 ctest --test-dir build-sanitize --output-on-failure \
    -R "^($(IFS='|'; echo "${sanitized[*]}"))\$"

#!/usr/bin/env bash
# Sets up, builds with warnings as errors and runs the whole test suite (the views' lint
# included), checks the formatting, then runs the handling of network input, the listener and
# the server supervision once more under AddressSanitizer and UndefinedBehaviorSanitizer, and
# every parser of network and file input under libFuzzer for a bounded time.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh -DQUIVRA_WERROR=ON

echo "== formatting (clang-format, .clang-format)"
find src tests bench fuzz -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run -Werror

ctest --test-dir build --output-on-failure --parallel 2 "$@"

# Under AddressSanitizer and UndefinedBehaviorSanitizer: the network-facing and supervision tests,
# then every parser of network and file input under the coverage-guided fuzzer, which fails the
# run on any finding. One clang tree holds both: its libraries carry the fuzzer's coverage, which
# the tests do not mind.
echo "== sanitizers and fuzzing (clang, build-fuzz/)"
sanitized=(tst_requestfuzz tst_requestparsing tst_statusjson tst_records tst_pairinglistener
           tst_pairingsafety tst_servermanager)
fuzz_targets=(fuzz_request fuzz_publickey fuzz_authorizedkeys fuzz_records)
cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ \
    -DCMAKE_CXX_FLAGS_DEBUG="-g -O1" -DQUIVRA_FUZZ=ON -DQUIVRA_WERROR=ON >/dev/null
cmake --build build-fuzz --target "${sanitized[@]}" "${fuzz_targets[@]}"
ctest --test-dir build-fuzz --output-on-failure --parallel 2 \
    -R "^($(IFS='|'; echo "${sanitized[*]}")|fuzz_.*_corpus)\$"
scripts/fuzz.sh build-fuzz "${QUIVRA_FUZZ_SECONDS:-20}"

#!/usr/bin/env bash
# Builds the threads test under ThreadSanitizer and runs it; a report fails it.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
build_dir=${BUILD_DIR:-build-tsan}
cmake -S . -B "$build_dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKAZPARSER_WERROR=ON \
    -DKAZPARSER_TSAN=ON >/dev/null
cmake --build "$build_dir" -j"$(nproc)" --target kazparser_threads_test
TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1 KAZ_TEST_DATA="$PWD" \
    "$build_dir/tests/parser.api/kazparser_threads_test"

#!/usr/bin/env bash
# Builds the library and its tests and runs them.
# BUILD_DIR (default build) and KAZPARSER_SANITIZE=ON|OFF select the build.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
build_dir=${BUILD_DIR:-build}
cmake -S . -B "$build_dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKAZPARSER_WERROR=ON \
    -DKAZPARSER_SANITIZE="${KAZPARSER_SANITIZE:-OFF}" >/dev/null
cmake --build "$build_dir" -j"$(nproc)"
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
ctest --test-dir "$build_dir" --output-on-failure -j"$(nproc)"
[ "${KAZPARSER_SANITIZE:-OFF}" = ON ] || BUILD_DIR="$build_dir" ./scripts/test-install.sh

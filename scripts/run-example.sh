#!/usr/bin/env bash
# Installs what is missing, builds, and reads a shipped configuration:
# prints its node tree and the XML text it writes back.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target kazparse
KAZ_ROOT_DIRECTORY="$PWD/examples" ./build/tools/kazparse "${1:-examples/label-presentation.xml}"

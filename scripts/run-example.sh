#!/usr/bin/env bash
# Installs what is missing, builds, and reads a shipped configuration:
# checks it, prints its node tree and the XML text it writes back.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j"$(nproc)" --target kazcfg
file=${1:-examples/label-presentation.xml}
./build/tools/kazcfg check "$file"
./build/tools/kazcfg tree "$file"
./build/tools/kazcfg format --pretty "$file"

#!/usr/bin/env bash
# Fails when a C++ file differs from what clang-format makes of it.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/install-deps.sh
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror

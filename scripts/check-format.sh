#!/usr/bin/env bash
# Fails when a C++ file differs from what clang-format makes of it.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v clang-format >/dev/null || { echo "clang-format not installed; format not checked"; exit 0; }
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror

#!/usr/bin/env bash
# Installs a build into a scratch prefix and builds a program against it,
# once through the CMake package and once through pkg-config.
set -euo pipefail
cd "$(dirname "$0")/.."
build_dir=${BUILD_DIR:-build}
prefix="$PWD/$build_dir/install-root"
rm -rf "$prefix" "$build_dir/consumer"
cmake --install "$build_dir" --prefix "$prefix" >/dev/null
# The installed tool starts from the prefix without help from the loader's path.
env -u LD_LIBRARY_PATH "$prefix/bin/kazcfg" check examples/label-presentation.xml >/dev/null
cmake -S tests/install -B "$build_dir/consumer" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$build_dir/consumer" >/dev/null
LD_LIBRARY_PATH="$prefix/lib" "$build_dir/consumer/consumer"
export PKG_CONFIG_PATH="$prefix/lib/pkgconfig"
# shellcheck disable=SC2046
c++ tests/install/consumer.cpp -o "$build_dir/consumer/consumer-pc" $(pkg-config --cflags --libs kazparser)
LD_LIBRARY_PATH="$prefix/lib" "$build_dir/consumer/consumer-pc"

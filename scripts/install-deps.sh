#!/usr/bin/env bash
# Installs the Debian packages the build needs, and any named as arguments,
# only those that are missing.
set -euo pipefail
packages=(g++ cmake make pkg-config libxml2-dev libgtest-dev libgmock-dev libbenchmark-dev clang-format
    libcli11-dev nlohmann-json3-dev "$@")
missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" ||
        missing+=("$package")
done
if ((${#missing[@]})); then
    sudo_cmd=()
    [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
    "${sudo_cmd[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${sudo_cmd[@]}" apt-get install -y -qq "${missing[@]}"
fi

#!/usr/bin/env bash
# Installs what the 64-bit Arm build needs, when it is missing: the arm64
# architecture, Debian's cross compiler, the arm64 cJSON and GoogleTest, and
# qemu-user to run the Arm test suite on this machine.
set -euo pipefail

bash "$(dirname "$0")/setup.sh"

if ! dpkg --print-foreign-architectures | grep -qx arm64; then
    echo "setup-arm64: adding the arm64 architecture"
    dpkg --add-architecture arm64
    updated=no
else
    updated=yes
fi

packages=(crossbuild-essential-arm64 libcjson-dev:arm64 libcjson1:arm64 libgtest-dev:arm64 qemu-user)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ] || [ "$updated" = no ]; then
    echo "setup-arm64: installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

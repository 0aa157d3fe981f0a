#!/usr/bin/env bash
# Installs what building, testing and benchmarking need, when it is missing.
# Quick when everything is there: it asks dpkg first and calls apt-get only
# for missing packages.
set -euo pipefail
# Set-up chatter goes to stderr: the documents a script prints stay alone on
# stdout.
exec 1>&2

packages=(cmake make g++ gcc binutils pkg-config libcjson-dev libgtest-dev libbenchmark-dev python3 python3-jsonschema gcovr clang libclang-rt-dev libmicrohttpd-dev libgnutls28-dev wrk openssl curl python3-requests systemd)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "setup: installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

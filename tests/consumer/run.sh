#!/usr/bin/env bash
# Installs a build into a temporary prefix and builds two small C programs
# against that installation, one through pkg-config and one through CMake's
# find_package, then runs both.   run.sh BUILD_DIR
set -euo pipefail
build=$1
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix

cmake --install "$build" --prefix "$prefix" >/dev/null
libdir=$(dirname "$(find "$prefix" -name 'libmiddleware.so' | head -n1)")
test -f "$prefix/include/middleware.h"
readelf -d "$libdir/libmiddleware.so" | grep -q 'SONAME.*libmiddleware.so.1'

echo "-- pkg-config"
export PKG_CONFIG_PATH=$libdir/pkgconfig
cc -std=c11 -Wall -Wextra -Werror "$here/consumer.c" $(pkg-config --cflags --libs middleware middleware-platform) \
   -o "$work/pkgconfig-consumer"
LD_LIBRARY_PATH=$libdir "$work/pkgconfig-consumer"

echo "-- find_package"
cmake -S "$here" -B "$work/cmake-build" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake-build" >/dev/null
"$work/cmake-build/consumer"

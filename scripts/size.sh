#!/usr/bin/env bash
# The camera's shared object built for size: its text and data on x86-64 and
# on 64-bit Arm, and what takes the room, by page and by archive.
#
#   bash scripts/size.sh            report
#   bash scripts/size.sh --check    report, and fail when a text passes its
#                                   ceiling in bench/size_budget.txt
# MW_SKIP_ARM64=1 leaves out the Arm build.
set -euo pipefail
cd "$(dirname "$0")/.."
check=0
[ "${1:-}" = --check ] && check=1
bash scripts/setup.sh
arches=(x86_64)
if [ "${MW_SKIP_ARM64:-0}" != 1 ]; then
    bash scripts/setup-arm64.sh
    arches+=(aarch64)
fi

failed=0
for arch in "${arches[@]}"; do
    dir=build-size-$arch
    options=(-DCMAKE_BUILD_TYPE=MinSizeRel -DMW_TESTS=OFF)
    nm=nm
    if [ "$arch" = aarch64 ]; then
        options+=(-DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/aarch64-linux-gnu.cmake")
        nm=aarch64-linux-gnu-nm
    fi
    cmake -S . -B "$dir" "${options[@]}" >/dev/null
    cmake --build "$dir" -j"$(nproc)" --target middleware >/dev/null
    lib=$(readlink -f "$dir/libmiddleware.so.1")
    read -r text data _ < <(size "$lib" | tail -n 1)
    ceiling=$(awk -v a="$arch" '$1 == a { print $2 }' bench/size_budget.txt)
    echo "== libmiddleware.so.1 on $arch: text $text bytes, data $data bytes (ceiling $ceiling)"
    "$nm" -S -C "$lib" | python3 scripts/size_report.py
    if [ "$check" = 1 ] && [ "$text" -gt "$ceiling" ]; then
        echo "size: the text on $arch ($text bytes) passes its ceiling of $ceiling bytes" >&2
        failed=1
    fi
done
exit "$failed"

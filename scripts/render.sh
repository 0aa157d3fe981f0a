#!/usr/bin/env bash
# The main job: builds the library and its tool, then renders sample documents.
#   scripts/render.sh            every document of the catalog
#   scripts/render.sh --list     what there is
#   scripts/render.sh NAME...    the named documents
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
bash scripts/build.sh build -DMW_TESTS=OFF >/dev/null
if [ $# -eq 0 ]; then set -- --all; fi
exec ./build/mw-render "$@"

#!/usr/bin/env bash
# Installs what the OpenAPI contract checks need, when it is missing: Node.js
# with npm (Debian's), and the tools pinned by tests/contract/package-lock.json
# (Redocly CLI, Spectral, Prism, openapi-typescript, openapi-fetch,
# TypeScript). No install script of theirs runs and nothing else is fetched.
set -euo pipefail
exec 1>&2
cd "$(dirname "$0")/.."
missing=()
command -v node >/dev/null || missing+=(nodejs)
command -v npm >/dev/null || missing+=(npm)
if [ ${#missing[@]} -gt 0 ]; then
    echo "setup: installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
# The pinned tools need Node.js 20.19 or later (Redocly CLI's floor).
if ! node -e 'const [a, b] = process.versions.node.split(".").map(Number); process.exit(a > 20 || (a === 20 && b >= 19) ? 0 : 1)'; then
    echo "setup: the contract checks need Node.js 20.19 or later, this is $(node --version)"
    exit 1
fi
# Installed again when the lock file is newer than the installed tree.
stamp=tests/contract/node_modules/.package-lock.json
if [ ! -f "$stamp" ] || [ tests/contract/package-lock.json -nt "$stamp" ]; then
    (cd tests/contract && SCARF_ANALYTICS=false npm ci --no-audit --no-fund --ignore-scripts)
fi

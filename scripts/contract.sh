#!/usr/bin/env bash
# The OpenAPI document checked by tools this project did not write:
#   scripts/contract.sh BUILD_DIR      (BUILD_DIR holds mw-render and mw-device)
# 1. Redocly CLI (recommended rules) and Spectral (spectral:oas): no errors.
# 2. openapi-typescript generates the TypeScript types; tsc --strict compiles them.
# 3. A client typed by them (openapi-fetch) reads, edits and posts a page of
#    the simulator and handles a refusal by its key path.
# 4. Prism's validating proxy in front of the simulator: every page's GET, a
#    POST of every settable page's own document, every schema route, with no
#    violation; altered replies are caught.
# Installs the pinned tools first (scripts/setup-contract.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(cd "${1:?usage: scripts/contract.sh BUILD_DIR}" && pwd)
bash scripts/setup-contract.sh
export REDOCLY_TELEMETRY=off REDOCLY_SUPPRESS_UPDATE_NOTICE=true SCARF_ANALYTICS=false NO_UPDATE_NOTIFIER=1
out="$build/contract"
mkdir -p "$out"
"$build/mw-render" --openapi > "$out/openapi.json"
cd tests/contract
bin=node_modules/.bin
started=$SECONDS

echo "== contract: Redocly lint (recommended)"
"$bin/redocly" lint "$out/openapi.json" --config redocly.yaml --format summary
echo "== contract: Spectral lint (spectral:oas)"
"$bin/spectral" lint "$out/openapi.json" --ruleset oas-rules.yaml --fail-severity error --display-only-failures \
    --format text

echo "== contract: TypeScript types (openapi-typescript, tsc --strict)"
mkdir -p generated
rm -f generated/api.d.ts
"$bin/openapi-typescript" "$out/openapi.json" --output generated/api.d.ts >&2
"$bin/tsc" -p tsconfig.types.json
"$bin/tsc" -p tsconfig.json
echo "== contract: the browser page's script against the types (tsc --noEmit --checkJs)"
"$bin/tsc" -p tsconfig.webapp.json

echo "== contract: typed client (openapi-fetch) against mw-device"
node out/client.mjs "$build/mw-device"

echo "== contract: Prism validating proxy in front of mw-device"
node prism_check.mjs "$build/mw-device" "$out/openapi.json"
echo "== contract: done in $((SECONDS - started)) s"

#!/usr/bin/env bash
# Installs what the browser test needs, when it is missing: Debian's Chromium,
# Node.js with npm, and puppeteer-core at the version the committed lock file
# pins (no browser is downloaded: the test drives /usr/bin/chromium).
set -euo pipefail
exec 1>&2
cd "$(dirname "$0")/.."
missing=()
[ -x /usr/bin/chromium ] || missing+=(chromium)
command -v node >/dev/null || missing+=(nodejs)
command -v npm >/dev/null || missing+=(npm)
if [ ${#missing[@]} -gt 0 ]; then
    echo "setup: installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
if [ ! -d tests/browser/node_modules/puppeteer-core ]; then
    (cd tests/browser && PUPPETEER_SKIP_DOWNLOAD=1 npm ci --no-audit --no-fund)
fi

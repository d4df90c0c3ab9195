#!/usr/bin/env bash
# Sets up, builds and runs QuivraMac.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh --app
exec build/src/main/quivramac "$@"

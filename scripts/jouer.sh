#!/usr/bin/env bash
# Installs what is missing, builds, and starts the game.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
"$racine/scripts/preparer.sh" "$racine/build"
exec "$racine/build/troisniveaux"

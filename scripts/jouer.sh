#!/usr/bin/env bash
# Installs what is missing, builds, and starts the game.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
# scripts/tester.sh configures the same build/ with warnings as errors and a
# /usr install: the player's build goes back to the defaults.
"$racine/scripts/preparer.sh" "$racine/build" -DTN_WERROR=OFF -DTN_SANITIZE=OFF \
  -DCMAKE_INSTALL_PREFIX=/usr/local -DCMAKE_INSTALL_BINDIR=bin
exec "$racine/build/troisniveaux"

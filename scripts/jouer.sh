#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Installs what is missing, builds, and starts the game.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
# scripts/tester.sh configures the same build/ with warnings as errors and a
# /usr install: the player's build goes back to the defaults (the binary
# folder is worked out again for its prefix).
"$racine/scripts/preparer.sh" "$racine/build" -DTN_WERROR=OFF -DTN_SANITIZE=OFF \
  -DCMAKE_INSTALL_PREFIX=/usr/local -UCMAKE_INSTALL_BINDIR
exec "$racine/build/troisniveaux"

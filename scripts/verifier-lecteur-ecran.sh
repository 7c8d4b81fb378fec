#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# A deal played by a screen reader's means alone: the game on a virtual X
# screen, on a private session bus with its own accessibility bus, driven by
# tests/lecteur/partie.py. The game runs from a copy in a temporary folder,
# so no file of the build or of the user is touched.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
construction=${1:-$racine/build}
dossier=$(mktemp -d)
trap 'rm -rf "$dossier"' EXIT
cp "$construction/troisniveaux" "$construction/Noms" "$construction/Scores" "$construction"/*.htm \
  "$dossier/"
mkdir "$dossier/maison"
# A time of the last deal, so that the clock counts and can be heard (or not).
printf '40\r\n' >"$dossier/Temps2"

# A display number of its own: other checks may be starting their screens at
# the same moment from :99.
timeout 120 xvfb-run -a -n $((100 + RANDOM % 800)) -s "-screen 0 1280x1024x24" dbus-run-session -- bash -c '
  /usr/libexec/at-spi-bus-launcher --launch-immediately 2>/dev/null &
  lanceur=$!
  code=0
  /usr/bin/python3 "$1" "$2" || code=$?
  kill "$lanceur" 2>/dev/null || true
  exit "$code"' _ "$racine/tests/lecteur/partie.py" "$dossier"
echo "Lecteur d'écran : une donne jouée et suivie par le bus d'accessibilité."

#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# The opt-in build with Qt WebEngine (full web pages in the two panels):
# installs the engine's development package, builds, and runs the window
# tests and a whole game in build-web/.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
export TN_PAQUETS_EN_PLUS=paquets-webengine.txt
"$racine/scripts/preparer.sh" "$racine/build-web" -DTN_WERROR=ON -DTN_WEBENGINE=ON -DTN_BENCH=OFF
grep -q '^TN_WEBENGINE:BOOL=ON' "$racine/build-web/CMakeCache.txt"
# The option alone proves nothing: without the engine's package the build
# falls back to the rich-text view. The game must really link Qt WebEngine.
liens=$(readelf -d "$racine/build-web/troisniveaux")
if ! grep -q 'NEEDED.*libQt6WebEngineWidgets' <<<"$liens"; then
  echo "build-web/troisniveaux n'est pas lié à Qt WebEngine : Qt6WebEngineWidgets n'a pas été trouvé." >&2
  exit 1
fi
(cd "$racine/build-web" && ctest --output-on-failure --timeout 600 -R '^(Fenêtre|PagesWeb|Partie)')

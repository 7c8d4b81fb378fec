#!/usr/bin/env bash
# Installs what is missing, builds with warnings as errors and runs every
# test; then runs them again in a build with AddressSanitizer and
# UndefinedBehaviorSanitizer. A build without the web engine runs the
# window tests too.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)

"$racine/scripts/preparer.sh" "$racine/build" -DTN_WERROR=ON
(cd "$racine/build" && ctest --output-on-failure --timeout 600)

# The game without the web engine builds and plays the same.
"$racine/scripts/preparer.sh" "$racine/build-sans-web" -DTN_WERROR=ON -DTN_WEBENGINE=OFF -DTN_BENCH=OFF
(cd "$racine/build-sans-web" && ctest --output-on-failure --timeout 600 -R '^(Fenêtre|PagesWeb|Partie)')

"$racine/scripts/preparer.sh" "$racine/build-asan" -DTN_WERROR=ON -DTN_SANITIZE=ON -DTN_BENCH=OFF
(cd "$racine/build-asan" && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
   ctest --output-on-failure --timeout 900)

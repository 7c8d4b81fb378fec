#!/usr/bin/env bash
# Installs what is missing, builds with warnings as errors and runs every
# test; then runs them again in a build with AddressSanitizer and
# UndefinedBehaviorSanitizer.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)

"$racine/scripts/preparer.sh" "$racine/build" -DTN_WERROR=ON
(cd "$racine/build" && ctest --output-on-failure --timeout 600)

"$racine/scripts/preparer.sh" "$racine/build-asan" -DTN_WERROR=ON -DTN_SANITIZE=ON -DTN_BENCH=OFF
(cd "$racine/build-asan" && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
   ctest --output-on-failure --timeout 900)

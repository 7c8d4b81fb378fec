#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
# Installs what is missing, builds with warnings as errors and runs every
# test, the window tests once more on a virtual X screen and some on a
# Wayland compositor; checks the game as installed for every user and as a
# Debian package; then runs the tests again in a build with AddressSanitizer
# and UndefinedBehaviorSanitizer.
set -euo pipefail
racine=$(cd "$(dirname "$0")/.." && pwd)
export TN_PAQUETS_EN_PLUS=paquets-verification.txt

# Configured for /usr, as a distribution builds it, so that the same build
# is installed below (its binaries go to /usr/games with no other setting;
# a binary folder that scripts/jouer.sh left cached is forgotten).
"$racine/scripts/preparer.sh" "$racine/build" -DTN_WERROR=ON -DCMAKE_INSTALL_PREFIX=/usr \
  -UCMAKE_INSTALL_BINDIR
"$racine/scripts/verifier-format.sh"
(cd "$racine/build" && ctest --output-on-failure --timeout 600)
# The window tests once more on a virtual X screen with no window manager,
# where no window is made active by itself.
(cd "$racine/build" && xvfb-run -a -s "-screen 0 1280x1024x24" ./troisniveaux-tests-fenetre --gtest_brief=1)
"$racine/scripts/verifier-lecteur-ecran.sh" "$racine/build"
"$racine/scripts/verifier-wayland.sh" "$racine/build"

"$racine/scripts/installation.sh" "$racine/build"
"$racine/scripts/paquet-debian.sh"

"$racine/scripts/preparer.sh" "$racine/build-asan" -DTN_WERROR=ON -DTN_SANITIZE=ON -DTN_BENCH=OFF
(cd "$racine/build-asan" && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
   ctest --output-on-failure --timeout 900)

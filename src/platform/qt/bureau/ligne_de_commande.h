// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The game's command line: --langue, --help and --version, nothing else.
// Read before the application object exists, so help and version answer
// without a display.
#include <QString>
#include <optional>

// The exit status when the program is to end here (0 after --help or
// --version, 2 for anything else), or nothing when the game is to start.
std::optional<int> TraiteLigneDeCommande(int argc, const char *const argv[]);
// The language asked for by --langue, empty when none was.
QString LangueDeLaLigneDeCommande();

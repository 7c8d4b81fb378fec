#pragma once
// The game's command line: --help and --version, nothing else. Read before
// the application object exists, so both answer without a display.
#include <optional>

// The exit status when the program is to end here (0 after --help or
// --version, 2 for anything else), or nothing when the game is to start.
std::optional<int> TraiteLigneDeCommande(int argc, const char *const argv[]);

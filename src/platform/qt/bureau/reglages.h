#pragma once
// The player's preferences that are not the game's data (window size, card
// deck): one settings file per user, beside no data file.

#include <QSettings>
#include <memory>

// Under the application's name when it gives no organisation, as the game
// does: ~/.config/troisniveaux/troisniveaux.conf, not "Unknown Organization".
std::unique_ptr<QSettings> RéglagesDuJoueur();

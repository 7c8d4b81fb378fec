// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The player's preferences that are not the game's data (window size, card
// deck): one settings file per user, beside no data file.

#include <QSettings>
#include <memory>

// Under the application's name when it gives no organisation, as the game
// does: ~/.config/troisniveaux/troisniveaux.conf, not "Unknown Organization".
// The file is read and written like the data files: a pipe, a device or an
// oversized file there gives the defaults and is never replaced.
std::unique_ptr<QSettings> RéglagesDuJoueur();

// Where that file lies.
QString FichierDesRéglages();

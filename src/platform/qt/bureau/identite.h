// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// How the program names itself to the desktop, and what it does before the
// session starts.

// The program's name: its command, its data folder, its installed folder.
inline constexpr char NomDuProgramme[] = "troisniveaux";

// Names the application (data folder, desktop entry, window icon) and
// chooses the data folder. False, after telling the player why, when the
// player's data folder cannot be made: the game then does not start.
bool PrépareDémarrage();

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The game as a player starts it: the rules over Qt's platform, shown in the
// table window with its web panels. The game and the measuring program both
// start it through here, so what is measured is what is played.

#include <optional>

#include "core/table_state.h"
#include "platform/qt/fenetre/fenetre_table.h"
#include "platform/qt/fenetre/plateforme_qt.h"

// What comes before the table, once the application object exists: the
// language, the program's names, the data folder and the pages it holds.
// False, the player told why, when the game cannot start.
bool PrépareLaPartie();

class Partie {
public:
  // After the application object and PrépareLaPartie.
  Partie();
  // Loads the session and sizes the window as the player left it. Nothing
  // when the table is ready to be shown; else the exit status of a start
  // refused, already told to the player.
  std::optional<int> Démarre();

  PlateformeQt plateforme;
  TroisNiveaux table;
  FenêtreTable fenêtre;
};

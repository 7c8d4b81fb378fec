// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// Pieces that the game's sweep and the row-by-row one share.

#include <cstdint>

#include "core/table_state.h"

namespace balayage {

constexpr int TailleGroupe = 56;
constexpr int NombreGroupes = NombreRangements / TailleGroupe; // 1287

// The last seat swept: seat 3 too in DEBUTANT.
inline int DernierSiège(const TroisNiveaux &t) { return t.Mode == 0 ? 2 : 3; }

// Rows per step of 15 twips of the bar, so that it fills once over all the
// seats swept; 0 when the frame has no usable width (no steps then).
int16_t PasDeProgrès(const TroisNiveaux &t);

// Whether row i of seat `siège` moves the bar.
inline bool PasDuRang(const TroisNiveaux &t, int siège, int i) {
  return t.PasProgrès > 0 && (siège * NombreRangements + i) % t.PasProgrès == 0;
}

// Steps 2 to 7 of one row of the sweep of seat t.Joueur, as written: level 1
// is valued (after a turn of the event loop, if `tour`) only at a group's
// first row, levels 2 and 3 at every row, then the order test and the marks.
void LigneLittérale(TroisNiveaux &t, int i, bool tour);

// Raises BalayageEnCours for as long as a sweep is on the stack.
class Garde {
public:
  explicit Garde(TroisNiveaux &t) : t(t), avant(t.BalayageEnCours) { t.BalayageEnCours = true; }
  ~Garde() { t.BalayageEnCours = avant; }
  Garde(const Garde &) = delete;
  Garde &operator=(const Garde &) = delete;

private:
  TroisNiveaux &t;
  bool avant;
};

} // namespace balayage

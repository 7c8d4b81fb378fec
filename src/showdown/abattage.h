// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The stages of one showdown, in the order AfficheRésultat runs them. They
// share the values that count in this run; nothing outside the showdown
// reads them.

#include "core/table_state.h"

namespace abattage {

// The three levels of each seat as they count in this run.
struct ValeursJoueurs {
  double ValeurJoueur1[4] = {};
  double ValeurJoueur2[4] = {};
  float ValeurJoueur3[4] = {};
};

// The special values: a seat that holds one has it on all three levels.
constexpr int ValeurMégaQuinte = 2500;
constexpr int ValeurSixPaires = 2400;
constexpr int ValeurToutFlush = 2300;
constexpr int ValeurToutQuinte = 2200;

// The opponent at position 0..2 of a seat's row, the others in seat order.
inline int Adversaire(int siège, int position) {
  return position < siège ? position : position + 1;
}

// The values of the deal for this run, with the computer's solution taken
// over for a human who missed a special hand, and the human's own layout
// counting while the real showdown is on the table.
ValeursJoueurs CopieDeTravail(TroisNiveaux &t);
// The four special hands, then the validity of the human's levels.
void MainsSpéciales(TroisNiveaux &t, ValeursJoueurs &v);
void Validité(TroisNiveaux &t, ValeursJoueurs &v);

// The eighteen comparisons, the three grids and the 36 LabelPaie.
void Paie(TroisNiveaux &t, const ValeursJoueurs &v);
// The number that LabelPaie(i) carries.
int Paiement(const TroisNiveaux &t, int i);

// TotauxDonne, TotalLabel, Scores and ScoreLabel.
void Totalise(TroisNiveaux &t);

// The whole table face up, on the first run of a deal.
void MontreTable(TroisNiveaux &t, const ValeursJoueurs &v);
// Seat 3 alone, in the view that the solution buttons say, on a later run.
void MontreSiège3(TroisNiveaux &t, const ValeursJoueurs &v);

} // namespace abattage

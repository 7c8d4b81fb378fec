// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The showdown's values of every seat's levels: the sweep's algorithm, with
// the side cards of pairs counted and three of a kind ranked.
#include "core/table_state.h"
#include "valuation/classement.h"

using namespace classement;

namespace {

// Index 3 is the human's own layout in EXPERT; in DEBUTANT it is the
// computer's solution for the human's cards and index 4 is the layout.
bool DispositionDuJoueur(const TroisNiveaux &t, int indice) {
  return t.Mode == 0 ? indice >= 3 : indice >= 4;
}

int DernierIndice(const TroisNiveaux &t) { return t.Mode == 0 ? 3 : 4; }

template <size_t N>
void PrendNiveau(const TroisNiveaux &t, int indice, int première, uint8_t (&niveau)[N]) {
  for (size_t j = 0; j < N; ++j) {
    const int place = première + static_cast<int>(j);
    niveau[j] = DispositionDuJoueur(t, indice)
                    ? t.Mains[4][place]
                    : t.Mains[indice][t.Rangements[t.MeilleurRangement[indice]][place]];
  }
}

} // namespace

void TroisNiveaux::Décompte1() {
  for (int j = 0; j <= DernierIndice(*this); ++j) {
    Joueur = static_cast<uint8_t>(j);
    PrendNiveau(*this, j, 0, Niveau1);
    uint8_t rangs[5];
    ClasseCinq(*this, Niveau1, rangs);
    ValeursNiveau1[j] = ValeurCinq(*this, rangs, Barème::Abattage);
  }
}

void TroisNiveaux::Décompte2() {
  for (int j = 0; j <= DernierIndice(*this); ++j) {
    Joueur = static_cast<uint8_t>(j);
    PrendNiveau(*this, j, 5, Niveau2);
    uint8_t rangs[5];
    ClasseCinq(*this, Niveau2, rangs);
    ValeursNiveau2[j] = ValeurCinq(*this, rangs, Barème::Abattage);
  }
}

void TroisNiveaux::Décompte3() {
  for (int j = 0; j <= DernierIndice(*this); ++j) {
    Joueur = static_cast<uint8_t>(j);
    PrendNiveau(*this, j, 10, Niveau3);
    uint8_t rangs[3];
    ClasseTrois(*this, Niveau3, rangs);
    if (EstPaire)
      ValeursNiveau3[j] = static_cast<float>(PaireTrois(*this, rangs));
    if (EstBrelan)
      ValeursNiveau3[j] = static_cast<float>(BaseMain[2] + RangHaut);
    // Only index 3 is looked at for the special hands: the computer seats
    // had theirs settled in the sweep, the layout of index 4 is not tested.
    if (j == 3 && EstQuinte && DansLesQuintes(*this, ValeursNiveau1[3]) &&
        DansLesQuintes(*this, ValeursNiveau2[3])) {
      ToutQuinteVu = true;
      ToutQuinte[3] = true;
    }
    if (j == 3 && EstFlush && DansLesFlushs(*this, ValeursNiveau1[3]) &&
        DansLesFlushs(*this, ValeursNiveau2[3])) {
      ToutFlushVu = true;
      ToutFlush[3] = true;
    }
    if (!EstPaire && !EstBrelan && !ToutQuinteVu && !ToutFlushVu)
      ValeursNiveau3[j] = static_cast<float>(RienTrois(rangs));
  }
}

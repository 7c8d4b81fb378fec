// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The sweep's values of the three working levels.
#include "core/table_state.h"
#include "valuation/classement.h"

using namespace classement;

void TroisNiveaux::Résultat1() {
  uint8_t rangs[5];
  ClasseCinq(*this, Niveau1, rangs);
  Valeur1 = ValeurCinq(*this, rangs, Barème::Niveau1);
}

void TroisNiveaux::Résultat2() {
  uint8_t rangs[5];
  ClasseCinq(*this, Niveau2, rangs);
  Valeur2 = ValeurCinq(*this, rangs, Barème::Niveau2);
}

void TroisNiveaux::Résultat3() {
  uint8_t rangs[3];
  ClasseTrois(*this, Niveau3, rangs);
  if (EstPaire)
    Valeur3 = PaireTrois(*this, rangs);
  if (EstBrelan)
    Valeur3 = BaseMain[2]; // any three of a kind: the sweep does not rank them
  // Three in sequence or of one suit count only under two levels that are
  // straights, or flushes, themselves; then Valeur3 is left as it was.
  if (EstQuinte && DansLesQuintes(*this, Valeur1) && DansLesQuintes(*this, Valeur2)) {
    ToutQuinteVu = true;
    if (Joueur < 4)
      ToutQuinte[Joueur] = true;
  }
  if (EstFlush && DansLesFlushs(*this, Valeur1) && DansLesFlushs(*this, Valeur2)) {
    ToutFlushVu = true;
    if (Joueur < 4)
      ToutFlush[Joueur] = true;
  }
  if (!EstPaire && !EstBrelan && !ToutQuinteVu && !ToutFlushVu)
    Valeur3 = RienTrois(rangs);
}

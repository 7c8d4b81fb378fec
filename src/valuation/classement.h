// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// What the sweep and the showdown value alike: the class of a level, its keys,
// and the formulas they share. The two differ only in a few classes, so both
// call these and write their own results.

#include <cstdint>

#include "core/table_state.h"

namespace classement {

// Which formulas give the value of a five-card level.
enum class Barème : uint8_t {
  Niveau1,  // the sweep's level 1: RIEN with its fractions
  Niveau2,  // the sweep's level 2: RIEN is the top rank alone
  Abattage, // the showdown: side cards of the pairs count too
};

// Clears and sets the class flags, RangHaut, RangBas and NombreParRang of
// the five cards, and leaves their ranks sorted ascending in `rangs`.
void ClasseCinq(TroisNiveaux &t, const uint8_t (&niveau)[5], uint8_t (&rangs)[5]);

// The value of the class that ClasseCinq has just found.
double ValeurCinq(const TroisNiveaux &t, const uint8_t (&rangs)[5], Barème barème);

// The same for three cards: only pair, three of a kind, straight and flush
// exist there. Also clears ToutQuinteVu and ToutFlushVu.
void ClasseTrois(TroisNiveaux &t, const uint8_t (&niveau)[3], uint8_t (&rangs)[3]);

// Level 3 without a pair: top rank, then the two others at /15 and /150.
inline double RienTrois(const uint8_t (&rangs)[3]) {
  double v = rangs[1] / 15.0;
  v = rangs[2] + v;
  return v + rangs[0] / 150.0;
}

// A pair on level 3: its rank, then the third card at /15.
inline double PaireTrois(const TroisNiveaux &t, const uint8_t (&rangs)[3]) {
  int seule = rangs[0];
  for (uint8_t r : rangs)
    if (r != t.RangHaut)
      seule = r;
  return (t.BaseMain[0] + t.RangHaut) + seule / 15.0;
}

// Levels that let three cards in sequence, or of one suit, count: a
// straight (or straight flush), a flush (or straight flush). Strict bounds.
inline bool DansLesQuintes(const TroisNiveaux &t, double v) {
  return (v > t.BaseMain[3] && v < t.BaseMain[4]) || (v > t.BaseMain[7] && v < 2200);
}
inline bool DansLesFlushs(const TroisNiveaux &t, double v) {
  return (v > t.BaseMain[4] && v < t.BaseMain[5]) || (v > t.BaseMain[7] && v < 2200);
}

} // namespace classement

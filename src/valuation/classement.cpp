// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "valuation/classement.h"

#include <algorithm>
#include <bit>

namespace classement {
namespace {

// Suit weights: a level is of one suit when its sum is n, 10n, 100n or 1000n.
// Codes beyond 51 (a damaged replay) weigh as spades.
int16_t PoidsCouleur(uint8_t code) {
  if (code < 13)
    return 1;
  if (code < 26)
    return 10;
  if (code < 39)
    return 100;
  return 1000;
}

// Ascending order; a sorted list is the same whatever sort made it, so a
// network without branches does.
void Ordonne(uint8_t &a, uint8_t &b) {
  const uint8_t bas = std::min(a, b), haut = std::max(a, b);
  a = bas;
  b = haut;
}
void TrieRangs(uint8_t (&r)[5]) {
  Ordonne(r[0], r[1]);
  Ordonne(r[3], r[4]);
  Ordonne(r[2], r[4]);
  Ordonne(r[2], r[3]);
  Ordonne(r[0], r[3]);
  Ordonne(r[0], r[2]);
  Ordonne(r[1], r[4]);
  Ordonne(r[1], r[3]);
  Ordonne(r[1], r[2]);
}
void TrieRangs(uint8_t (&r)[3]) {
  Ordonne(r[0], r[1]);
  Ordonne(r[1], r[2]);
  Ordonne(r[0], r[1]);
}

template <size_t N> void CompteRangs(TroisNiveaux &t, const uint8_t (&niveau)[N]) {
  for (uint8_t &n : t.NombreParRang)
    n = 0;
  for (uint8_t c : niveau)
    ++t.NombreParRang[c % 13];
}

template <size_t N> bool UneSeuleCouleur(const uint8_t (&niveau)[N]) {
  int16_t somme = 0;
  for (uint8_t c : niveau)
    somme = static_cast<int16_t>(somme + PoidsCouleur(c));
  return somme == N || somme == 10 * N || somme == 100 * N || somme == 1000 * N;
}

// The fractional formula of RIEN and FLUSH: the second rank first, then the
// whole part, then the three lower ranks, in this order.
double AvecFractions(int entier, const uint8_t (&r)[5]) {
  double v = r[3] / 15.0;
  v = entier + v;
  v = v + r[2] / 150.0;
  v = v + r[1] / 1500.0;
  return v + r[0] / 15000.0;
}

} // namespace

void ClasseCinq(TroisNiveaux &t, const uint8_t (&niveau)[5], uint8_t (&rangs)[5]) {
  // Worked in registers and written once at the end: the sweep values
  // every set of five places of a seat. Four bits per rank hold its count.
  uint64_t nombre = 0;
  for (uint8_t c : niveau)
    nombre += uint64_t{1} << (4 * (c % 13));
  bool paire = false, deuxPaires = false, brelan = false, full = false, carré = false;
  int haut = 13;
  uint8_t bas = 13;

  // The scan stops at the group that completes the class, so a full house
  // keeps the three cards in RangHaut whichever group came first. Ranks
  // with fewer than two cards do nothing: only the others are visited.
  uint64_t groupes = (nombre >> 1 | nombre >> 2 | nombre >> 3) & 0x1111111111111ull;
  for (; groupes != 0; groupes &= groupes - 1) {
    const int r = std::countr_zero(groupes) / 4;
    const uint64_t n = nombre >> (4 * r) & 15;
    if (n == 4) {
      carré = true;
      haut = r;
      break;
    }
    if (n == 3) {
      if (paire) {
        paire = false;
        full = true;
        bas = static_cast<uint8_t>(haut);
        haut = r;
        break;
      }
      brelan = true;
      haut = r;
    } else if (n == 2) {
      if (brelan) {
        brelan = false;
        full = true;
        bas = static_cast<uint8_t>(r);
        break;
      }
      if (paire) {
        paire = false;
        deuxPaires = true;
        bas = static_cast<uint8_t>(haut);
        haut = r;
        break;
      }
      paire = true;
      haut = r;
    }
  }

  bool flush = UneSeuleCouleur(niveau);

  for (int j = 0; j < 5; ++j)
    rangs[j] = niveau[j] % 13;
  TrieRangs(rangs);

  bool quinte =
      (rangs[1] == rangs[0] + 1 && rangs[2] == rangs[0] + 2 && rangs[3] == rangs[0] + 3 &&
       rangs[4] == rangs[0] + 4) ||
      (rangs[0] == 0 && rangs[1] == 1 && rangs[2] == 2 && rangs[3] == 3 && rangs[4] == 12);
  const bool qf = flush && quinte;
  if (qf)
    flush = quinte = false;

  for (int r = 0; r < 13; ++r)
    t.NombreParRang[r] = static_cast<uint8_t>(nombre >> (4 * r) & 15);
  t.EstPaire = paire;
  t.EstDeuxPaires = deuxPaires;
  t.EstBrelan = brelan;
  t.EstFull = full;
  t.EstCarré = carré;
  t.EstFlush = flush;
  t.EstQuinte = quinte;
  t.EstQF = qf;
  t.RangHaut = haut;
  t.RangBas = bas;
}

double ValeurCinq(const TroisNiveaux &t, const uint8_t (&rangs)[5], Barème barème) {
  // A 5 4 3 2 is the lowest straight: its top is the 5.
  const int haut = (rangs[4] == 12 && rangs[0] == 0) ? rangs[3] : rangs[4];
  // Only cards beyond 51 can bring two classes at once (a pair of one suit);
  // the stronger class then gives the value.
  if (t.EstQF)
    return t.BaseMain[7] + haut;
  if (t.EstCarré)
    return t.BaseMain[6] + t.RangHaut;
  if (t.EstFull)
    return t.BaseMain[5] + t.RangHaut;
  if (t.EstFlush)
    return AvecFractions(static_cast<int16_t>(t.BaseMain[4] + rangs[4]), rangs);
  if (t.EstQuinte)
    return t.BaseMain[3] + haut;
  if (t.EstBrelan)
    return t.BaseMain[2] + t.RangHaut;
  if (t.EstDeuxPaires) {
    if (barème != Barème::Abattage)
      return t.BaseMain[1] + t.RangHaut;
    int cinquième = rangs[0];
    for (uint8_t r : rangs)
      if (r != t.RangHaut && r != t.RangBas)
        cinquième = r;
    double v = t.BaseMain[1] + t.RangHaut;
    v = v + t.RangBas / 15.0;
    return v + cinquième / 150.0;
  }
  if (t.EstPaire) {
    if (barème != Barème::Abattage)
      return t.BaseMain[0] + t.RangHaut;
    uint8_t isolés[3] = {};
    int n = 0;
    for (uint8_t r : rangs)
      if (r != t.RangHaut && n < 3)
        isolés[n++] = r;
    double v = t.BaseMain[0] + t.RangHaut;
    v = v + isolés[2] / 15.0;
    v = v + isolés[1] / 150.0;
    return v + isolés[0] / 1500.0;
  }
  if (barème == Barème::Niveau2)
    return rangs[4];
  return AvecFractions(rangs[4], rangs);
}

void ClasseTrois(TroisNiveaux &t, const uint8_t (&niveau)[3], uint8_t (&rangs)[3]) {
  t.EstPaire = t.EstBrelan = t.EstQuinte = t.EstFlush = false;
  t.ToutQuinteVu = t.ToutFlushVu = false;
  t.RangHaut = 13;
  t.RangBas = 13;
  CompteRangs(t, niveau);
  for (int r = 0; r < 13; ++r) {
    if (t.NombreParRang[r] == 3) {
      t.EstBrelan = true;
      t.RangHaut = r;
    } else if (t.NombreParRang[r] == 2) {
      t.EstPaire = true;
      t.RangHaut = r;
    }
  }
  t.EstFlush = UneSeuleCouleur(niveau);
  for (int j = 0; j < 3; ++j)
    rangs[j] = niveau[j] % 13;
  TrieRangs(rangs);
  t.EstQuinte = (rangs[1] == rangs[0] + 1 && rangs[2] == rangs[0] + 2) ||
                (rangs[0] == 0 && rangs[1] == 1 && rangs[2] == 12);
}

} // namespace classement

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The game's sweep against the row-by-row one: every field the sweep leaves
// and every turn it gives must be the same, to the bit.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <random>

#include "session_essai.h"

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int Tables = 40; // the row-by-row sweep is ten times slower there
#else
constexpr int Tables = 400;
#endif

template <typename... T> std::string Octets(const T &...champs) {
  std::string photo;
  (photo.append(reinterpret_cast<const char *>(&champs), sizeof champs), ...);
  return photo;
}

// Everything the sweep writes, as raw bytes.
std::string Photo(const TroisNiveaux &t) {
  const auto &f = t.Fenêtre;
  return Octets(t.Valeur1, t.Valeur2, t.Valeur3, t.Somme, t.MeilleurRangement, t.MeilleureValeur,
                t.ToutQuinte, t.ToutFlush, t.SixPaires, t.MégaQuinte, t.Niveau1, t.Niveau2,
                t.Niveau3, t.NombreParRang, t.CartesTirées, t.RangHaut, t.RangBas, t.EstPaire,
                t.EstDeuxPaires, t.EstBrelan, t.EstFull, t.EstCarré, t.EstFlush, t.EstQuinte,
                t.EstQF, t.ToutQuinteVu, t.ToutFlushVu, f.Arrêt.Enabled, t.BalayageEnCours,
                t.Joueur, t.PasProgrès, f.TempsShape.Left, f.TempsShape.BackColor);
}

// Hands of every kind the sweep has a path or a trap for.
std::vector<int> UneMain(int genre, std::mt19937 &g) {
  auto entre = [&g](int a, int b) { return std::uniform_int_distribution<int>(a, b)(g); };
  std::vector<int> p;
  const int premier = entre(0, 12), a = entre(0, 3), b = (a + entre(1, 3)) % 4;
  switch (genre % 8) {
  case 0: // any 13 cards
    p.resize(52);
    std::iota(p.begin(), p.end(), 0);
    break;
  case 1: // two suits: flushes everywhere
  case 2: // seven or eight ranks in a row in two suits: straights and flushes
    for (int r = 0; r < (genre % 8 == 1 ? 13 : 8); ++r)
      p.insert(p.end(), {13 * a + (premier + r) % 13, 13 * b + (premier + r) % 13});
    break;
  case 3: // 13 ranks, suits at random: all-straights
    for (int r = 0; r < 13; ++r)
      p.push_back(13 * entre(0, 3) + r);
    break;
  case 4: // a flush of 5, one of 5 and three of a third suit
    for (int r : {0, 3, 5, 8, 11})
      p.insert(p.end(), {13 * a + (premier + r) % 13, 13 * b + (premier + r + 1) % 13});
    for (int r : {2, 6, 9})
      p.push_back(13 * ((b + 1) % 4 == a ? (b + 2) % 4 : (b + 1) % 4) + (premier + r) % 13);
    break;
  case 5: // few ranks: pairs, three and four of a kind
    for (int r = 0, rangs = entre(4, 6); r < rangs; ++r)
      for (int c = 0; c < 4; ++c)
        p.push_back(13 * c + (premier + r) % 13);
    break;
  case 6: // thirteen equal codes, as a replay without its file gives
    return std::vector<int>(13, entre(0, 255));
  default: // a damaged file: codes past 51, repeats
    for (int k = 0; k < 13; ++k)
      p.push_back(entre(0, 255));
  }
  std::shuffle(p.begin(), p.end(), g);
  p.resize(13);
  return p;
}

// The same table swept both ways from the same state, with a STOP or the
// end of the session at turn `tour` if any.
void Compare(uint8_t mode, const std::array<std::vector<int>, 4> &mains, int tour = 0,
             bool quitte = false) {
  SessionEssai rapide(mode), littéral(mode);
  for (SessionEssai *s : {&rapide, &littéral}) {
    for (int j = 0; j < 4; ++j)
      s->Main(j, mains[j]);
    s->plateforme.script = [s, tour, quitte](int n) {
      if (n == tour)
        (quitte ? s->t.SessionTerminée : s->t.Fenêtre.Arrêt.Enabled) = quitte;
    };
  }
  rapide.t.OrdiJoue();
  littéral.t.OrdiJoueLittéral();
  ASSERT_EQ(Photo(rapide.t), Photo(littéral.t));
  ASSERT_EQ(rapide.plateforme.relevé, littéral.plateforme.relevé);
  if (mode == 0 || tour)
    return;
  // The human's seat alone, as the mode change searches it before GO.
  SessionEssai seul(mode);
  seul.Main(3, mains[3]);
  seul.t.ChercheSiège(3);
  const auto &r = rapide.t, &s = seul.t;
  ASSERT_TRUE(r.MeilleurRangement[3] == s.MeilleurRangement[3] &&
              r.MeilleureValeur == s.MeilleureValeur && r.ToutFlush[3] == s.ToutFlush[3] &&
              r.ToutQuinte[3] == s.ToutQuinte[3] && r.SixPaires[3] == s.SixPaires[3] &&
              r.MégaQuinte[3] == s.MégaQuinte[3]);
}

TEST(RapideContreLittéral, DesMilliersDeMainsEtDesInterruptions) {
  std::mt19937 g(20261122);
  const auto Table = [&g](int genre) { // four hands of the kinds from `genre` on
    std::array<std::vector<int>, 4> mains;
    for (int j = 0; j < 4; ++j)
      mains[j] = UneMain(genre + j, g);
    return mains;
  };
  for (int n = 0; n < Tables; ++n) {
    SCOPED_TRACE(n);
    Compare(n % 4 != 0, Table(4 * n)); // one table in four in EXPERT
    if (HasFatalFailure())
      return;
  }
  // Interrupted at the first and last turns of the seats and at turns at
  // random, on the hands with the most special rows.
  std::vector<int> tours = {1, 2, 1287, 1288, 1289, 2575, 3862, 5148};
  for (int k = 0; k < 8; ++k)
    tours.push_back(std::uniform_int_distribution<int>(1, 5148)(g));
  for (int tour : tours)
    for (bool quitte : {false, true}) {
      SCOPED_TRACE(tour);
      Compare(1, Table(1), tour, quitte);
      if (HasFatalFailure())
        return;
    }
}

} // namespace

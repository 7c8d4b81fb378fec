// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The numbers a level is worth, in the sweep and at the showdown.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>
#include <tuple>

#include "analyse/texte.h"
#include "session_essai.h"

namespace {

std::vector<int> Cartes(const std::string &texte) {
  std::istringstream flux(texte);
  std::vector<int> codes;
  for (std::string mot; flux >> mot;)
    codes.push_back(texte::LitCarte(mot).value());
  return codes;
}

const double RienAs = 12 + 11 / 15.0 + 10 / 150.0 + 9 / 1500.0 + 7 / 15000.0; // A R D V 9

// Every five-card set of the deck: the classes fall in the known counts and
// keep to their bands of values; level 2 differs only on RIEN, where the top
// rank alone counts.
TEST(Résultat, LesDeuxMillionsDeMainsDeCinq) {
  SessionEssai s(1, false);
  std::map<std::string, std::vector<double>> classes;
  long écarts = 0;
  uint8_t(&n)[5] = s.t.Niveau1;
  for (n[0] = 0; n[0] < 48; ++n[0])
    for (n[1] = n[0] + 1; n[1] < 49; ++n[1])
      for (n[2] = n[1] + 1; n[2] < 50; ++n[2])
        for (n[3] = n[2] + 1; n[3] < 51; ++n[3])
          for (n[4] = n[3] + 1; n[4] < 52; ++n[4]) {
            std::copy(n, n + 5, s.t.Niveau2);
            s.t.Résultat2();
            s.t.Résultat1();
            const std::string classe = texte::ClasseCinq(s.t);
            classes[classe].push_back(s.t.Valeur1);
            const int haut = std::max({n[0] % 13, n[1] % 13, n[2] % 13, n[3] % 13, n[4] % 13});
            écarts += s.t.Valeur2 != (classe == "RIEN" ? haut : s.t.Valeur1);
          }
  EXPECT_EQ(écarts, 0);
  const std::tuple<std::string, std::size_t, double, double> attendu[] = {
      {"RIEN", 1302540, 5.214, RienAs},
      {"1 PAIRE", 1098240, 100, 112},
      {"2 PAIRES", 123552, 201, 212},
      {"BRELAN", 54912, 350, 362},
      {"QUINTE", 10200, 383, 392},
      {"FLUSH", 5108, 505.214, 500 + RienAs},
      {"FULL", 3744, 600, 612},
      {"CARRE", 624, 1000, 1012},
      {"QF", 40, 1503, 1512}};
  ASSERT_EQ(classes.size(), std::size(attendu));
  for (const auto &[nom, nombre, bas, haut] : attendu) {
    const auto [min, max] = std::minmax_element(classes[nom].begin(), classes[nom].end());
    EXPECT_EQ(classes[nom].size(), nombre) << nom;
    EXPECT_DOUBLE_EQ(*min, bas) << nom;
    EXPECT_DOUBLE_EQ(*max, haut) << nom;
  }

  // Inside a class: RIEN by its kickers (no straight round the ace), a pair
  // or three by its rank, two pairs by the higher alone, a full house by its
  // three, the 2s being met first as a pair. Five equal codes make no group,
  // and one suit; codes past 51 weigh as spades, so a pair of one suit takes
  // the stronger class's value.
  const std::pair<std::vector<int>, double> valeurs[] = {
      {Cartes("D♣ R♦ A♥ 2♠ 3♣"), 12 + 11 / 15.0 + 10 / 150.0 + 1 / 1500.0},
      {Cartes("R♣ R♦ 9♥ 5♠ 2♣"), 111},
      {Cartes("A♣ A♦ 3♥ 3♠ 2♣"), 212},
      {Cartes("7♣ 7♦ 7♥ 4♠ 2♣"), 355},
      {Cartes("A♣ 2♦ A♥ 2♠ A♦"), 612},
      {{0, 0, 0, 0, 0}, 500},
      {{39, 52, 41, 44, 50}, 511 + 5 / 15.0 + 2 / 150.0}};
  for (const auto &[codes, valeur] : valeurs) {
    std::copy(codes.begin(), codes.end(), s.t.Niveau1);
    s.t.Résultat1();
    EXPECT_DOUBLE_EQ(s.t.Valeur1, valeur) << codes[0] << " " << codes[1];
  }
}

TEST(Résultat, TroisCartesEtMainsSpéciales) {
  SessionEssai s(1, false);
  s.t.Joueur = 2;
  // Level 3 under levels 1 and 2 worth v1 and v2; -1 when left unwritten.
  auto vaut = [&s](const char *cartes, double v1 = 1, double v2 = 1) {
    s.t.Valeur1 = v1, s.t.Valeur2 = v2, s.t.Valeur3 = -1;
    const auto codes = Cartes(cartes);
    std::copy(codes.begin(), codes.end(), s.t.Niveau3);
    s.t.Résultat3();
    return s.t.Valeur3;
  };
  EXPECT_DOUBLE_EQ(vaut("2♣ 3♦ 4♥"), 2 + 1 / 15.0);
  EXPECT_DOUBLE_EQ(vaut("D♠ R♠ A♠", 600, 505.214), 12.8); // one suit, but a full house above
  EXPECT_DOUBLE_EQ(vaut("A♣ R♦ A♥"), 112 + 11 / 15.0);
  EXPECT_EQ(vaut("2♣ 2♦ 2♥"), 350);
  EXPECT_EQ(vaut("A♣ A♦ A♥"), 350);
  EXPECT_FALSE(s.t.ToutQuinte[2] || s.t.ToutFlush[2]);

  // Straights (straight flushes too) above three in sequence, strictly
  // inside the bounds; R A 2 is no sequence.
  for (double v : {383.0, 392.0, 1503.0, 1512.0})
    EXPECT_EQ(vaut("A♣ 2♦ 3♥", v, 383), -1) << v;
  EXPECT_TRUE(s.t.ToutQuinteVu && s.t.ToutQuinte[2]);
  for (double v : {380.0, 500.0, 1500.0, 2200.0, 600.0, 512.8})
    EXPECT_DOUBLE_EQ(vaut("A♣ 2♦ 3♥", v, 392), 12 + 1 / 15.0) << v;
  EXPECT_GT(vaut("R♣ A♦ 2♥", 392, 383), 0);
  EXPECT_TRUE(!s.t.ToutQuinteVu && s.t.ToutQuinte[2]); // once seen, the seat's flag stays

  // Flushes the same, in any order of the two levels.
  for (double v : {505.214, 512.8, 1503.0})
    EXPECT_EQ(vaut("5♣ 9♣ V♣", 505.3, v), -1) << v;
  EXPECT_TRUE(s.t.ToutFlushVu && s.t.ToutFlush[2]);
  for (double v : {500.0, 600.0, 1500.0, 2200.0, 392.0})
    EXPECT_DOUBLE_EQ(vaut("5♣ 9♣ V♣", v, 505.214), 9 + 7 / 15.0 + 3 / 150.0) << v;
  EXPECT_EQ(vaut("2♥ 3♥ 4♥", 1512, 1503), -1);
  EXPECT_TRUE(s.t.ToutQuinteVu && s.t.ToutFlushVu);
}

TEST(Décompte, CartesDeCôtéEtMainsSpéciales) {
  // Row 1 lays each hand as given: places 0..4, 5..9, 10..12.
  SessionEssai s(0);
  const char *mains[5] = {
      "R♣ R♦ 9♥ 5♠ 2♣ A♣ 9♦ 7♥ 5♠ 3♣ A♦ A♥ A♠", "A♣ A♦ R♥ R♠ 2♣ A♥ A♠ 3♥ 3♠ 2♦ 2♥ 2♠ 4♣",
      "A♣ A♦ D♥ D♠ R♣ A♥ A♠ D♣ D♦ 2♦ R♥ R♠ 4♣", "2♣ 3♣ 4♣ 5♣ 7♦ 2♦ 3♦ 4♦ 5♦ 7♣ 8♣ 9♦ 10♥",
      // Two straights, the better on level 2, and three in sequence.
      "2♣ 3♦ 4♥ 5♠ 6♣ 8♦ 9♥ 10♠ V♣ D♦ 2♥ 3♥ 4♠"};
  for (int j = 0; j < 5; ++j) {
    s.Main(j, Cartes(mains[j]));
    s.t.MeilleurRangement[j % 4] = 1;
  }
  s.t.ValeursNiveau3[3] = -1;
  s.t.Décompte1(), s.t.Décompte2(), s.t.Décompte3();
  const double *n1 = s.t.ValeursNiveau1, *n2 = s.t.ValeursNiveau2;
  const float *n3 = s.t.ValeursNiveau3;
  EXPECT_DOUBLE_EQ(n1[0], 111 + 7 / 15.0 + 3 / 150.0);
  EXPECT_DOUBLE_EQ(n2[0], 12 + 7 / 15.0 + 5 / 150.0 + 3 / 1500.0 + 1 / 15000.0);
  EXPECT_EQ(n3[0], 362.0f);
  EXPECT_DOUBLE_EQ(n1[1], 212 + 11 / 15.0);
  EXPECT_DOUBLE_EQ(n2[1], 212 + 1 / 15.0);
  EXPECT_DOUBLE_EQ(n1[2], 212.74); // the lower pair weighs only ten fifth cards
  // In EXPERT index 3 is the human's layout, and only it is tested for an
  // all-straight, whatever the order of its levels.
  EXPECT_TRUE(s.t.ToutQuinte[3]);
  EXPECT_EQ(n3[3], -1.0f);

  // In DEBUTANT index 3 is the computer's solution, index 4 the layout,
  // which is never tested.
  s.t.Mode = 1;
  s.t.ToutQuinte[3] = false;
  s.t.Décompte1(), s.t.Décompte2(), s.t.Décompte3();
  EXPECT_FALSE(s.t.ToutQuinte[3]);
  EXPECT_EQ(n3[4], static_cast<float>(2 + 1 / 15.0));
  EXPECT_EQ(n1[3], 5 + 3 / 15.0 + 2 / 150.0 + 1 / 1500.0);
}

} // namespace

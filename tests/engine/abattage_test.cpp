// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The showdown on hand-set values and cards, after an EXPERT deal's Init:
// every seat plays row 1, its cards in the order of its hand.
#include <gtest/gtest.h>

#include <vector>

#include "partie_essai.h"

namespace {

struct Abattage : Partie {
  Abattage() : Partie(0) {
    t.Init();
    for (int s = 0; s <= 3; ++s)
      t.MeilleurRangement[s] = 1;
  }
  void Valeurs(int s, double v1, double v2, float v3) {
    t.ValeursNiveau1[s] = v1;
    t.ValeursNiveau2[s] = v2;
    t.ValeursNiveau3[s] = v3;
  }
  void Main(int index, const std::vector<int> &cartes) {
    std::copy(cartes.begin(), cartes.end(), t.Mains[index]);
  }
  std::vector<int> Images(int premier, int nombre) const {
    std::vector<int> images;
    for (int i = premier; i < premier + nombre; ++i)
      images.push_back(t.Fenêtre.CartesJeu[i].Picture);
    return images;
  }
};

} // namespace

// What a won level pays depends on the winner's class: seat 0 wins one level
// against three seats of nothing, and each loser pays the winner's rate.
TEST(Abattage, UnNiveauGagnéPaieSelonLaClasseDuGagnant) {
  struct Cas {
    int niveau;
    double valeur;
    int gain;
  };
  const Cas cas[] = {{1, 1505, 5}, {1, 1000, 4}, {1, 612, 1}, {2, 1512, 10},
                     {2, 1012, 8}, {2, 600, 2},  {2, 612, 2}, {2, 512, 1},
                     {3, 350, 3},  {3, 362, 3},  {3, 112, 1}};
  for (const Cas &c : cas) {
    Abattage a;
    for (int s = 1; s <= 3; ++s)
      a.Valeurs(s, 9 - s, 6 - s, static_cast<float>(4 - s));
    a.Valeurs(0, c.niveau == 1 ? c.valeur : 9, c.niveau == 2 ? c.valeur : 6,
              c.niveau == 3 ? static_cast<float>(c.valeur) : 4);
    a.t.AfficheRésultat();
    const int premier = 3 * (c.niveau - 1);
    for (int j = 0; j <= 2; ++j) {
      EXPECT_EQ(a.t.Fenêtre.LabelPaie[premier + j].Caption, std::to_string(c.gain))
          << c.niveau << " " << c.valeur;
      EXPECT_EQ(a.t.Fenêtre.LabelPaie[9 * (j + 1) + premier].Caption, std::to_string(-c.gain))
          << c.valeur;
    }
  }
}

TEST(Abattage, LesMainsSpécialesSeDépartagentEtPaientÀLeurTaux) {
  Abattage a;
  auto &t = a.t;
  t.MégaQuinte[0] = t.ToutQuinte[0] = true;
  t.SixPaires[1] = t.ToutFlush[1] = true; // the later test wins, at 2300
  t.ToutFlush[2] = t.ToutQuinte[2] = true;
  a.Valeurs(3, 1512, 1505, 360); // QF, QF, BRELAN: paid at the specials' rate
  t.AfficheRésultat();

  EXPECT_EQ(Partie::Textes(t.Fenêtre.ExtraLabel, ","), "MEGA QUINTE,TOUT FLUSH,TOUT FLUSH,");
  EXPECT_FALSE(t.ToutQuinte[0] || t.ToutQuinte[2]);
  EXPECT_TRUE(t.SixPaires[1]);
  EXPECT_EQ(a.Paiements(), "5 5 5 5 5 5 5 5 5 "
                           "-5 0 2 -5 0 2 -5 0 2 -5 0 2 -5 0 2 -5 0 2 "
                           "-5 -2 -2 -5 -2 -2 -5 -2 -2");
  EXPECT_EQ(Partie::Textes(t.Fenêtre.TotalLabel), "45 -9 -9 -27");
  for (int n = 0; n <= 11; ++n)
    EXPECT_EQ(t.Fenêtre.EnchèreLabel[n].Visible, n >= 9) << "a special hand names no level";
}

TEST(Abattage, SeulLHumainQuiMetSesNiveauxEnDésordreEstAnnulé) {
  Abattage a;
  auto &t = a.t;
  a.Valeurs(0, 300, 400, 50); // out of order, but a computer seat is never tested
  a.Valeurs(1, 1512, 1503, 360);
  a.Valeurs(2, 605, 210, 105.3f);
  a.Valeurs(3, 605, 610, 11);
  t.AfficheRésultat();
  EXPECT_EQ(Partie::Textes(t.Fenêtre.ExtraLabel, ","), ",,,ERREUR !");
  // It loses everywhere at the winners' rates: a QF on level 2 costs 10.
  EXPECT_EQ(a.Paiements(), "-5 -1 1 -10 1 1 -3 -1 1 5 5 5 10 10 10 3 3 3 "
                           "1 -5 1 -1 -10 1 1 -3 1 -1 -5 -1 -1 -10 -1 -1 -3 -1");
  for (int n = 9; n <= 11; ++n)
    EXPECT_EQ(t.Fenêtre.EnchèreLabel[n].Caption, "RIEN");

  // Equal levels keep the order; level 3 meets level 2 rounded to float, and
  // 110.3 lies a hair below its own float.
  for (double niveau2 : {605.0, 110.3}) {
    a.Valeurs(3, 605, niveau2, niveau2 == 605 ? 11 : 110.3f);
    t.AfficheRésultat();
    EXPECT_EQ(t.Fenêtre.ExtraLabel[3].Caption, "") << niveau2;
  }
}

TEST(Abattage, LesCartesSeMontrentTriéesAvecLAsDevantDansUneQuinteBasse) {
  Abattage a;
  auto &t = a.t;
  // A 5 high straight, a 6 high one with an ace, then 2, 3 and an ace.
  const std::vector<int> main = {25, 0, 28, 40, 3, 4, 51, 14, 15, 16, 38, 13, 27};
  a.Main(0, main);
  a.Main(1, main);
  t.ToutQuinte[1] = true;
  a.Main(2, {12, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}); // clubs, ace to 5 on level 1
  t.ToutFlush[2] = true;
  // Thirteen ranks, the human's layout of them in another order.
  const std::vector<int> disposition = {12, 46, 28, 36, 18, 0, 8, 42, 50, 32, 14, 22, 4};
  a.Main(3, {12, 50, 36, 22, 8, 46, 32, 18, 4, 42, 28, 14, 0});
  a.Main(4, disposition);
  t.MégaQuinte[3] = true;
  for (int s = 0; s <= 3; ++s)
    a.Valeurs(s, 400, 300, 50);
  t.AfficheRésultat();

  EXPECT_EQ(a.Images(0, 13), (std::vector<int>{25, 0, 40, 28, 3, 14, 15, 16, 4, 51, 13, 27, 38}));
  EXPECT_EQ(a.Images(23, 3), (std::vector<int>{38, 13, 27})) << "on level 3 for a TOUT QUINTE only";
  EXPECT_EQ(a.Images(26, 5), (std::vector<int>{0, 1, 2, 3, 12})) << "never under TOUT FLUSH";
  for (int k = 0; k <= 12; ++k)
    EXPECT_EQ(t.Fenêtre.CartesJeu[39 + k].Picture % 13, k) << "one sorted row of 13";
  EXPECT_TRUE(std::equal(disposition.begin(), disposition.end(), t.Mains[4]))
      << "the layout itself is not sorted";
}

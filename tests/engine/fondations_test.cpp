// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "core/aleatoire.h"
#include "partie_essai.h"

TEST(Donne, UneHorlogeArrêtéeDonneQuandMêmeLesCinquanteDeuxCartes) {
  Partie s;
  s.plateforme.horloge = 43200.0f; // never moves
  s.t.Init();
  s.t.Distribue();
  const auto &tirées = s.t.CartesTirées;
  EXPECT_EQ(std::set<int>(std::begin(tirées), std::end(tirées)).size(), 52u);
  EXPECT_LE(*std::max_element(std::begin(tirées), std::end(tirées)), 51);
  for (int k = 0; k <= 51; ++k)
    EXPECT_EQ(s.t.Mains[k / 13][k % 13], tirées[k]) << "no round-robin";
  EXPECT_EQ(s.dossier.Lit("Tirage"), TexteDeTirage({{std::begin(tirées), std::end(tirées)}}));
  for (int k = 0; k <= 12; ++k)
    EXPECT_TRUE(s.t.Mains[4][k] == s.t.Mains[3][k] &&
                s.t.Fenêtre.CartesJeu[39 + k].Picture == s.t.Mains[3][k] &&
                s.t.Fenêtre.CartesJeu[39 + k].Enabled &&
                s.t.Fenêtre.CartesJeu[k].Picture == PasDeCarte);
}

TEST(Donne, InitRemetLaTableÀZéroSansToucherAuReste) {
  Partie s;
  auto &t = s.t;
  auto &f = t.Fenêtre;
  t.CarteLevée = 1;
  t.ScoresÉcrits = t.ScoresRemisà0 = true;
  t.ToutFlush[2] = t.ToutQuinte[1] = t.SixPaires[3] = t.MégaQuinte[0] = true;
  t.TotauxDonne[1] = 7;
  f.ExtraLabel[2].Caption = f.TotalLabel[0].Caption = "12";
  for (auto &l : f.LabelPaie)
    l.Caption = "-4", l.ForeColor = l.BackColor = 0x0000FF;
  f.EnchèreLabel[4].Visible = f.Joue.Visible = true;
  f.CartesJeu[40].Picture = f.CartesJeu[52].Picture = 17;
  t.Mains[4][0] = 9;
  t.MeilleurRangement[1] = 1234;
  t.TempsÉcoulé = 12;
  f.TempsLabel.Caption = "5";

  t.Init();
  EXPECT_EQ(t.CarteLevée, 0);
  EXPECT_FALSE(t.ScoresÉcrits || t.ScoresRemisà0 || t.ToutFlush[2] || t.ToutQuinte[1] ||
               t.SixPaires[3] || t.MégaQuinte[0] || f.EnchèreLabel[4].Visible || t.TotauxDonne[1]);
  EXPECT_EQ(f.ExtraLabel[2].Caption + f.TotalLabel[0].Caption + f.LabelPaie[35].Caption, "");
  EXPECT_EQ(f.LabelPaie[7].ForeColor, 0u);
  // Each payment label wears the colour of the opponent it stands for.
  for (auto [i, adversaire] : {std::pair{0, 1}, {2, 3}, {9, 0}, {10, 2}, {19, 1}, {26, 3}, {35, 2}})
    EXPECT_EQ(f.LabelPaie[i].BackColor, CouleurSiège[adversaire]) << i;
  EXPECT_EQ(f.CartesJeu[40].Picture, PasDeCarte);
  EXPECT_TRUE(f.TempsShape.Left == -3900 && f.TempsShape.BackColor == CouleurSiège[0]);
  // Left alone: slot 52, the hands, the kept rows, the clock and the buttons.
  EXPECT_TRUE(f.CartesJeu[52].Picture == 17 && t.Mains[4][0] == 9 &&
              t.MeilleurRangement[1] == 1234);
  EXPECT_TRUE(t.TempsÉcoulé == 12 && f.TempsLabel.Caption == "5" && f.Joue.Visible);
}

TEST(Démarrage, LaTableAttendJouerDansSonÉtatDeDépart) {
  std::filesystem::current_path(std::filesystem::temp_directory_path());
  Partie s(1, "-3\r\n0\r\n4\r\n0\r\n");
  EXPECT_EQ(std::filesystem::current_path(), std::filesystem::path(s.dossier.Chemin()));
  const auto &f = s.t.Fenêtre;
  EXPECT_TRUE(f.NouveauJeu.Enabled && f.Arrêt.Enabled && !f.Joue.Visible && f.EtoilesTimer.Enabled);
  EXPECT_TRUE(f.ScoreLabel[0].Caption == "-3" && f.ScoreLabel[0].ForeColor == 255u &&
              f.ScoreLabel[2].ForeColor == 0u)
      << "a negative score shows red before any deal";
  for (int i = 1; i <= 50; ++i)
    EXPECT_TRUE(s.t.EtoileX[i] < 15360 && s.t.EtoileY[i] < 11520 && s.t.EtoileVitesse[i] >= 2);

  // A star that falls out comes back at the top. This seed's first draw is
  // 0.9999999753: times the width, it rounds to the width itself as a float.
  s.t.Générateur = Aléatoire();
  s.t.Générateur.Réensemence(0x1.d29efp+5f);
  s.t.EtoileY[1] = 11519;
  s.t.EtoileVitesse[1] = 500;
  s.t.EtoilesTimer_Timer();
  EXPECT_EQ(s.t.EtoileY[1], 0);
  EXPECT_EQ(s.t.EtoileX[1], 15359.0f) << "inside the window";
}

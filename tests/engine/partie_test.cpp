// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// Whole deals driven through the handlers, as the window would drive them.
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "files/historique.h"
#include "partie_essai.h"

// Under the sanitizers a sweep is several times slower: fewer random deals.
#ifdef __SANITIZE_ADDRESS__
constexpr int DonnesAuHasard = 50;
#else
constexpr int DonnesAuHasard = 150;
#endif

// The reference deal in EXPERT, then replayed in DEBUTANT on scores near
// their limits: the scores stop there, the solution view and back pay
// nothing, and the history gets one line per paid deal and per SCORES A 0.
TEST(Partie, LaDonneDeRéférenceSePaieCommePrévuEtSeNoteDansLHistorique) {
  Partie p(0);
  p.dossier.Écrit("Tirage", TexteDeTirage(DonneDeRéférence));
  p.plateforme.script = [&](int tour) {
    if (tour == 1)
      p.Dispose(DispositionDeRéférence);
  };
  p.t.Rejoue_MouseUp();
  EXPECT_EQ(std::vector<int>(p.t.MeilleurRangement, p.t.MeilleurRangement + 3),
            (std::vector<int>{49298, 26192, 13328}));
  EXPECT_EQ(p.Paiements(), "-4 -1 -1 -2 1 1 -1 1 1 4 4 4 2 2 2 1 1 1 "
                           "1 -4 1 -1 -2 1 -1 -1 -1 1 -4 -1 -1 -2 -1 -1 -1 1");
  EXPECT_EQ(Partie::Textes(p.t.Fenêtre.TotalLabel), "-5 21 -7 -9");
  EXPECT_EQ(p.t.Fenêtre.ScoreLabel[0].ForeColor, 0x0000FFu) << "a negative score shows red";
  EXPECT_EQ(Partie::Textes(p.t.Fenêtre.EnchèreLabel, ","),
            "FLUSH,BRELAN,RIEN,CARRE,FULL,1 PAIRE,FULL,2 PAIRES,RIEN,FULL,1 PAIRE,RIEN");
  EXPECT_TRUE(p.dossier.Existe("Temps1") && !p.dossier.Existe("Temps2"));

  p.dossier.Écrit("Scores", "-2147483646\r\n2147483627\r\n0\r\n-2147483648\r\n");
  p.t.LitScores();
  p.t.Mode_MouseUp();
  p.plateforme.tours = 0;
  p.t.Rejoue_MouseUp();
  const std::string bornés = "-2147483648 2147483647 -7 -2147483648";
  EXPECT_EQ(Partie::Textes(p.t.Fenêtre.ScoreLabel), bornés);
  EXPECT_EQ(p.dossier.Lit("Scores"), "-2147483648\r\n2147483647\r\n-7\r\n-2147483648\r\n");
  ASSERT_TRUE(p.t.Fenêtre.VoirOrdi[0].Visible);
  // The view moves the totals, never the scores, before SCORES A 0 and after.
  for (const std::string &scores : {bornés, std::string("0 0 0 0")}) {
    p.t.VoirOrdi_Click(0);
    p.t.VoirOrdi_Click(1);
    EXPECT_EQ(Partie::Textes(p.t.Fenêtre.ScoreLabel), scores);
    EXPECT_EQ(Partie::Textes(p.t.Fenêtre.TotalLabel), "-5 21 -7 -9");
    p.t.Scoresà0_MouseUp();
  }
  EXPECT_EQ(p.dossier.Lit("Scores"), "0\r\n0\r\n0\r\n0\r\n");

  std::string lignes; // without their dates
  for (const auto &e : historique::Lit().entrées)
    lignes += historique::Ligne(e).substr(19);
  EXPECT_EQ(lignes, ";EXPERT;-5;21;-7;-9;-5;21;-7;-9\r\n"
                    ";DEBUTANT;-5;21;-7;-9;-2147483648;2147483647;-7;-2147483648\r\n"
                    ";SCORES A 0\r\n;SCORES A 0\r\n");
  EXPECT_TRUE(p.plateforme.erreurs.empty());
}

TEST(Partie, JouerPuisGoPasseParLesÉtatsDeLaTable) {
  Partie p;
  auto &f = p.t.Fenêtre;
  p.plateforme.script = [&](int) {
    // During the sweep: the menu is off, STOP on.
    EXPECT_FALSE(f.NouveauJeu.Enabled || f.Rejoue.Enabled || f.Mode.Enabled || f.Scoresà0.Enabled ||
                 f.NomsJoueurs.Enabled || f.Joue.Visible);
    EXPECT_TRUE(f.Arrêt.Enabled && f.TempsTimer.Enabled);
  };
  p.t.NouveauJeu_MouseUp();
  EXPECT_TRUE(f.Joue.Visible && f.Arrêt.Enabled && !f.NouveauJeu.Enabled);

  p.plateforme.script = nullptr;
  p.t.TempsTimer_Timer();
  p.t.TempsTimer_Timer();
  p.t.Joue_Click();
  EXPECT_FALSE(f.Joue.Visible || f.Arrêt.Enabled || f.TempsTimer.Enabled ||
               f.CartesJeu[45].Enabled);
  EXPECT_TRUE(f.NouveauJeu.Enabled && f.VoirOrdi[0].Visible && f.VoirOrdi[0].Enabled);
  EXPECT_EQ(p.dossier.Lit("Temps2"), "2\r\n");

  // The next deal hides the solution button and counts down from this one's
  // time to 0, and the clock stops at its ceiling.
  p.t.NouveauJeu_MouseUp();
  EXPECT_FALSE(f.VoirOrdi[0].Visible);
  std::string vus = f.TempsLabel.Caption;
  for (int i = 0; i < 3; ++i) {
    p.t.TempsTimer_Timer();
    vus += f.TempsLabel.Caption;
  }
  EXPECT_EQ(vus, "2100");
  p.t.TempsÉcoulé = 32766;
  p.t.TempsTimer_Timer();
  p.t.TempsTimer_Timer();
  p.t.Joue_Click();
  EXPECT_EQ(p.dossier.Lit("Temps2"), "32767\r\n");
}

// STOP in the sweep gives the table back, and REJOUE plays that deal; STOP
// after it leaves GO. SCORES A 0 then pays the deal to nobody, and the mode
// button has the human's cards searched before the showdown.
TEST(Partie, StopPendantOuAprèsLeBalayage) {
  Partie p(0, "5\r\n6\r\n7\r\n8\r\n"); // EXPERT: seat 3 is not searched
  auto &f = p.t.Fenêtre;
  p.plateforme.script = [&](int tour) {
    if (tour == 3) {
      p.t.CartesJeu_MouseUp(40); // picked up, never laid down
      p.t.Arrêt_MouseUp();
      // Enabled by STOP, but the sweep is still on the stack.
      p.t.NouveauJeu_MouseUp();
      p.t.Rejoue_MouseUp();
    }
  };
  p.t.NouveauJeu_MouseUp();
  EXPECT_EQ(p.plateforme.tours, 3);
  EXPECT_FALSE(f.Arrêt.Enabled || f.Joue.Visible || f.TempsTimer.Enabled);
  EXPECT_TRUE(f.NouveauJeu.Enabled && f.Rejoue.Enabled && f.TempsLabel.Caption.empty());
  EXPECT_EQ(f.CartesJeu[45].Picture, PasDeCarte);
  p.t.CartesJeu_MouseUp(40);
  EXPECT_EQ(p.t.CarteLevée, 0) << "slots enabled but inert after a STOP";
  EXPECT_FALSE(p.dossier.Existe("Temps1"));
  EXPECT_EQ(p.dossier.Lit("Scores"), "5\r\n6\r\n7\r\n8\r\n");
  // The stopped deal is in Tirage.
  const uint8_t premier = p.t.Mains[0][0];
  p.plateforme.script = nullptr;
  p.t.Rejoue_MouseUp();
  EXPECT_EQ(p.t.Mains[0][0], premier);
  EXPECT_NE(f.LabelPaie[0].Caption, "");

  p.t.NouveauJeu_MouseUp();
  p.t.Arrêt_MouseUp();
  EXPECT_TRUE(f.Joue.Visible && f.NouveauJeu.Enabled && f.TempsTimer.Enabled && !f.Arrêt.Enabled);
  p.t.Scoresà0_MouseUp();
  p.t.Mode_MouseUp(); // DEBUTANT before GO
  p.t.Joue_Click();
  EXPECT_GT(p.t.MeilleurRangement[3], 0) << "the human's cards were searched before valuing";
  EXPECT_TRUE(p.dossier.Existe("Temps2") && !f.TotalLabel[0].Caption.empty());
  EXPECT_EQ(std::vector<int32_t>(p.t.Scores, p.t.Scores + 4), std::vector<int32_t>(4, 0));
  EXPECT_EQ(p.dossier.Lit("Scores"), Livré("Scores")) << "as the game ships it";
  // STOP, live again after the names panel, goes off with the solution view.
  p.t.NomsJoueurs_MouseUp();
  p.t.AnnuleNoms_MouseUp();
  ASSERT_TRUE(f.Arrêt.Enabled && f.VoirOrdi[0].Visible);
  for (int vue : {0, 1}) {
    p.t.VoirOrdi_Click(vue);
    EXPECT_EQ(f.VoirOrdi[1].Visible, vue == 0);
    EXPECT_FALSE(vue == 0 && (f.NouveauJeu.Enabled || f.Arrêt.Enabled || f.Scoresà0.Enabled));
    for (int k = 0; k <= 12; ++k)
      EXPECT_EQ(f.CartesJeu[39 + k].Picture, p.t.CartesMontrées[3 + vue][k]);
  }
}

// The human holds two five-card flushes and three hearts, dealt with the
// higher flush on level 2: out of order as laid, but the all-flush counts.
TEST(Partie, LeToutFlushDuDébutantLuiEstReconnu) {
  const std::vector<int> humain = {0, 2, 4, 6, 8, 14, 16, 18, 20, 22, 26, 27, 37};
  std::vector<std::vector<int>> donne(3);
  for (int c = 0, n = 0; c <= 51; ++c)
    if (std::find(humain.begin(), humain.end(), c) == humain.end())
      donne[n++ % 3].push_back(c);
  donne.push_back(humain);
  Partie p;
  p.dossier.Écrit("Tirage", TexteDeTirage(donne));
  p.t.Rejoue_MouseUp();
  EXPECT_EQ(p.t.Fenêtre.ExtraLabel[3].Caption, "TOUT FLUSH");
  EXPECT_EQ(p.t.Fenêtre.TotalLabel[3].Caption, "18");
  for (int k = 0; k <= 12; ++k)
    EXPECT_EQ(p.t.Mains[4][k], p.t.Mains[3][p.t.Rangements[p.t.MeilleurRangement[3]][k]])
        << "the solution replaces the layout";
}

TEST(Partie, SurDesDonnesAuHasardChaqueNiveauSePaieÀSommeNulle) {
  for (uint8_t mode : {1, 0}) {
    Partie p(mode);
    for (int d = 0; d < DonnesAuHasard; ++d) {
      p.plateforme.horloge = 1000.0f + static_cast<float>(d);
      p.plateforme.tours = 0;
      // Some swaps, which now and then put the levels out of order.
      p.plateforme.script = [&](int tour) {
        if (tour == 2 + d % 5)
          for (int k = d % 4; k + 1 <= 12; k += 3) {
            p.t.CartesJeu_MouseUp(39 + k);
            p.t.CartesJeu_MouseUp(51 - k);
          }
      };
      p.t.NouveauJeu_MouseUp();
      p.t.Joue_Click();
      int sommes[3] = {};
      for (int i = 0; i < 36; ++i)
        sommes[i % 9 / 3] += std::stoi(p.t.Fenêtre.LabelPaie[i].Caption);
      EXPECT_TRUE(sommes[0] == 0 && sommes[1] == 0 && sommes[2] == 0);
      EXPECT_EQ(std::accumulate(p.t.Scores, p.t.Scores + 4, 0), 0);
      if (mode == 1) {
        p.t.VoirOrdi_Click(0);
        EXPECT_EQ(std::accumulate(p.t.TotauxDonne, p.t.TotauxDonne + 4, 0), 0);
        p.t.VoirOrdi_Click(1);
      }
    }
  }
}

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "core/table_state.h"
#include "dossier_essai.h"
#include "platform/sans_fenetre.h"

namespace {

struct Partie {
  DossierEssai dossier;
  PlateformeSansFenêtre plateforme{dossier.Chemin()};
  TroisNiveaux t{plateforme};
  Partie() {
    t.Form_Load();
    EXPECT_FALSE(t.DémarrageRefusé) << t.ErreurDémarrage;
  }
  void Tirage(const std::vector<std::vector<int>> &mains) {
    std::string octets;
    for (const auto &main : mains)
      for (int c : main)
        octets += std::to_string(c) + "\r\n";
    dossier.Écrit("Tirage", octets);
  }
  std::vector<std::string> Paiements() const {
    std::vector<std::string> p;
    for (const Contrôle &l : t.Fenêtre.LabelPaie)
      p.push_back(l.Caption);
    return p;
  }
};

const std::vector<std::vector<int>> DonneExperte = {
    {1, 17, 14, 19, 38, 2, 13, 4, 24, 43, 25, 33, 26},
    {22, 3, 36, 10, 0, 8, 9, 27, 49, 47, 48, 35, 39},
    {32, 23, 6, 34, 5, 46, 41, 20, 50, 37, 45, 16, 29},
    {18, 44, 31, 15, 28, 30, 51, 40, 12, 42, 21, 7, 11}};

} // namespace

TEST(Partie, LaDonneExperteDeRéférenceSePaieCommePrévu) {
  Partie p;
  p.t.Mode_MouseUp();
  ASSERT_EQ(p.t.Mode, 0);
  p.Tirage(DonneExperte);
  p.t.Rejoue_MouseUp();
  EXPECT_EQ(p.t.MeilleurRangement[0], 49298);
  EXPECT_EQ(p.t.MeilleurRangement[1], 26192);
  EXPECT_EQ(p.t.MeilleurRangement[2], 13328);
  EXPECT_NEAR(p.t.ValeursNiveau1[0], 512.774, 1e-3);
  EXPECT_EQ(p.t.ValeursNiveau1[1], 1009);
  EXPECT_EQ(p.t.ValeursNiveau2[1], 610);
  EXPECT_EQ(p.t.ValeursNiveau1[3], 605);
  EXPECT_FLOAT_EQ(p.t.ValeursNiveau3[3], 11.58f);
  const std::vector<std::string> attendus = {
      "-4", "-1", "-1", "-2", "1",  "1",  "-1", "1",  "1",  "4",  "4",  "4",
      "2",  "2",  "2",  "1",  "1",  "1",  "1",  "-4", "1",  "-1", "-2", "1",
      "-1", "-1", "-1", "1",  "-4", "-1", "-1", "-2", "-1", "-1", "-1", "1"};
  EXPECT_EQ(p.Paiements(), attendus);
  const char *totaux[4] = {"-5", "21", "-7", "-9"};
  for (int s = 0; s <= 3; ++s) {
    EXPECT_EQ(p.t.Fenêtre.TotalLabel[s].Caption, totaux[s]);
    EXPECT_EQ(p.t.Fenêtre.ScoreLabel[s].Caption, totaux[s]);
  }
  EXPECT_EQ(p.t.Fenêtre.ScoreLabel[0].ForeColor, 0x0000FFu);
  EXPECT_EQ(p.dossier.Lit("Scores"), "-5\r\n21\r\n-7\r\n-9\r\n");
  EXPECT_EQ(p.t.Fenêtre.EnchèreLabel[3].Caption, "CARRE");
  EXPECT_EQ(p.t.Fenêtre.EnchèreLabel[4].Caption, "FULL");
  EXPECT_TRUE(p.t.Fenêtre.EnchèreLabel[4].Visible);
  EXPECT_FALSE(p.t.Fenêtre.VoirOrdi[0].Visible) << "no solution view in EXPERT";
  EXPECT_TRUE(p.dossier.Existe("Temps1"));
  EXPECT_FALSE(p.dossier.Existe("Temps2"));
}

TEST(Partie, JouerPuisGoPasseParLesÉtatsDeLaTable) {
  Partie p;
  auto &f = p.t.Fenêtre;
  int tours = 0;
  p.plateforme.script = [&](int) {
    ++tours;
    // During the sweep: the menu is off, STOP on, the human's cards live.
    EXPECT_FALSE(f.NouveauJeu.Enabled || f.Rejoue.Enabled || f.Mode.Enabled || f.Scoresà0.Enabled ||
                 f.NomsJoueurs.Enabled || f.Joue.Visible);
    EXPECT_TRUE(f.Arrêt.Enabled && f.TempsTimer.Enabled);
    if (tours == 1) {
      p.t.CartesJeu_MouseUp(39);
      p.t.CartesJeu_MouseUp(51);
      p.t.NouveauJeu_MouseUp(); // no sweep starts inside another
    }
  };
  p.t.NouveauJeu_MouseUp();
  EXPECT_EQ(tours, 4 * 1287);
  EXPECT_TRUE(f.Joue.Visible && f.Arrêt.Enabled && !f.NouveauJeu.Enabled);
  EXPECT_EQ(p.t.Mains[4][0], p.t.Mains[3][12]);
  EXPECT_EQ(f.CartesJeu[39].Picture, p.t.Mains[3][12]);
  EXPECT_EQ(f.TempsShape.Left, 0);

  p.plateforme.script = nullptr;
  p.t.TempsTimer_Timer();
  p.t.TempsTimer_Timer();
  p.t.Joue_Click();
  EXPECT_FALSE(f.Joue.Visible || f.Arrêt.Enabled || f.TempsTimer.Enabled);
  EXPECT_TRUE(f.NouveauJeu.Enabled && f.VoirOrdi[0].Visible && f.VoirOrdi[0].Enabled);
  for (int i = 39; i <= 51; ++i)
    EXPECT_FALSE(f.CartesJeu[i].Enabled);
  EXPECT_EQ(p.dossier.Lit("Temps2"), "2\r\n");
  int somme = 0;
  for (int s = 0; s <= 3; ++s)
    somme += p.t.TotauxDonne[s];
  EXPECT_EQ(somme, 0);

  // The next deal counts down from this one's time.
  p.plateforme.script = [&](int tour) {
    if (tour == 1) {
      EXPECT_EQ(f.TempsLabel.Caption, "2");
    }
  };
  p.t.NouveauJeu_MouseUp();
  EXPECT_EQ(p.t.TempsDébutant, 2);
}

TEST(Partie, StopPendantLeBalayageRendLaTableEtLaisseRejouer) {
  Partie p;
  auto &f = p.t.Fenêtre;
  p.plateforme.script = [&](int tour) {
    if (tour == 3) {
      p.t.CartesJeu_MouseUp(40); // picked up, never laid down
      p.t.Arrêt_MouseUp();
      p.t.NouveauJeu_MouseUp(); // already enabled, but the sweep is still on the stack
    }
  };
  p.t.NouveauJeu_MouseUp();
  EXPECT_EQ(p.plateforme.tours, 3);
  EXPECT_FALSE(f.Arrêt.Enabled || f.Joue.Visible || f.TempsTimer.Enabled);
  EXPECT_TRUE(f.NouveauJeu.Enabled && f.Rejoue.Enabled);
  EXPECT_EQ(f.TempsLabel.Caption, "");
  EXPECT_EQ(p.t.CarteLevée, 0);
  for (int c = 0; c <= 51; ++c)
    EXPECT_EQ(f.CartesJeu[c].Picture, PasDeCarte);
  p.t.CartesJeu_MouseUp(40);
  EXPECT_EQ(p.t.CarteLevée, 0) << "slots enabled but inert after a STOP";
  EXPECT_FALSE(p.dossier.Existe("Temps2"));
  EXPECT_EQ(p.dossier.Lit("Scores"), "0\r\n0\r\n0\r\n0\r\n");

  // The stopped deal is in Tirage: REJOUE plays it to the end.
  const uint8_t premier = p.t.Mains[0][0];
  p.plateforme.script = nullptr;
  p.t.Rejoue_MouseUp();
  EXPECT_EQ(p.t.Mains[0][0], premier);
  EXPECT_TRUE(f.VoirOrdi[0].Visible);
  EXPECT_NE(f.LabelPaie[0].Caption, "");
}

TEST(Partie, StopAprèsLeBalayageLaisseGoEtLeChangementDeModeCherchePourLHumain) {
  Partie p;
  auto &f = p.t.Fenêtre;
  p.t.Mode_MouseUp(); // EXPERT: seat 3 is not searched
  p.t.NouveauJeu_MouseUp();
  p.t.Arrêt_MouseUp();
  EXPECT_TRUE(f.Joue.Visible && f.NouveauJeu.Enabled && !f.Arrêt.Enabled);
  EXPECT_TRUE(f.TempsTimer.Enabled) << "the clock runs on until GO";
  p.t.Mode_MouseUp(); // back to DEBUTANT before GO
  EXPECT_EQ(f.TempsShape.Width, 3915);
  p.t.Joue_Click();
  EXPECT_GT(p.t.MeilleurRangement[3], 0) << "the human's cards were searched before valuing";
  EXPECT_TRUE(f.VoirOrdi[0].Visible);
  const std::string scores = p.dossier.Lit("Scores");
  int32_t avant[4];
  std::copy(p.t.Scores, p.t.Scores + 4, avant);

  // The solution view and back leave the scores and the file as they were.
  p.t.VoirOrdi_Click(0);
  EXPECT_TRUE(f.VoirOrdi[1].Visible && !f.VoirOrdi[0].Visible);
  EXPECT_FALSE(f.NouveauJeu.Enabled || f.Arrêt.Enabled || f.Scoresà0.Enabled);
  for (int k = 0; k <= 12; ++k)
    EXPECT_EQ(f.CartesJeu[39 + k].Picture, p.t.CartesMontrées[3][k]);
  int somme = 0;
  for (int s = 0; s <= 3; ++s)
    somme += p.t.TotauxDonne[s];
  EXPECT_EQ(somme, 0);
  p.t.VoirOrdi_Click(1);
  for (int s = 0; s <= 3; ++s)
    EXPECT_EQ(p.t.Scores[s], avant[s]);
  EXPECT_EQ(p.dossier.Lit("Scores"), scores);
  for (int k = 0; k <= 12; ++k)
    EXPECT_EQ(f.CartesJeu[39 + k].Picture, p.t.CartesMontrées[4][k]);
}

TEST(Partie, ScoresÀZéroAvantEtAprèsLAbattage) {
  Partie q;
  auto &f = q.t.Fenêtre;
  q.t.NouveauJeu_MouseUp();
  q.t.Joue_Click();
  q.t.Scoresà0_MouseUp();
  EXPECT_EQ(q.dossier.Lit("Scores"), "0\r\n0\r\n0\r\n0\r\n");
  const std::string total0 = f.TotalLabel[0].Caption;
  EXPECT_NE(total0, "");
  // After SCORES A 0 the view moves the totals but never the scores.
  q.t.VoirOrdi_Click(0);
  q.t.VoirOrdi_Click(1);
  for (int s = 0; s <= 3; ++s) {
    EXPECT_EQ(q.t.Scores[s], 0);
    EXPECT_EQ(f.ScoreLabel[s].Caption, "0");
  }
  EXPECT_EQ(f.TotalLabel[0].Caption, total0);
  EXPECT_EQ(q.dossier.Lit("Scores"), "0\r\n0\r\n0\r\n0\r\n");
}

TEST(Partie, UnRejoueSansTirageOuAvecUnTirageAbîméVaJusquAuBout) {
  for (const char *contenu : {static_cast<const char *>(nullptr), "7\r\nxyz\r\n300\r\n-1\r\n"}) {
    Partie p;
    if (contenu)
      p.dossier.Écrit("Tirage", contenu);
    p.t.Rejoue_MouseUp();
    EXPECT_FALSE(p.t.Fenêtre.Arrêt.Enabled);
    EXPECT_TRUE(p.t.Fenêtre.NouveauJeu.Enabled);
    int somme = 0;
    for (int s = 0; s <= 3; ++s)
      somme += p.t.TotauxDonne[s];
    EXPECT_EQ(somme, 0);
  }
}

TEST(Partie, SurDesDonnesAuHasardChaqueNiveauSePaieÀSommeNulle) {
  const int donnes = std::getenv("TN_DONNES_RAPIDES") ? 6 : 40;
  for (uint8_t mode : {1, 0}) {
    Partie p;
    if (mode == 0)
      p.t.Mode_MouseUp();
    for (int d = 0; d < donnes; ++d) {
      p.plateforme.horloge = 1000.0f + d;
      p.plateforme.script = [&](int tour) {
        if (tour == 2)
          for (int k = 0; k + 1 <= 12; k += 3) {
            p.t.CartesJeu_MouseUp(39 + k);
            p.t.CartesJeu_MouseUp(40 + k);
          }
      };
      p.t.NouveauJeu_MouseUp();
      p.t.Joue_Click();
      for (int niveau = 0; niveau < 3; ++niveau) {
        int somme = 0;
        for (int s = 0; s <= 3; ++s)
          for (int j = 0; j <= 2; ++j)
            somme += std::stoi(p.t.Fenêtre.LabelPaie[9 * s + 3 * niveau + j].Caption);
        EXPECT_EQ(somme, 0);
      }
      EXPECT_EQ(std::accumulate(p.t.Scores, p.t.Scores + 4, 0), 0);
    }
  }
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <gtest/gtest.h>

#include <vector>

#include "core/table_state.h"
#include "dossier_essai.h"
#include "platform/sans_fenetre.h"

namespace {
struct Écran {
  PlateformeSansFenêtre plateforme;
  TroisNiveaux t{plateforme};
  explicit Écran(EnregistrementAffichage mode) { plateforme.écran = mode; }
};
} // namespace

// The display mode at the start, by the screen's height, and at the end:
// switched to 1024 x 768 only when too low and with the player's leave,
// always put back as it was.
TEST(Résolution, UnÉcranTropBasPasseEn1024x768AvecLAccordEtRevientÀLaFin) {
  struct Cas {
    int16_t largeur, hauteur;
    int demandes;
  };
  for (const Cas &c : {Cas{800, 768, 0}, Cas{800, 1200, 0}, Cas{1280, 720, 1}}) {
    Écran é({c.largeur, c.hauteur, 32, 75, 0});
    é.t.VérifieRésolution();
    EXPECT_EQ(é.plateforme.demandesRésolution, c.demandes);
    ASSERT_EQ(é.plateforme.changements.size(), c.demandes ? 1u : 0u);
    if (c.demandes) {
      const auto &e = é.plateforme.changements[0];
      EXPECT_EQ(
          std::vector<int>({e.dmPelsWidth, e.dmPelsHeight, e.dmBitsPerPel, e.dmDisplayFrequency}),
          std::vector<int>({1024, 768, 32, 75}));
    }
    é.t.RestaureRésolution();
    const auto &fin = é.plateforme.changements.back();
    EXPECT_TRUE(fin.dmPelsWidth == c.largeur && fin.dmPelsHeight == c.hauteur &&
                fin.dmFields == 0x5C0000u);
  }

  // Refused, nothing after runs; a start that fails later puts the mode back.
  Écran refus({1280, 720, 32, 75, 0});
  refus.plateforme.accordRésolution = false;
  refus.t.Form_Load();
  EXPECT_TRUE(refus.t.DémarrageRefusé && refus.t.Rangements.empty());
  EXPECT_TRUE(refus.plateforme.changements.empty());
  EXPECT_TRUE(refus.plateforme.erreurs.empty()) << "the player's choice, not a fault";
  DossierEssai d;
  d.Écrit("Scores", "0\r\n0\r\n");
  PlateformeSansFenêtre p(d.Chemin());
  p.écran = {1024, 600, 24, 60, 0};
  TroisNiveaux t(p);
  t.Form_Load();
  ASSERT_TRUE(t.DémarrageRefusé);
  ASSERT_EQ(p.changements.size(), 2u);
  EXPECT_EQ(p.changements[0].dmPelsHeight, 768);
  EXPECT_EQ(p.écran.dmPelsHeight, 600) << "the screen is back as it was";
}

// What the player asks for takes the place of the old mode field by field;
// a mix that is no known case sends the record as it stands.
TEST(Résolution, LesCasDuChangementSuiventLesValeursDemandées) {
  Écran é({1024, 600, 16, 0, 0});
  é.t.VérifieRésolution(); // a frequency of 0 makes no case
  ASSERT_EQ(é.plateforme.changements.size(), 1u);
  EXPECT_TRUE(é.plateforme.changements[0].dmPelsHeight == 600 && é.t.ModeDemandé.largeur == 0);
  const int16_t z = 0, l = 1280, h = 1024, c = 24;
  é.t.ChangeRésolution(l, h, c, 85);
  é.t.ChangeRésolution(z, z, z, 60);
  é.t.ChangeRésolution(l, z, z, z);
  const auto &e = é.plateforme.changements.back();
  EXPECT_EQ(std::vector<int>({e.dmPelsWidth, e.dmPelsHeight, e.dmBitsPerPel, e.dmDisplayFrequency}),
            std::vector<int>({1280, 1024, 24, 60}));
  const auto envois = é.plateforme.changements.size();
  é.t.ChangeRésolution(z, z, z, z);
  EXPECT_EQ(é.plateforme.changements.size(), envois) << "nothing asked, nothing sent";
  é.t.ChangeRésolution(h, l, z, z);
  EXPECT_TRUE(é.plateforme.changements.back().dmPelsWidth == 1024 &&
              é.plateforme.changements.back().dmBitsPerPel == 24);
}

TEST(Connexion, LAvisRevientTantQueLaMachineEstHorsLigne) {
  PlateformeSansFenêtre p;
  TroisNiveaux t(p);
  t.NonConnectéTimer_Timer();
  EXPECT_FALSE(t.Fenêtre.NonConnectéPic.Visible);
  EXPECT_TRUE(p.pages.empty()) << "on line, the logo page is never opened";
  p.connecté = false;
  t.NonConnectéTimer_Timer();
  EXPECT_TRUE(t.Fenêtre.NonConnectéPic.Visible);
  ASSERT_EQ(p.pages.size(), 1u);
  EXPECT_EQ(p.pages[0].second, "logomdc200.htm");
  t.NonConnectéCmd_Click();
  EXPECT_FALSE(t.Fenêtre.NonConnectéPic.Visible);
  t.NonConnectéTimer_Timer();
  EXPECT_TRUE(t.Fenêtre.NonConnectéPic.Visible);
  p.connecté = true;
  t.NonConnectéTimer_Timer();
  EXPECT_TRUE(t.Fenêtre.NonConnectéPic.Visible) << "back on line, the notice waits for OK";
}

TEST(Noms, EnregistreDonneLesNomsDeSecoursAuxCasesVidesEtAnnuleGardeLaSaisie) {
  DossierEssai dossier;
  PlateformeSansFenêtre p(dossier.Chemin());
  TroisNiveaux t(p);
  t.Form_Load();
  auto &f = t.Fenêtre;
  t.NomsJoueurs_MouseUp();
  EXPECT_FALSE(!f.NomsJoueursSS.Visible || f.NouveauJeu.Enabled || f.Arrêt.Enabled ||
               f.Mode.Enabled);
  t.NouveauJeu_MouseUp();
  EXPECT_EQ(p.tours, 0) << "no deal while the panel is open";
  for (auto &texte : f.NomsJoueursText)
    texte.Text = "";
  f.NomsJoueursText[3].Text = "  ";
  t.EnregistreNoms_MouseUp();
  EXPECT_EQ(dossier.Lit("Noms"),
            "\"MicroProc\"\r\n\"GigaOctets\"\r\n\"M\xE9gaBytes\"\r\n\"  \"\r\n");
  EXPECT_EQ(f.JoueursLabel[2].Caption, "MégaBytes");
  EXPECT_EQ(f.NomsJoueursText[2].Text, "") << "the box stays empty";
  EXPECT_TRUE(!f.NomsJoueursSS.Visible && f.NouveauJeu.Enabled && f.Arrêt.Enabled);

  t.NomsJoueurs_MouseUp();
  f.NomsJoueursText[0].Text = "Zoé";
  t.AnnuleNoms_MouseUp();
  EXPECT_TRUE(f.JoueursLabel[0].Caption == "MicroProc" && f.NomsJoueursText[0].Text == "Zoé");
  EXPECT_EQ(dossier.Lit("Noms").substr(0, 12), "\"MicroProc\"\r");
}

TEST(Règles, LesPagesSeTournentEntreLaPremièreEtLaQuatorzième) {
  PlateformeSansFenêtre p;
  TroisNiveaux t(p);
  t.ComposeTextesRègles();
  auto &f = t.Fenêtre;
  EXPECT_TRUE(t.TextesRègles[13].ends_with("et en mode EXPERT."));
  EXPECT_TRUE(t.TextesRègles[7].ends_with('\r') &&
              t.TextesRègles[7].find('\n') == std::string::npos);
  t.VoirRègles_Click(0);
  EXPECT_TRUE(f.RèglesText.Visible && f.VoirRègles[1].Visible && !f.VoirRègles[0].Visible);
  std::string vus;
  for (int n : {0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0}) {
    t.TextScroll_Click(n);
    vus += f.TextCombien.Caption;
  }
  EXPECT_EQ(vus, " 1/14 2/14 3/14 4/14 5/14 6/14 7/14 8/14 9/14 10/14 11/14 12/14 13/14 14/14 "
                 "14/14 14/14 13/14");
  EXPECT_EQ(f.AfficheRègles.Caption, t.TextesRègles[12]);
  t.VoirRègles_Click(1);
  t.VoirRègles_Click(0);
  EXPECT_EQ(f.TextCombien.Caption, " 1/14") << "the book opens at its first page";
}

#include <gtest/gtest.h>

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

TEST(Résolution, UnÉcranAssezHautNeChangeRienMaisLaFinRenvoieLeMode) {
  for (int16_t hauteur : {768, 1200}) {
    Écran é({800, hauteur, 24, 60, 0});
    é.t.VérifieRésolution();
    EXPECT_EQ(é.plateforme.demandesRésolution, 0);
    EXPECT_TRUE(é.plateforme.changements.empty());
    é.t.RestaureRésolution();
    ASSERT_EQ(é.plateforme.changements.size(), 1u);
    const auto &e = é.plateforme.changements[0];
    EXPECT_EQ(e.dmPelsWidth, 800);
    EXPECT_EQ(e.dmPelsHeight, hauteur);
    EXPECT_EQ(e.dmFields, 0x5C0000u);
  }
}

TEST(Résolution, UnÉcranTropBasPasseEn1024x768AvecLAccordEtRevientÀLaFin) {
  Écran é({1280, 720, 32, 75, 0});
  é.t.VérifieRésolution();
  EXPECT_EQ(é.plateforme.demandesRésolution, 1);
  ASSERT_EQ(é.plateforme.changements.size(), 1u);
  EXPECT_EQ(é.plateforme.changements[0].dmPelsWidth, 1024);
  EXPECT_EQ(é.plateforme.changements[0].dmPelsHeight, 768);
  EXPECT_EQ(é.plateforme.changements[0].dmBitsPerPel, 32);
  EXPECT_EQ(é.plateforme.changements[0].dmDisplayFrequency, 75);
  é.t.RestaureRésolution();
  EXPECT_EQ(é.plateforme.changements.back().dmPelsWidth, 1280);
  EXPECT_EQ(é.plateforme.changements.back().dmPelsHeight, 720);

  Écran refus({1280, 720, 32, 75, 0});
  refus.plateforme.accordRésolution = false;
  refus.t.Form_Load();
  EXPECT_TRUE(refus.t.DémarrageRefusé);
  EXPECT_TRUE(refus.plateforme.changements.empty());
  EXPECT_TRUE(refus.plateforme.erreurs.empty()) << "the player's choice, not a fault";
  EXPECT_TRUE(refus.t.Rangements.empty()) << "nothing after the refusal runs";
}

TEST(Résolution, LesCasDuChangementSuiventLesValeursDemandées) {
  Écran é({1024, 600, 16, 0, 0});
  // A frequency of 0 makes a mix that is no case: the old mode goes out as is.
  é.t.VérifieRésolution();
  ASSERT_EQ(é.plateforme.changements.size(), 1u);
  EXPECT_EQ(é.plateforme.changements[0].dmPelsHeight, 600);
  EXPECT_EQ(é.t.ModeDemandé.largeur, 0);

  const int16_t z = 0, l = 1280, h = 1024, c = 24, f = 85, f2 = 60;
  é.t.ChangeRésolution(l, h, c, f);
  é.t.ChangeRésolution(z, z, z, f2);
  const auto &e = é.plateforme.changements.back();
  EXPECT_EQ(e.dmPelsWidth, 1280);
  EXPECT_EQ(e.dmPelsHeight, 1024);
  EXPECT_EQ(e.dmBitsPerPel, 24);
  EXPECT_EQ(e.dmDisplayFrequency, 60);
  é.t.ChangeRésolution(l, z, z, z); // no case: the record as it stands
  EXPECT_EQ(é.plateforme.changements.back().dmDisplayFrequency, 60);
  const auto envois = é.plateforme.changements.size();
  é.t.ChangeRésolution(z, z, z, z);
  EXPECT_EQ(é.plateforme.changements.size(), envois) << "nothing asked, nothing sent";
  é.t.ChangeRésolution(z, z, c, z);
  EXPECT_EQ(é.t.ModeDemandé.couleurs, 24);
  é.t.ChangeRésolution(h, l, z, z);
  EXPECT_EQ(é.plateforme.changements.back().dmPelsWidth, 1024);
  EXPECT_EQ(é.plateforme.changements.back().dmBitsPerPel, 24);
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
  EXPECT_TRUE(f.NomsJoueursSS.Visible);
  EXPECT_FALSE(f.NouveauJeu.Enabled || f.Arrêt.Enabled || f.Mode.Enabled);
  t.NouveauJeu_MouseUp();
  EXPECT_EQ(p.tours, 0) << "no deal while the panel is open";
  for (auto &texte : f.NomsJoueursText)
    texte.Text = "";
  f.NomsJoueursText[3].Text = "  ";
  t.EnregistreNoms_MouseUp();
  EXPECT_EQ(dossier.Lit("Noms"), "\"MicroProc\"\r\n\"GigaOctets\"\r\n\"M\xE9gaBytes\"\r\n\"  \"\r\n");
  EXPECT_EQ(f.JoueursLabel[2].Caption, "MégaBytes");
  EXPECT_EQ(f.NomsJoueursText[2].Text, "") << "the box stays empty";
  EXPECT_FALSE(f.NomsJoueursSS.Visible);
  EXPECT_TRUE(f.NouveauJeu.Enabled && f.Arrêt.Enabled);

  t.NomsJoueurs_MouseUp();
  f.NomsJoueursText[0].Text = "Zoé";
  t.AnnuleNoms_MouseUp();
  EXPECT_EQ(f.JoueursLabel[0].Caption, "MicroProc");
  EXPECT_EQ(f.NomsJoueursText[0].Text, "Zoé");
  EXPECT_EQ(dossier.Lit("Noms").substr(0, 12), "\"MicroProc\"\r");
}

TEST(Règles, LesPagesSeTournentEntreLaPremièreEtLaQuatorzième) {
  PlateformeSansFenêtre p;
  TroisNiveaux t(p);
  t.ComposeTextesRègles();
  auto &f = t.Fenêtre;
  EXPECT_EQ(t.TextesRègles[13], "manière automatique à la fin de la donne, et ce, en mode DEBUTANT "
                                "et en mode EXPERT.");
  EXPECT_EQ(t.TextesRègles[7].back(), '\r');
  EXPECT_EQ(t.TextesRègles[7].find('\n'), std::string::npos);
  t.VoirRègles_Click(0);
  EXPECT_TRUE(f.RèglesText.Visible && f.VoirRègles[1].Visible && !f.VoirRègles[0].Visible);
  EXPECT_EQ(f.TextCombien.Caption, " 1/14");
  t.TextScroll_Click(0);
  EXPECT_EQ(t.PageRègles, 0) << "no page before the first";
  for (int n = 0; n < 20; ++n)
    t.TextScroll_Click(1);
  EXPECT_EQ(t.PageRègles, 13);
  EXPECT_EQ(f.TextCombien.Caption, " 14/14");
  EXPECT_EQ(f.TextScroll[1].MousePointer, SensInterdit);
  t.TextScroll_Click(0);
  EXPECT_EQ(f.AfficheRègles.Caption, t.TextesRègles[12]);
  EXPECT_EQ(f.TextScroll[1].MousePointer, FlècheHaut);
  t.VoirRègles_Click(1);
  EXPECT_FALSE(f.RèglesText.Visible);
  t.VoirRègles_Click(0);
  EXPECT_EQ(f.TextCombien.Caption, " 1/14");
  t.TextScroll_Click(1);
  EXPECT_EQ(f.TextCombien.Caption, " 2/14");
}

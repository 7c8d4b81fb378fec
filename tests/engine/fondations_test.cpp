#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "core/table_state.h"
#include "dossier_essai.h"
#include "platform/sans_fenetre.h"

namespace {

struct Séance {
  DossierEssai dossier;
  PlateformeSansFenêtre plateforme{dossier.Chemin()};
  TroisNiveaux t{plateforme};
};

std::array<uint8_t, 13> Rangée(std::initializer_list<int> v) {
  std::array<uint8_t, 13> r{};
  std::copy(v.begin(), v.end(), r.begin());
  return r;
}

} // namespace

TEST(Rangements, ChaqueRangéeEstUneDispositionEtLesGroupesVontParCinquanteSix) {
  PlateformeSansFenêtre p;
  TroisNiveaux t(p);
  t.ConstruitRangements();
  ASSERT_EQ(t.Rangements.size(), 72073u);
  EXPECT_EQ(t.Rangements[0], (std::array<uint8_t, 13>{}));
  int débutsDeGroupe = 0;
  for (int i = 1; i <= NombreRangements; ++i) {
    const auto &r = t.Rangements[i];
    ASSERT_EQ(std::set<int>(r.begin(), r.end()), std::set<int>({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}))
        << "rangée " << i;
    ASSERT_TRUE(std::is_sorted(r.begin(), r.begin() + 5) && std::is_sorted(r.begin() + 5, r.begin() + 10) &&
                std::is_sorted(r.begin() + 10, r.end()));
    if (i > 1) {
      const auto &avant = t.Rangements[i - 1];
      ASSERT_TRUE(std::lexicographical_compare(avant.begin(), avant.begin() + 10, r.begin(), r.begin() + 10));
      const bool nouveauNiveau1 = !std::equal(r.begin(), r.begin() + 5, avant.begin());
      ASSERT_EQ(nouveauNiveau1, i % 56 == 1) << "rangée " << i;
    }
    débutsDeGroupe += i % 56 == 1;
  }
  EXPECT_EQ(débutsDeGroupe, 1287);

  EXPECT_EQ(t.Rangements[1], Rangée({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
  EXPECT_EQ(t.Rangements[2], Rangée({0, 1, 2, 3, 4, 5, 6, 7, 8, 10, 9, 11, 12}));
  EXPECT_EQ(t.Rangements[56], Rangée({0, 1, 2, 3, 4, 8, 9, 10, 11, 12, 5, 6, 7}));
  EXPECT_EQ(t.Rangements[57], Rangée({0, 1, 2, 3, 5, 4, 6, 7, 8, 9, 10, 11, 12}));
  EXPECT_EQ(t.Rangements[112], Rangée({0, 1, 2, 3, 5, 8, 9, 10, 11, 12, 4, 6, 7}));
  EXPECT_EQ(t.Rangements[36036], Rangée({1, 3, 5, 6, 7, 0, 4, 9, 10, 12, 2, 8, 11}));
  EXPECT_EQ(t.Rangements[72016], Rangée({7, 9, 10, 11, 12, 3, 4, 5, 6, 8, 0, 1, 2}));
  EXPECT_EQ(t.Rangements[72017], Rangée({8, 9, 10, 11, 12, 0, 1, 2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(t.Rangements[72072], Rangée({8, 9, 10, 11, 12, 3, 4, 5, 6, 7, 0, 1, 2}));
}

TEST(Donne, UneHorlogeArrêtéeDonneQuandMêmeLesCinquanteDeuxCartes) {
  Séance s;
  s.t.Form_Load();
  s.plateforme.horloge = 43200.0f; // never moves
  s.t.Init();
  s.t.Distribue();
  EXPECT_EQ(std::set<int>(std::begin(s.t.CartesTirées), std::end(s.t.CartesTirées)).size(), 52u);
  EXPECT_LE(*std::max_element(std::begin(s.t.CartesTirées), std::end(s.t.CartesTirées)), 51);
  std::string attendu;
  for (int siège = 0; siège <= 3; ++siège)
    for (int k = 0; k <= 12; ++k) {
      EXPECT_EQ(s.t.Mains[siège][k], s.t.CartesTirées[13 * siège + k]) << "no round-robin";
      attendu += std::to_string(s.t.Mains[siège][k]) + "\r\n";
    }
  EXPECT_EQ(s.dossier.Lit("Tirage"), attendu);
  for (int k = 0; k <= 12; ++k) {
    EXPECT_EQ(s.t.Mains[4][k], s.t.Mains[3][k]);
    EXPECT_EQ(s.t.Fenêtre.CartesJeu[39 + k].Picture, s.t.Mains[3][k]);
    EXPECT_TRUE(s.t.Fenêtre.CartesJeu[39 + k].Enabled);
  }
  for (int c = 0; c <= 38; ++c)
    EXPECT_EQ(s.t.Fenêtre.CartesJeu[c].Picture, PasDeCarte);
}

TEST(Donne, InitRemetLaTableÀZéroSansToucherAuReste) {
  Séance s;
  s.t.Form_Load();
  auto &t = s.t;
  auto &f = t.Fenêtre;
  t.CarteLevée = 1;
  t.ScoresÉcrits = t.ScoresRemisà0 = true;
  t.ToutFlush[2] = t.ToutQuinte[1] = t.SixPaires[3] = t.MégaQuinte[0] = true;
  t.TotauxDonne[1] = 7;
  f.ExtraLabel[2].Caption = "TOUT FLUSH";
  f.TotalLabel[0].Caption = "12";
  for (auto &l : f.LabelPaie) {
    l.Caption = "-4";
    l.ForeColor = 0x0000FF;
    l.BackColor = 0xE0E0E0;
  }
  f.EnchèreLabel[4].Visible = true;
  f.CartesJeu[40].Picture = 17;
  f.CartesJeu[52].Picture = 17;
  f.TempsShape.BackColor = 0x00C000;
  t.Mains[4][0] = 9;
  t.MeilleurRangement[1] = 1234;
  t.Scores[0] = -3;
  t.TempsÉcoulé = 12;
  f.TempsLabel.Caption = "5";
  f.Joue.Visible = true;
  s.dossier.Écrit("Temps2", "  17 secondes\r\n");

  t.Init();
  EXPECT_EQ(t.CarteLevée, 0);
  EXPECT_FALSE(t.ScoresÉcrits || t.ScoresRemisà0 || t.ToutFlush[2] || t.ToutQuinte[1] ||
               t.SixPaires[3] || t.MégaQuinte[0]);
  EXPECT_EQ(t.TotauxDonne[1], 0);
  EXPECT_EQ(f.ExtraLabel[2].Caption, "");
  EXPECT_EQ(f.TotalLabel[0].Caption, "");
  // Each payment label takes the colour of the opponent it stands for.
  const std::set<int> parSiège[4] = {{9, 12, 15, 18, 21, 24, 27, 30, 33},
                                     {0, 3, 6, 19, 22, 25, 28, 31, 34},
                                     {1, 4, 7, 10, 13, 16, 29, 32, 35},
                                     {2, 5, 8, 11, 14, 17, 20, 23, 26}};
  for (int i = 0; i <= 35; ++i) {
    EXPECT_EQ(f.LabelPaie[i].Caption, "");
    EXPECT_EQ(f.LabelPaie[i].ForeColor, 0u);
    const int adversaire = static_cast<int>(
        std::find_if(parSiège, parSiège + 4, [i](const auto &e) { return e.count(i) > 0; }) - parSiège);
    EXPECT_EQ(f.LabelPaie[i].BackColor, CouleurSiège[adversaire]) << "LabelPaie(" << i << ")";
  }
  EXPECT_FALSE(f.EnchèreLabel[4].Visible);
  EXPECT_EQ(f.CartesJeu[40].Picture, PasDeCarte);
  EXPECT_EQ(f.TempsShape.Left, -3900);
  EXPECT_EQ(f.TempsShape.BackColor, CouleurSiège[0]);
  EXPECT_EQ(t.TempsDébutant, 17);
  // Left alone: the hands, the kept rows, the scores, the clock, the buttons and slot 52.
  EXPECT_EQ(f.CartesJeu[52].Picture, 17);
  EXPECT_EQ(t.Mains[4][0], 9);
  EXPECT_EQ(t.MeilleurRangement[1], 1234);
  EXPECT_EQ(t.Scores[0], -3);
  EXPECT_EQ(t.TempsÉcoulé, 12);
  EXPECT_EQ(f.TempsLabel.Caption, "5");
  EXPECT_TRUE(f.Joue.Visible);
}

TEST(Démarrage, LaTableAttendJouerDansSonÉtatDeDépart) {
  Séance s;
  s.dossier.Écrit("Scores", "-3\r\n0\r\n4\r\n0\r\n");
  std::filesystem::current_path(std::filesystem::temp_directory_path());
  s.t.Form_Load();
  ASSERT_FALSE(s.t.DémarrageRefusé);
  EXPECT_EQ(std::filesystem::current_path(), std::filesystem::path(s.dossier.Chemin()));
  ASSERT_EQ(s.plateforme.pages.size(), 2u);
  EXPECT_EQ(s.plateforme.pages[0], std::make_pair(VueWeb::Pub0Web, std::string("pub0.htm")));
  EXPECT_EQ(s.plateforme.pages[1], std::make_pair(VueWeb::Pub1Web, std::string("pub1.htm")));

  const auto &f = s.t.Fenêtre;
  EXPECT_EQ(s.t.Mode, 1);
  EXPECT_EQ(s.t.BaseMain[3], 380);
  EXPECT_EQ(f.Form.Width, 15360);
  EXPECT_EQ(f.Form.Height, 11520);
  for (const Contrôle *b : {&f.NouveauJeu, &f.Arrêt, &f.Rejoue, &f.Mode, &f.NomsJoueurs,
                            &f.Scoresà0, &f.Fin})
    EXPECT_TRUE(b->Visible && b->Enabled) << b->Nom;
  EXPECT_EQ(f.Mode.Caption, "DEBUTANT");
  EXPECT_FALSE(f.Joue.Visible || f.VoirOrdi[0].Visible || f.VoirOrdi[1].Visible);
  for (int c = 0; c <= 51; ++c) {
    EXPECT_EQ(f.CartesJeu[c].Picture, PasDeCarte);
    EXPECT_EQ(f.CartesJeu[c].Enabled, c < 39) << c;
  }
  EXPECT_FALSE(f.CartesJeu[52].Visible);
  for (const Contrôle &l : f.EnchèreLabel)
    EXPECT_FALSE(l.Visible);
  for (const Contrôle &l : f.LabelPaie)
    EXPECT_EQ(l.Caption, "");
  EXPECT_EQ(f.TempsLabel.Caption, "");
  EXPECT_FALSE(f.NomsJoueursSS.Visible || f.RèglesText.Visible || f.NonConnectéPic.Visible);
  EXPECT_TRUE(!f.TempsTimer.Enabled && f.TempsTimer.Interval == 1000);
  EXPECT_TRUE(f.EtoilesTimer.Enabled && f.EtoilesTimer.Interval == 1);
  EXPECT_TRUE(f.NonConnectéTimer.Enabled && f.NonConnectéTimer.Interval == 20000);
  EXPECT_EQ(f.ScoreLabel[0].ForeColor, 255u) << "a negative score shows red before any deal";
  EXPECT_EQ(f.ScoreLabel[0].Caption, "-3");
  EXPECT_EQ(f.ScoreLabel[2].ForeColor, 0u);
  EXPECT_EQ(f.NonConnectéPic.Left, 4132);
  EXPECT_EQ(f.NonConnectéPic.Top, 3952);
  EXPECT_EQ(s.t.TempsExpert, 0);
  EXPECT_EQ(s.t.TempsDébutant, 0);
  EXPECT_EQ(s.t.Rangements.size(), 72073u);
  for (int i = 1; i <= 50; ++i) {
    EXPECT_TRUE(s.t.EtoileX[i] >= 0 && s.t.EtoileX[i] < 15360);
    EXPECT_TRUE(s.t.EtoileY[i] >= 0 && s.t.EtoileY[i] < 11520);
    EXPECT_TRUE(s.t.EtoileVitesse[i] >= 2 && s.t.EtoileVitesse[i] <= 500);
    EXPECT_TRUE(s.t.EtoileRayon[i] >= 0 && s.t.EtoileRayon[i] <= 16);
  }

  s.t.Fin_MouseUp();
  EXPECT_TRUE(s.t.SessionTerminée && s.plateforme.quitté);
}

// The controls whose place comes out of a formula, against the design.
TEST(Démarrage, LesContrôlesCalculésSontÀLeurPlace) {
  PlateformeSansFenêtre p;
  TroisNiveaux t(p);
  const auto &f = t.Fenêtre;
  struct Cas {
    const Contrôle &c;
    const char *nom;
    const Contrôle *parent;
    int left, top;
  };
  const Cas cas[] = {
      {f.CartesJeu[0], "CartesJeu(0)", &f.SSJoueurFond[0], 0, 2280},
      {f.CartesJeu[20], "CartesJeu(20)", &f.SSJoueurFond[1], 720, 1140},
      {f.CartesJeu[49], "CartesJeu(49)", &f.SSJoueurFond[3], 360, 0},
      {f.CartesJeu[51], "CartesJeu(51)", &f.SSJoueurFond[3], 1080, 0},
      {f.CartesJeu[52], "CartesJeu(52)", &f.SSJoueurFond[3], 0, 0},
      {f.SSPaie[4], "SSPaie(4)", &f.SSJoueurFond[1], 2805, 1140},
      {f.EnchèreLabel[5], "EnchèreLabel(5)", &f.SSJoueurFond[1], 1440, 840},
      {f.NiveauLabel[4], "NiveauLabel(4)", &f.SSPaie[4], 0, 855},
      {f.NiveauLabel[9], "NiveauLabel(9)", &f.SSPaie[11], 0, 855},
      {f.LabelPaie[2], "LabelPaie(2)", &f.SSPaie[0], 15, 540},
      {f.LabelPaie[22], "LabelPaie(22)", &f.SSPaie[7], 445, 80},
      {f.LabelPaie[31], "LabelPaie(31)", &f.SSPaie[10], 255, 180},
      {f.TotalLabel[0], "TotalLabel(0)", &f.SSJoueur[0], 3120, 3780},
      {f.TotalLabel[2], "TotalLabel(2)", &f.SSJoueur[2], 3135, 3780},
      {f.NomsJoueursText[3], "NomsJoueursText(3)", &f.NomsJoueursSS, 90, 1185},
      {f.SSJoueur[3], "SSJoueur(3)", nullptr, 4035, 4800},
  };
  for (const Cas &c : cas) {
    EXPECT_EQ(c.c.Nom, c.nom);
    EXPECT_EQ(c.c.Parent, c.parent) << c.nom;
    EXPECT_EQ(std::make_pair(c.c.Left, c.c.Top), std::make_pair(c.left, c.top)) << c.nom;
  }
  EXPECT_EQ(f.NiveauLabel[4].Caption, "NIVEAU 2");
  EXPECT_EQ(f.NiveauLabel[9].Caption, "NIVEAU 3");
  EXPECT_EQ(f.LabelPaie[31].BackColor, CouleurSiège[1]);
  EXPECT_EQ(f.EnchèreLabel[5].BackColor, CouleurSiègeSombre[1]);
  for (int c = 0; c <= 52; ++c)
    EXPECT_EQ(f.CartesJeu[c].MousePointer, c >= 39 && c <= 51 ? FlècheHaut : 0) << c;
  for (const Contrôle *b : {&f.NouveauJeu, &f.Joue, &f.VoirOrdi[0], &f.VoirRègles[1], &f.TextScroll[0],
                            &f.EnregistreNoms, &f.NonConnectéCmd})
    EXPECT_EQ(b->MousePointer, FlècheHaut) << b->Nom;
  EXPECT_EQ(f.NouveauJeu.police.Taille, 20.25);
  EXPECT_EQ(f.Scoresà0.police.Taille, 14.25);
  const Contrôle *attendu[] = {&f.NomsJoueursSS, &f.SSJoueur[3], &f.RèglesText, &f.MenuSS, &f.Pub0Pic,
                               &f.Pub1Pic,       &f.NonConnectéPic, &f.SSImage,  &f.SSJoueur[1], &f.TempsSS,
                               &f.SSCartes,      &f.SSJoueur[2], &f.SSJoueur[0]};
  EXPECT_TRUE(std::equal(std::begin(attendu), std::end(attendu), std::begin(f.Empilement)));
}

TEST(Démarrage, UneCarteSansImageNeTouchePasÀLaTable) {
  PlateformeSansFenêtre p;
  TroisNiveaux t(p);
  for (int code : {-1, 55, 255, 1 << 20})
    t.MontreCarte(40, code);
  t.MontreCarte(53, 3);
  t.MontreCarte(-1, 3);
  EXPECT_EQ(t.Fenêtre.CartesJeu[40].Picture, PasDeCarte);
  t.MontreCarte(40, 54);
  t.MontreCarte(41, 0);
  EXPECT_EQ(t.Fenêtre.CartesJeu[41].Picture, 0);
}

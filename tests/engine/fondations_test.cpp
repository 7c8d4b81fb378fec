#include <gtest/gtest.h>

#include <algorithm>
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
    std::set<int> positions(r.begin(), r.end());
    ASSERT_EQ(positions.size(), 13u) << "rangée " << i;
    ASSERT_EQ(*positions.rbegin(), 12);
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
  std::set<int> tirées(std::begin(s.t.CartesTirées), std::end(s.t.CartesTirées));
  EXPECT_EQ(tirées.size(), 52u);
  EXPECT_EQ(*tirées.rbegin(), 51);
  std::string attendu;
  for (int siège = 0; siège <= 3; ++siège)
    for (int k = 0; k <= 12; ++k) {
      EXPECT_EQ(s.t.Mains[siège][k], s.t.CartesTirées[13 * siège + k]);
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
  t.CarteLevée = 1;
  t.ScoresÉcrits = t.ScoresRemisà0 = true;
  t.ToutFlush[2] = t.ToutQuinte[1] = t.SixPaires[3] = t.MégaQuinte[0] = true;
  t.TotauxDonne[1] = 7;
  t.Fenêtre.ExtraLabel[2].Caption = "TOUT FLUSH";
  t.Fenêtre.LabelPaie[5].Caption = "-4";
  t.Fenêtre.LabelPaie[5].ForeColor = 0x0000FF;
  t.Fenêtre.LabelPaie[5].BackColor = 0xE0E0E0;
  t.Fenêtre.EnchèreLabel[4].Visible = true;
  t.Fenêtre.CartesJeu[40].Picture = 17;
  t.Fenêtre.CartesJeu[52].Picture = 17;
  t.Mains[4][0] = 9;
  t.MeilleurRangement[1] = 1234;
  t.Scores[0] = -3;
  t.TempsÉcoulé = 12;
  t.Fenêtre.TempsLabel.Caption = "5";
  s.dossier.Écrit("Temps2", "  17 secondes\r\n");

  t.Init();
  EXPECT_EQ(t.CarteLevée, 0);
  EXPECT_FALSE(t.ScoresÉcrits || t.ScoresRemisà0 || t.ToutFlush[2] || t.ToutQuinte[1] ||
               t.SixPaires[3] || t.MégaQuinte[0]);
  EXPECT_EQ(t.TotauxDonne[1], 0);
  EXPECT_EQ(t.Fenêtre.ExtraLabel[2].Caption, "");
  EXPECT_EQ(t.Fenêtre.LabelPaie[5].Caption, "");
  EXPECT_EQ(t.Fenêtre.LabelPaie[5].ForeColor, 0u);
  EXPECT_EQ(t.Fenêtre.LabelPaie[5].BackColor, 0xC0C0C0u); // seat 0 against seat 3
  EXPECT_FALSE(t.Fenêtre.EnchèreLabel[4].Visible);
  EXPECT_EQ(t.Fenêtre.CartesJeu[40].Picture, PasDeCarte);
  EXPECT_EQ(t.Fenêtre.TempsShape.Left, -3900);
  EXPECT_EQ(t.TempsDébutant, 17);
  // Left alone: the hands, the kept rows, the scores, the clock and slot 52.
  EXPECT_EQ(t.Fenêtre.CartesJeu[52].Picture, 17);
  EXPECT_EQ(t.Mains[4][0], 9);
  EXPECT_EQ(t.MeilleurRangement[1], 1234);
  EXPECT_EQ(t.Scores[0], -3);
  EXPECT_EQ(t.TempsÉcoulé, 12);
  EXPECT_EQ(t.Fenêtre.TempsLabel.Caption, "5");
}

TEST(Fichiers, LesÉcrituresDonnentLesOctetsAttendusEtSeRelisent) {
  Séance s;
  s.t.Form_Load();
  EXPECT_EQ(s.t.Fenêtre.JoueursLabel[2].Caption, "MégaBytes");
  const std::string noms[4] = {" Zoé, la reine ", "GigaOctets", "MégaBytes", "Bibi"};
  s.t.ÉcritNoms(noms);
  EXPECT_EQ(s.dossier.Lit("Noms"),
            "\" Zo\xE9, la reine \"\r\n\"GigaOctets\"\r\n\"M\xE9gaBytes\"\r\n\"Bibi\"\r\n");
  const int32_t scores[4] = {-12, 0, 2147483647, -2147483647 - 1};
  std::copy(scores, scores + 4, s.t.Scores);
  s.t.ÉcritScores();
  EXPECT_EQ(s.dossier.Lit("Scores"), "-12\r\n0\r\n2147483647\r\n-2147483648\r\n");
  s.t.Mode = 0;
  s.t.TempsÉcoulé = 75;
  s.t.ÉcritTempsDuMode();
  EXPECT_EQ(s.dossier.Lit("Temps1"), "75\r\n");
  EXPECT_FALSE(s.dossier.Existe("Temps2"));

  Séance relue;
  relue.dossier.Écrit("Noms", s.dossier.Lit("Noms"));
  relue.dossier.Écrit("Scores", s.dossier.Lit("Scores"));
  relue.t.Form_Load();
  ASSERT_FALSE(relue.t.DémarrageRefusé) << relue.t.ErreurDémarrage;
  EXPECT_EQ(relue.t.Fenêtre.NomsJoueursText[0].Text, " Zoé, la reine ");
  EXPECT_EQ(relue.t.Fenêtre.JoueursLabel[0].Caption, " Zoé, la reine ");
  EXPECT_EQ(relue.t.Scores[0], -12);
  EXPECT_EQ(relue.t.Fenêtre.ScoreLabel[0].ForeColor, 255u);
  EXPECT_EQ(relue.t.Fenêtre.ScoreLabel[0].Caption, "-12");
  EXPECT_EQ(relue.t.Fenêtre.ScoreLabel[1].ForeColor, 0u);
  EXPECT_EQ(relue.t.Scores[3], -2147483647 - 1);
}

TEST(Fichiers, LesLecteursAcceptentLesFinsDeLigneUnixEtLesBlancsAutourDesNombres) {
  Séance s;
  s.dossier.Écrit("Noms", "\"A\"\n\"B\"\n\"C\"\n\"D\"");
  s.dossier.Écrit("Scores", " 5\n-7 \n\t0\n3");
  s.t.Form_Load();
  ASSERT_FALSE(s.t.DémarrageRefusé) << s.t.ErreurDémarrage;
  EXPECT_EQ(s.t.Fenêtre.JoueursLabel[3].Caption, "D");
  EXPECT_EQ(s.t.Scores[0], 5);
  EXPECT_EQ(s.t.Scores[1], -7);
  EXPECT_EQ(s.t.Scores[3], 3);
}

TEST(Fichiers, UnNomsOuUnScoresIllisibleArrêteLeDémarrageAvecUnMessageClair) {
  struct Cas {
    const char *fichier, *contenu, *attendu;
  };
  const Cas cas[] = {
      {"Noms", nullptr, "introuvable"},
      {"Scores", nullptr, "introuvable"},
      {"Noms", "\"A\"\r\n\"B\"\r\n", "seulement deux noms"},
      {"Noms", "\"A\"\r\nB\r\n\"C\"\r\n\"D\"\r\n", "la ligne 2 n'est pas un nom entre guillemets"},
      {"Scores", "1\r\n2\r\ntrois\r\n4\r\n", "la ligne 3 n'est pas un nombre entier"},
      {"Scores", "1\r\n2\r\n99999999999\r\n4\r\n", "la ligne 3 n'est pas un nombre entier"},
      {"Scores", "", "aucun score"},
  };
  for (const Cas &c : cas) {
    Séance s;
    std::filesystem::remove(std::filesystem::path(s.dossier.Chemin()) / c.fichier);
    if (c.contenu)
      s.dossier.Écrit(c.fichier, c.contenu);
    s.t.Form_Load();
    EXPECT_TRUE(s.t.DémarrageRefusé) << c.attendu;
    const std::string &message = s.t.ErreurDémarrage;
    EXPECT_NE(message.find(c.attendu), std::string::npos) << message;
    EXPECT_NE(message.find(s.dossier.Chemin() + "/" + c.fichier), std::string::npos) << message;
    ASSERT_EQ(s.plateforme.erreurs.size(), 1u);
    EXPECT_EQ(s.plateforme.erreurs[0], message);
    if (c.contenu)
      EXPECT_EQ(s.dossier.Lit(c.fichier), c.contenu);
    else
      EXPECT_FALSE(s.dossier.Existe(c.fichier));
  }
}

TEST(Fichiers, LesTempsSuiventLaRègleDuNombreEnTête) {
  struct Cas {
    const char *contenu;
    double expert;
    int16_t débutant;
  };
  const Cas cas[] = {{nullptr, 0, 0},     {"", 0, 0},          {"42\r\n", 42, 42},
                     {"12abc\r\n", 12, 12}, {"abc12\r\n", 0, 0}, {"3.6\r\n", 3.6, 4},
                     {"7,9\r\n", 7, 7},     {"-5\r\n", -5, -5}};
  for (const Cas &c : cas) {
    Séance s;
    s.t.Form_Load();
    if (c.contenu) {
      s.dossier.Écrit("Temps1", c.contenu);
      s.dossier.Écrit("Temps2", c.contenu);
    }
    s.t.TempsDébutant = 99;
    s.t.Mode = 0;
    s.t.Init();
    EXPECT_EQ(s.t.TempsExpert, c.expert) << (c.contenu ? c.contenu : "absent");
    EXPECT_EQ(s.t.TempsDébutant, 99) << "the other mode's time is left alone";
    s.t.Mode = 1;
    s.t.Init();
    EXPECT_EQ(s.t.TempsDébutant, c.débutant) << (c.contenu ? c.contenu : "absent");
  }
  Séance s;
  s.t.Form_Load();
  s.t.TempsDébutant = 8;
  s.dossier.Écrit("Temps2", "70000\r\n");
  s.t.Init();
  EXPECT_EQ(s.t.TempsDébutant, 8) << "too large for 16 bits: left as it was";
}

TEST(Fichiers, UnTirageManquantCourtOuAbîméNeFaitJamaisTomberLaPartie) {
  Séance s;
  s.t.Form_Load();
  s.t.LitTirage();
  for (int siège = 0; siège <= 4; ++siège)
    for (int k = 0; k <= 12; ++k)
      EXPECT_EQ(s.t.Mains[siège][k], 0);

  s.dossier.Écrit("Tirage", "5\r\n6\r\n7\r\n");
  s.t.LitTirage();
  EXPECT_EQ(s.t.Mains[0][1], 6);
  EXPECT_EQ(s.t.Mains[3][12], 7) << "a short file repeats its last value";
  EXPECT_EQ(s.t.Fenêtre.CartesJeu[51].Picture, 7);

  // Text keeps the last value; a code with no picture leaves the slot; one
  // that fits no byte is not stored at all.
  std::string abîmé = "10\r\nbonjour\r\n53\r\n200\r\n-4\r\n99999999999999999999\r\n";
  abîmé += std::string(1 << 20, 'x');
  s.dossier.Écrit("Tirage", abîmé);
  s.t.Fenêtre.CartesJeu[39].Picture = PasDeCarte;
  for (int k = 0; k <= 12; ++k)
    s.t.Mains[0][k] = 1;
  s.t.LitTirage();
  EXPECT_EQ(s.t.Mains[0][0], 10);
  EXPECT_EQ(s.t.Mains[0][1], 10);
  EXPECT_EQ(s.t.Mains[0][2], 53);
  EXPECT_EQ(s.t.Mains[0][3], 200);
  EXPECT_EQ(s.t.Mains[0][4], 1);
  EXPECT_EQ(s.t.Mains[0][5], 1);
  EXPECT_EQ(s.t.Mains[3][0], 7) << "kept from the replay before";
  EXPECT_EQ(s.t.Fenêtre.CartesJeu[39].Picture, PasDeCarte);
}

TEST(Fichiers, UneÉcritureImpossibleGardeLAncienFichierEtPrévientUneFois) {
  Séance s;
  s.t.Form_Load();
  // A folder standing where the file should go: no write can replace it.
  std::filesystem::create_directory(std::filesystem::path(s.dossier.Chemin()) / "Temps2");
  s.t.Mode = 1;
  s.t.TempsÉcoulé = 5;
  s.t.ÉcritTempsDuMode();
  ASSERT_EQ(s.plateforme.erreurs.size(), 1u);
  EXPECT_NE(s.plateforme.erreurs[0].find("« Temps2 »"), std::string::npos);
  EXPECT_TRUE(std::filesystem::is_directory(std::filesystem::path(s.dossier.Chemin()) / "Temps2"));
  s.t.ÉcritScores();
  EXPECT_EQ(s.plateforme.erreurs.size(), 1u) << "the next write works again";
  EXPECT_EQ(s.dossier.Lit("Scores"), "0\r\n0\r\n0\r\n0\r\n");
}

TEST(Démarrage, LaTableAttendJouerDansSonÉtatDeDépart) {
  Séance s;
  s.dossier.Écrit("Scores", "-3\r\n0\r\n4\r\n0\r\n");
  s.t.Form_Load();
  ASSERT_FALSE(s.t.DémarrageRefusé);
  const auto &f = s.t.Fenêtre;
  EXPECT_EQ(s.t.Mode, 1);
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
    EXPECT_TRUE(s.t.EtoileVitesse[i] >= 2 && s.t.EtoileVitesse[i] <= 500);
    EXPECT_TRUE(s.t.EtoileRayon[i] >= 0 && s.t.EtoileRayon[i] <= 16);
  }
  // The layout's odd ones out.
  EXPECT_EQ(f.TotalLabel[0].Left, 3120);
  EXPECT_EQ(f.TotalLabel[1].Left, 3135);
  EXPECT_EQ(f.LabelPaie[22].Top, 80);
  EXPECT_EQ(f.NiveauLabel[0].Caption, "NIVEAU 3");
  EXPECT_EQ(f.NiveauLabel[0].Parent, &f.SSPaie[2]);
  EXPECT_EQ(f.Empilement[0], &f.NomsJoueursSS);
}

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <unistd.h>

#include "core/table_state.h"
#include "dossier_essai.h"
#include "platform/sans_fenetre.h"

namespace {

struct Séance {
  DossierEssai dossier;
  PlateformeSansFenêtre plateforme{dossier.Chemin()};
  TroisNiveaux t{plateforme};
  Séance() { t.Form_Load(); }
  std::filesystem::path Chemin(const char *nom) const { return std::filesystem::path(dossier.Chemin()) / nom; }
};

// Files may not grow at all while it stands: the disk is as good as full.
class FichiersBloqués {
public:
  FichiersBloqués() {
    getrlimit(RLIMIT_FSIZE, &avant);
    ancienSignal = std::signal(SIGXFSZ, SIG_IGN);
    rlimit zéro = avant;
    zéro.rlim_cur = 0;
    setrlimit(RLIMIT_FSIZE, &zéro);
  }
  ~FichiersBloqués() {
    setrlimit(RLIMIT_FSIZE, &avant);
    std::signal(SIGXFSZ, ancienSignal);
  }

private:
  rlimit avant{};
  void (*ancienSignal)(int) = SIG_DFL;
};

} // namespace

TEST(Fichiers, LesÉcrituresDonnentLesOctetsAttendusEtSeRelisent) {
  Séance s;
  EXPECT_EQ(s.t.Fenêtre.JoueursLabel[2].Caption, "MégaBytes");
  const std::string noms[4] = {" Zoé, la reine ", "5 €", "dit \"Max\"", "Ω\nBibi"};
  s.t.ÉcritNoms(noms);
  EXPECT_EQ(s.dossier.Lit("Noms"),
            "\" Zo\xE9, la reine \"\r\n\"5 \x80\"\r\n\"dit ?Max?\"\r\n\"??Bibi\"\r\n");
  const int32_t scores[4] = {-12, 0, 2147483647, -2147483647 - 1};
  std::copy(scores, scores + 4, s.t.Scores);
  s.t.ÉcritScores();
  EXPECT_EQ(s.dossier.Lit("Scores"), "-12\r\n0\r\n2147483647\r\n-2147483648\r\n");
  s.t.Mode = 0;
  s.t.TempsÉcoulé = 75;
  s.t.ÉcritTempsDuMode();
  EXPECT_EQ(s.dossier.Lit("Temps1"), "75\r\n");
  EXPECT_FALSE(s.dossier.Existe("Temps2")) << "the modes keep their times apart";
  s.t.Mode = 1;
  s.t.TempsÉcoulé = -3;
  s.t.ÉcritTempsDuMode();
  EXPECT_EQ(s.dossier.Lit("Temps2"), "-3\r\n");
  EXPECT_TRUE(s.plateforme.erreurs.empty());

  DossierEssai relu;
  relu.Écrit("Noms", s.dossier.Lit("Noms"));
  relu.Écrit("Scores", s.dossier.Lit("Scores"));
  PlateformeSansFenêtre p(relu.Chemin());
  TroisNiveaux t(p);
  t.Form_Load();
  ASSERT_FALSE(t.DémarrageRefusé) << t.ErreurDémarrage;
  EXPECT_EQ(t.Fenêtre.NomsJoueursText[0].Text, " Zoé, la reine ");
  EXPECT_EQ(t.Fenêtre.JoueursLabel[0].Caption, " Zoé, la reine ");
  EXPECT_EQ(t.Fenêtre.JoueursLabel[1].Caption, "5 €");
  EXPECT_EQ(t.Scores[0], -12);
  EXPECT_EQ(t.Fenêtre.ScoreLabel[0].ForeColor, 255u);
  EXPECT_EQ(t.Fenêtre.ScoreLabel[0].Caption, "-12");
  EXPECT_EQ(t.Fenêtre.ScoreLabel[1].ForeColor, 0u);
  EXPECT_EQ(t.Scores[3], -2147483647 - 1);
}

TEST(Fichiers, LesFichiersLivrésSontCeuxQueLeJeuÉcrirait) {
  DossierEssai livré;
  for (const char *nom : {"Noms", "Scores"})
    std::filesystem::copy_file(std::filesystem::path(TN_DOSSIER_DONNEES) / nom,
                               std::filesystem::path(livré.Chemin()) / nom,
                               std::filesystem::copy_options::overwrite_existing);
  const std::string noms = livré.Lit("Noms"), scores = livré.Lit("Scores");
  PlateformeSansFenêtre p(livré.Chemin());
  TroisNiveaux t(p);
  t.Form_Load();
  ASSERT_FALSE(t.DémarrageRefusé) << t.ErreurDémarrage;
  for (int siège = 0; siège <= 3; ++siège)
    EXPECT_EQ(t.Fenêtre.JoueursLabel[siège].Caption, NomsParDéfaut[siège]);
  const std::string parDéfaut[4] = {NomsParDéfaut[0], NomsParDéfaut[1], NomsParDéfaut[2], NomsParDéfaut[3]};
  t.ÉcritNoms(parDéfaut);
  t.ÉcritScores();
  EXPECT_EQ(livré.Lit("Noms"), noms);
  EXPECT_EQ(livré.Lit("Scores"), scores);
}

TEST(Fichiers, LesLecteursAcceptentLesFinsDeLigneUnixEtLesBlancsAutourDesNombres) {
  DossierEssai d;
  d.Écrit("Noms", "\"A\"\n\"B\"\n\"C\"\n\" D \"\n\"ignored\"\n");
  d.Écrit("Scores", " 5\n-7 \n\t0\n3");
  PlateformeSansFenêtre p(d.Chemin());
  TroisNiveaux t(p);
  t.Form_Load();
  ASSERT_FALSE(t.DémarrageRefusé) << t.ErreurDémarrage;
  EXPECT_EQ(t.Fenêtre.JoueursLabel[3].Caption, " D ");
  EXPECT_EQ((std::vector<int>(t.Scores, t.Scores + 4)), (std::vector<int>{5, -7, 0, 3}));
}

TEST(Fichiers, UnNomsOuUnScoresIllisibleArrêteLeDémarrageAvecUnMessageClair) {
  struct Cas {
    const char *fichier, *contenu, *attendu;
  };
  const Cas cas[] = {
      {"Noms", nullptr, "est introuvable"},
      {"Scores", nullptr, "est introuvable"},
      {"Noms", "", "ne contient aucun nom"},
      {"Noms", "\"A\"\r\n\"B\"\r\n", "contient seulement deux noms au lieu de quatre"},
      {"Noms", "\"A\"\r\nB\r\n\"C\"\r\n\"D\"\r\n", "la ligne 2 n'est pas un nom entre guillemets"},
      {"Noms", "\"A\"\r\n\"B\"\r\n\"C\"\r\n\"a\"b\"\r\n", "la ligne 4 n'est pas un nom entre guillemets"},
      {"Scores", "1\r\n2\r\ntrois\r\n4\r\n", "la ligne 3 n'est pas un nombre entier"},
      {"Scores", "1\r\n2\r\n3.5\r\n4\r\n", "la ligne 3 n'est pas un nombre entier"},
      {"Scores", "1\r\n\r\n3\r\n4\r\n", "la ligne 2 n'est pas un nombre entier"},
      {"Scores", "1\r\n2\r\n2147483648\r\n4\r\n", "la ligne 3 contient un nombre trop grand"},
      {"Scores", "7\r\n", "contient un seul score"},
  };
  for (const Cas &c : cas) {
    DossierEssai d;
    std::filesystem::remove(std::filesystem::path(d.Chemin()) / c.fichier);
    if (c.contenu)
      d.Écrit(c.fichier, c.contenu);
    PlateformeSansFenêtre p(d.Chemin());
    TroisNiveaux t(p);
    t.Form_Load();
    EXPECT_TRUE(t.DémarrageRefusé) << c.attendu;
    const std::string &message = t.ErreurDémarrage;
    EXPECT_NE(message.find(c.attendu), std::string::npos) << message;
    EXPECT_NE(message.find("« " + std::string(c.fichier) + " » (" + d.Chemin() + "/" + c.fichier + ")"),
              std::string::npos)
        << message;
    ASSERT_EQ(p.erreurs, std::vector<std::string>{message});
    EXPECT_TRUE(t.Rangements.empty()) << "nothing after the failed read runs";
    if (c.contenu)
      EXPECT_EQ(d.Lit(c.fichier), c.contenu);
    else
      EXPECT_FALSE(d.Existe(c.fichier));
  }
}

TEST(Fichiers, LesTempsSuiventLaRègleDuNombreEnTête) {
  struct Cas {
    const char *contenu;
    double expert;
    int16_t débutant;
  };
  const Cas cas[] = {{nullptr, 0, 0},       {"", 0, 0},           {"42\r\n", 42, 42},
                     {"12abc\r\n", 12, 12}, {"abc12\r\n", 0, 0},  {"3.6\r\n", 3.6, 4},
                     {"2.5", 2.5, 2},       {"7,9\r\n", 7, 7},    {"-5\r\n", -5, -5},
                     {"\r\n8\r\n", 0, 0},   {" 9 s\r\n", 9, 9}};
  for (const Cas &c : cas) {
    Séance s;
    if (c.contenu) {
      s.dossier.Écrit("Temps1", c.contenu);
      s.dossier.Écrit("Temps2", c.contenu);
    }
    s.t.TempsDébutant = 99;
    s.t.Mode = 0;
    s.t.Init();
    EXPECT_EQ(s.t.TempsExpert, c.expert) << (c.contenu ? c.contenu : "absent");
    EXPECT_EQ(s.t.TempsDébutant, 99) << "the other mode's time is left alone";
    s.t.TempsExpert = 66;
    s.t.Mode = 1;
    s.t.Init();
    EXPECT_EQ(s.t.TempsDébutant, c.débutant) << (c.contenu ? c.contenu : "absent");
    EXPECT_EQ(s.t.TempsExpert, 66);
  }
  // A number the field cannot hold leaves it as it was.
  Séance s;
  s.t.TempsDébutant = 8;
  s.dossier.Écrit("Temps2", "70000\r\n");
  s.t.Init();
  EXPECT_EQ(s.t.TempsDébutant, 8);
  s.t.Mode = 0;
  s.t.TempsExpert = 5;
  s.dossier.Écrit("Temps1", "1" + std::string(400, '0') + "\r\n");
  s.t.Init();
  EXPECT_EQ(s.t.TempsExpert, 5);
}

TEST(Fichiers, UnTirageManquantCourtOuAbîméNeFaitJamaisTomberLaPartie) {
  Séance s;
  s.t.LitTirage();
  for (int siège = 0; siège <= 4; ++siège)
    for (int k = 0; k <= 12; ++k)
      ASSERT_EQ(s.t.Mains[siège][k], 0) << "no file: 52 times code 0";
  EXPECT_EQ(s.t.Fenêtre.CartesJeu[45].Picture, 0);

  s.dossier.Écrit("Tirage", "5\r\n6\r\n7\r\n");
  s.t.LitTirage();
  EXPECT_EQ(s.t.Mains[0][1], 6);
  EXPECT_EQ(s.t.Mains[3][12], 7) << "a short file repeats its last value";
  EXPECT_EQ(s.t.Mains[4][12], 7);
  EXPECT_EQ(s.t.Fenêtre.CartesJeu[51].Picture, 7);

  // Text and numbers that fit no byte are failed reads; a code with no
  // picture is stored but leaves the slot as it is.
  s.dossier.Écrit("Tirage", "10\r\nbonjour\r\n53\r\n200\r\n-4\r\n99999999999999999999\r\n3 4\r\n" +
                                std::string(1 << 20, 'x'));
  s.t.LitTirage();
  const uint8_t attendu[] = {10, 10, 53, 200, 200, 200, 200, 200};
  EXPECT_TRUE(std::equal(std::begin(attendu), std::end(attendu), s.t.Mains[0]));
  EXPECT_EQ(s.t.Mains[3][0], 200);
  EXPECT_EQ(s.t.Fenêtre.CartesJeu[39].Picture, 7) << "kept from the replay before";

  // Past the first 64 KiB nothing is read; a line cut there is not read half.
  std::string quarante;
  for (int i = 0; i < 40; ++i)
    quarante += "4\r\n";
  s.dossier.Écrit("Tirage", quarante + std::string(70000, '0') + "9\r\n1\r\n");
  s.t.LitTirage();
  EXPECT_EQ(s.t.Mains[3][0], 4);
  EXPECT_EQ(s.t.Mains[3][12], 4);
}

TEST(Fichiers, UneÉcritureImpossibleGardeLAncienFichierEtPrévientUneFois) {
  Séance s;
  const std::string scores = "1\r\n2\r\n3\r\n4\r\n";
  s.dossier.Écrit("Scores", scores);
  {
    FichiersBloqués bloqués;
    s.t.ÉcritScores();
    s.t.ÉcritScores();
  }
  EXPECT_EQ(s.dossier.Lit("Scores"), scores);
  ASSERT_EQ(s.plateforme.erreurs.size(), 1u) << "told once while it keeps failing";
  EXPECT_NE(s.plateforme.erreurs[0].find("« Scores » (" + s.Chemin("Scores").string() + ")"), std::string::npos)
      << s.plateforme.erreurs[0];
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(s.dossier.Chemin()), {}), 2)
      << "no temporary file left behind";

  // Once a write of it works, a new failure is told again.
  s.t.ÉcritScores();
  EXPECT_EQ(s.dossier.Lit("Scores"), "0\r\n0\r\n0\r\n0\r\n");
  std::filesystem::create_directory(s.Chemin("Temps2"));
  s.t.ÉcritTempsDuMode();
  {
    FichiersBloqués bloqués;
    s.t.ÉcritScores();
  }
  ASSERT_EQ(s.plateforme.erreurs.size(), 3u);
  EXPECT_NE(s.plateforme.erreurs[1].find("« Temps2 »"), std::string::npos);
  EXPECT_NE(s.plateforme.erreurs[1].find("un dossier porte ce nom"), std::string::npos);
  EXPECT_NE(s.plateforme.erreurs[2].find("« Scores »"), std::string::npos);
}

// Root writes anyway, so this one needs an ordinary user.
TEST(Fichiers, UnDossierEnLectureSeuleEstSignalé) {
  Séance s;
  std::filesystem::permissions(s.dossier.Chemin(), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::remove);
  if (access(s.dossier.Chemin().c_str(), W_OK) == 0) {
    std::filesystem::permissions(s.dossier.Chemin(), std::filesystem::perms::owner_all);
    GTEST_SKIP() << "permissions do not bind this user";
  }
  s.t.ÉcritTirage();
  std::filesystem::permissions(s.dossier.Chemin(), std::filesystem::perms::owner_all);
  ASSERT_EQ(s.plateforme.erreurs.size(), 1u);
  EXPECT_NE(s.plateforme.erreurs[0].find("le dossier est protégé en écriture"), std::string::npos);
  EXPECT_FALSE(s.dossier.Existe("Tirage"));
}

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>

#include "core/table_state.h"
#include "dossier_essai.h"
#include "platform/sans_fenetre.h"

namespace {

struct Séance {
  DossierEssai dossier;
  PlateformeSansFenêtre plateforme{dossier.Chemin()};
  TroisNiveaux t{plateforme};
  explicit Séance(const char *noms = nullptr, const char *scores = nullptr) {
    if (noms)
      dossier.Écrit("Noms", noms);
    if (scores)
      dossier.Écrit("Scores", scores);
    t.Form_Load();
  }
  std::filesystem::path Chemin(const char *nom) const {
    return std::filesystem::path(dossier.Chemin()) / nom;
  }
};

// While it stands no file may grow: to a writer, the disk is full.
class DisquePlein {
public:
  DisquePlein() : ancienSignal(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &avant);
    rlimit zéro = avant;
    zéro.rlim_cur = 0;
    setrlimit(RLIMIT_FSIZE, &zéro);
  }
  ~DisquePlein() {
    setrlimit(RLIMIT_FSIZE, &avant);
    std::signal(SIGXFSZ, ancienSignal);
  }

private:
  void (*ancienSignal)(int);
  rlimit avant{};
};

} // namespace

TEST(Fichiers, LesÉcrituresDonnentLesOctetsAttendusEtSeRelisent) {
  Séance s;
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
  EXPECT_TRUE(s.plateforme.erreurs.empty());

  Séance relue(s.dossier.Lit("Noms").c_str(), s.dossier.Lit("Scores").c_str());
  const auto &f = relue.t.Fenêtre;
  ASSERT_FALSE(relue.t.DémarrageRefusé) << relue.t.ErreurDémarrage;
  EXPECT_EQ(f.NomsJoueursText[0].Text, " Zoé, la reine ");
  EXPECT_EQ(f.JoueursLabel[0].Caption, " Zoé, la reine ");
  EXPECT_EQ(f.JoueursLabel[1].Caption, "5 €");
  EXPECT_EQ(relue.t.Scores[3], -2147483647 - 1);
  EXPECT_TRUE(f.ScoreLabel[0].Caption == "-12" && f.ScoreLabel[0].ForeColor == 255u);
}

TEST(Fichiers, LesFichiersLivrésSontCeuxQueLeJeuÉcrirait) {
  DossierEssai livré;
  for (const char *nom : {"Noms", "Scores"})
    std::filesystem::copy_file(std::filesystem::path(TN_DOSSIER_DONNEES) / nom,
                               std::filesystem::path(livré.Chemin()) / nom,
                               std::filesystem::copy_options::overwrite_existing);
  Séance s(livré.Lit("Noms").c_str(), livré.Lit("Scores").c_str());
  ASSERT_FALSE(s.t.DémarrageRefusé) << s.t.ErreurDémarrage;
  const std::string parDéfaut[4] = {NomsParDéfaut[0], NomsParDéfaut[1], NomsParDéfaut[2],
                                    NomsParDéfaut[3]};
  s.t.ÉcritNoms(parDéfaut);
  s.t.ÉcritScores();
  EXPECT_EQ(s.dossier.Lit("Noms"), livré.Lit("Noms"));
  EXPECT_EQ(s.dossier.Lit("Scores"), livré.Lit("Scores"));
}

TEST(Fichiers, LesLecteursAcceptentLesFinsDeLigneUnixEtLesBlancsAutourDesNombres) {
  Séance s("\"A\"\n\"B\"\n\"C\"\n\" D \"\n\"en trop\"", " 5\n-7 \n\t0\n3");
  ASSERT_FALSE(s.t.DémarrageRefusé) << s.t.ErreurDémarrage;
  EXPECT_EQ(s.t.Fenêtre.JoueursLabel[3].Caption, " D ");
  EXPECT_EQ(std::vector<int>(s.t.Scores, s.t.Scores + 4), (std::vector<int>{5, -7, 0, 3}));
}

TEST(Fichiers, UnNomsOuUnScoresIllisibleArrêteLeDémarrageAvecUnMessageClair) {
  struct Cas {
    const char *fichier;
    std::optional<std::string> contenu;
    const char *attendu;
  };
  for (const Cas &c : {
           Cas{"Noms", std::nullopt, "est introuvable"},
           Cas{"Scores", std::nullopt, "est introuvable"},
           Cas{"Noms", "", "ne contient aucun nom"},
           Cas{"Noms", "\"A\"\r\n\"B\"\r\n", "contient seulement deux noms au lieu de quatre"},
           Cas{"Noms", "\"A\"\r\nB\r\n\"C\"\r\n\"D\"\r\n",
               "la ligne 2 n'est pas un nom entre guillemets"},
           Cas{"Noms", "\"A\"\r\n\"B\"\r\n\"C\"\r\n\"a\"b\"\r\n", "la ligne 4 n'est pas un nom"},
           Cas{"Scores", "1\r\n2\r\ntrois\r\n4\r\n", "la ligne 3 n'est pas un nombre entier"},
           Cas{"Scores", "1\r\n\r\n3.5\r\n4\r\n", "la ligne 2 n'est pas un nombre entier"},
           Cas{"Scores", "1\r\n2\r\n2147483648\r\n4\r\n",
               "la ligne 3 contient un nombre trop grand"},
           Cas{"Scores", "0\r\n-2147483649\r\n0\r\n0\r\n", "la ligne 2 contient un nombre trop"},
           Cas{"Scores", "99999999999999999999999\r\n0\r\n0\r\n0\r\n",
               "la ligne 1 contient un nombre trop grand"},
           Cas{"Scores", "0\r\n0\r\n0\r\n1-2\r\n", "la ligne 4 n'est pas un nombre entier"},
           // Past a size the game never writes, a file is refused as too large.
           Cas{"Noms", "\"A\"\r\n\"" + std::string(2 << 20, 'b'),
               "est trop grand pour être un fichier du jeu"},
       }) {
    DossierEssai d;
    std::filesystem::remove(std::filesystem::path(d.Chemin()) / c.fichier);
    if (c.contenu)
      d.Écrit(c.fichier, *c.contenu);
    PlateformeSansFenêtre p(d.Chemin());
    TroisNiveaux t(p);
    t.Form_Load();
    const std::string &message = t.ErreurDémarrage;
    EXPECT_TRUE(t.DémarrageRefusé && t.Rangements.empty()) << "nothing after the failed read runs";
    EXPECT_NE(message.find(c.attendu), std::string::npos) << message;
    EXPECT_NE(message.find("« " + std::string(c.fichier) + " » (" + d.Chemin() + "/" + c.fichier),
              std::string::npos)
        << message;
    EXPECT_EQ(p.erreurs, std::vector<std::string>{message});
    if (c.contenu) {
      EXPECT_TRUE(d.Lit(c.fichier) == *c.contenu) << "the file is left as it was";
    }
  }
}

TEST(Fichiers, LesTempsSuiventLaRègleDuNombreEnTête) {
  struct Cas {
    const char *contenu;
    double expert;
    int16_t débutant;
  };
  for (const Cas &c : {Cas{nullptr, 0, 0},
                       {"", 0, 0},
                       {"12abc\r\n", 12, 12},
                       {"abc12\r\n", 0, 0},
                       {"3.6\r\n", 3.6, 4},
                       {"2.5", 2.5, 2},
                       {"7,9\r\n", 7, 7},
                       {"-5\r\n", -5, -5},
                       {"\r\n8\r\n", 0, 0},
                       {" 9 s\r\n", 9, 9}}) {
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
    s.t.Mode = 1;
    s.t.Init();
    EXPECT_EQ(s.t.TempsDébutant, c.débutant) << (c.contenu ? c.contenu : "absent");
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
  for (const auto &main : s.t.Mains)
    EXPECT_TRUE(std::all_of(std::begin(main), std::end(main), [](int c) { return c == 0; }));

  s.dossier.Écrit("Tirage", "5\r\n6\r\n7\r\n");
  s.t.LitTirage();
  EXPECT_EQ(s.t.Mains[0][1], 6);
  EXPECT_EQ(s.t.Mains[4][12], 7) << "a short file repeats its last value";
  EXPECT_EQ(s.t.Fenêtre.CartesJeu[51].Picture, 7);

  // Text and numbers that fit no byte are failed reads; a code with no
  // picture is stored but leaves the slot as it is.
  s.dossier.Écrit("Tirage", "10\r\nbonjour\r\n53\r\n200\r\n-4\r\n99999999999999999999\r\n3 4\r\n" +
                                std::string(1 << 20, 'x'));
  s.t.LitTirage();
  const uint8_t attendu[] = {10, 10, 53, 200, 200, 200, 200, 200};
  EXPECT_TRUE(std::equal(std::begin(attendu), std::end(attendu), s.t.Mains[0]));
  EXPECT_EQ(s.t.Mains[3][0], 200);
  EXPECT_EQ(s.t.Fenêtre.CartesJeu[39].Picture, 7);

  // Nothing past the first MiB is read, and a line cut there not at all.
  std::string quarante;
  for (int i = 0; i < 40; ++i)
    quarante += "4\r\n";
  s.dossier.Écrit("Tirage", quarante + std::string(1 << 20, '0') + "9\r\n1\r\n");
  s.t.LitTirage();
  EXPECT_EQ(s.t.Mains[3][12], 4);
}

TEST(Fichiers, UneÉcritureImpossibleGardeLAncienFichierEtPrévientUneFois) {
  Séance s;
  const std::string scores = "1\r\n2\r\n3\r\n4\r\n";
  s.dossier.Écrit("Scores", scores);
  {
    DisquePlein plein;
    s.t.ÉcritScores();
    s.t.ÉcritScores();
  }
  EXPECT_EQ(s.dossier.Lit("Scores"), scores);
  ASSERT_EQ(s.plateforme.erreurs.size(), 1u) << "told once while it keeps failing";
  EXPECT_NE(s.plateforme.erreurs[0].find("« Scores » (" + s.Chemin("Scores").string() + ")"),
            std::string::npos)
      << s.plateforme.erreurs[0];
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(s.dossier.Chemin()), {}), 2)
      << "no temporary file left behind";

  // Once a write of it works, a new failure is told again.
  s.t.ÉcritScores();
  EXPECT_EQ(s.dossier.Lit("Scores"), "0\r\n0\r\n0\r\n0\r\n");
  std::filesystem::create_directory(s.Chemin("Temps2"));
  s.t.ÉcritTempsDuMode();
  {
    DisquePlein plein;
    s.t.ÉcritScores();
  }
  ASSERT_EQ(s.plateforme.erreurs.size(), 3u);
  EXPECT_NE(s.plateforme.erreurs[1].find("« Temps2 »"), std::string::npos);
  EXPECT_NE(s.plateforme.erreurs[1].find("un dossier porte ce nom"), std::string::npos);
  EXPECT_NE(s.plateforme.erreurs[2].find("« Scores »"), std::string::npos);

  // The folder deleted under the game: the message says the file is gone too.
  std::filesystem::remove_all(s.dossier.Chemin());
  s.t.ÉcritTirage();
  EXPECT_EQ(s.plateforme.erreurs.back(),
            "Impossible d'enregistrer le fichier « Tirage » (" + s.Chemin("Tirage").string() +
                ") : le dossier des données n'existe plus. La partie continue sans ce fichier.");
  std::filesystem::create_directories(s.dossier.Chemin());
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The data files: their bytes, writes that fail, leftovers of a crash, and
// whatever else than a regular file lies at their names.
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <functional>
#include <numeric>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include "partie_essai.h"

namespace fs = std::filesystem;

namespace {
// Runs `écriture` while no file may grow: to a writer, the disk is full.
void DisquePlein(const std::function<void()> &écriture) {
  const auto ancienSignal = std::signal(SIGXFSZ, SIG_IGN);
  rlimit avant{};
  getrlimit(RLIMIT_FSIZE, &avant);
  rlimit zéro = avant;
  zéro.rlim_cur = 0;
  setrlimit(RLIMIT_FSIZE, &zéro);
  écriture();
  setrlimit(RLIMIT_FSIZE, &avant);
  std::signal(SIGXFSZ, ancienSignal);
}

// Ends the test program if a read or a write blocks.
struct Chien {
  Chien() { alarm(60); }
  ~Chien() { alarm(0); }
};

} // namespace

// Names as long as a box takes (the file then passes 64 KiB) and scores at
// the 32-bit edges, written and read back, with Unix line ends too.
TEST(Fichiers, LesÉcrituresDonnentLesOctetsAttendusEtSeRelisent) {
  Partie p;
  const std::string x(40000, 'x');
  const std::string noms[4] = {" Zoé, la reine ", "5 €" + x, "dit \"Max\"", "Ω\nBibi" + x};
  p.t.ÉcritNoms(noms);
  const std::string écrits = "\" Zo\xE9, la reine \"\r\n\"5 \x80" + x.substr(0, 32764) +
                             "\"\r\n\"dit ?Max?\"\r\n\"??Bibi" + x.substr(0, 32761) + "\"\r\n";
  EXPECT_TRUE(p.dossier.Lit("Noms") == écrits);
  const int32_t scores[4] = {-12, 0, 2147483647, -2147483647 - 1};
  std::copy(scores, scores + 4, p.t.Scores);
  p.t.ÉcritScores();
  EXPECT_EQ(p.dossier.Lit("Scores"), "-12\r\n0\r\n2147483647\r\n-2147483648\r\n");
  EXPECT_TRUE(p.plateforme.erreurs.empty());

  std::string unix = écrits + "\"en trop\"";
  std::erase(unix, '\r');
  Partie r(1, " -12\n0 \n\t2147483647\n-2147483648", unix);
  const auto &f = r.t.Fenêtre;
  EXPECT_EQ(f.NomsJoueursText[0].Text, " Zoé, la reine ");
  EXPECT_TRUE(f.JoueursLabel[1].Caption == "5 €" + x.substr(0, 32764));
  EXPECT_TRUE(r.t.Scores[3] == -2147483647 - 1 && f.ScoreLabel[0].Caption == "-12");
  r.t.EnregistreNoms_MouseUp();
  EXPECT_TRUE(r.dossier.Lit("Noms") == écrits) << "what was read writes the same bytes";
}

TEST(Fichiers, UnNomsOuUnScoresIllisibleArrêteLeDémarrageAvecUnMessageClair) {
  struct Cas {
    const char *fichier;
    std::optional<std::string> contenu;
    const char *attendu;
  };
  for (const Cas &c : {
           Cas{"Noms", std::nullopt, "est introuvable"},
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
           // Past a size the game never writes, a file is refused as too large.
           Cas{"Noms", "\"A\"\r\n\"" + std::string(2 << 20, 'b'),
               "est trop grand pour être un fichier du jeu"},
       }) {
    DossierEssai d;
    fs::remove(fs::path(d.Chemin()) / c.fichier);
    if (c.contenu)
      d.Écrit(c.fichier, *c.contenu);
    PlateformeSansFenêtre p(d.Chemin());
    p.écran = {1024, 600, 24, 60, 0}; // switched to 1024 x 768 before the files are read
    TroisNiveaux t(p);
    t.Form_Load();
    const std::string &message = t.ErreurDémarrage;
    EXPECT_TRUE(t.DémarrageRefusé && t.Rangements.empty()) << "nothing after the failed read runs";
    EXPECT_EQ(p.écran.dmPelsHeight, 600) << "the screen is put back as it was";
    EXPECT_NE(message.find(c.attendu), std::string::npos) << message;
    EXPECT_NE(message.find("« " + std::string(c.fichier) + " » (" + d.Chemin() + "/" + c.fichier),
              std::string::npos)
        << message;
    EXPECT_EQ(p.erreurs, std::vector<std::string>{message});
    EXPECT_TRUE(!c.contenu || d.Lit(c.fichier) == *c.contenu) << "the file is left as it was";
  }
}

// A time is the number its file starts with; one its field cannot hold
// leaves the field as it was (5 and 99 here).
TEST(Fichiers, LesTempsSuiventLaRègleDuNombreEnTête) {
  const std::string énorme = "1" + std::string(400, '0') + "\r\n";
  struct Cas {
    const char *contenu;
    double expert;
    int16_t débutant;
  };
  const Cas cas[] = {
      {nullptr, 0, 0},     {"", 0, 0},         {"12abc\r\n", 12, 12},    {"abc12\r\n", 0, 0},
      {"3.6\r\n", 3.6, 4}, {"2.5", 2.5, 2},    {"7,9\r\n", 7, 7},        {"-5\r\n", -5, -5},
      {"\r\n8\r\n", 0, 0}, {" 9 s\r\n", 9, 9}, {"70000\r\n", 70000, 99}, {énorme.c_str(), 5, 99}};
  for (const Cas &c : cas) {
    Partie p(0);
    if (c.contenu) {
      p.dossier.Écrit("Temps1", c.contenu);
      p.dossier.Écrit("Temps2", c.contenu);
    }
    p.t.TempsExpert = 5;
    p.t.TempsDébutant = 99;
    p.t.Init();
    EXPECT_EQ(p.t.TempsExpert, c.expert) << (c.contenu ? c.contenu : "absent");
    EXPECT_EQ(p.t.TempsDébutant, 99) << "the other mode's time is left alone";
    p.t.Mode = 1;
    p.t.Init();
    EXPECT_EQ(p.t.TempsDébutant, c.débutant) << (c.contenu ? c.contenu : "absent");
  }
}

TEST(Fichiers, UnTirageCourtOuAbîméNeFaitJamaisTomberLaPartie) {
  Partie p;
  // Nothing past the first MiB is read, and a line cut there not at all.
  p.dossier.Écrit("Tirage", TexteDeTirage({std::vector<int>(40, 4)}) + std::string(1 << 20, '0') +
                                "9\r\n1\r\n");
  p.t.LitTirage();
  EXPECT_EQ(p.t.Mains[3][12], 4);

  // Text and numbers that fit no byte are failed reads, and a short file
  // repeats its last value; a code with no picture is stored but leaves the
  // slot as it is. Such a deal plays out.
  p.dossier.Écrit("Tirage", "10\r\nbonjour\r\n53\r\n200\r\n-4\r\n99999999999999999999\r\n3 4\r\n" +
                                std::string(1 << 20, 'x'));
  p.t.LitTirage();
  const uint8_t attendu[] = {10, 10, 53, 200, 200, 200, 200, 200};
  EXPECT_TRUE(std::equal(std::begin(attendu), std::end(attendu), p.t.Mains[0]));
  EXPECT_EQ(p.t.Mains[3][0], 200);
  EXPECT_EQ(p.t.Fenêtre.CartesJeu[39].Picture, 4);
  p.t.Rejoue_MouseUp();
  EXPECT_TRUE(p.t.Fenêtre.NouveauJeu.Enabled && !p.t.Fenêtre.Arrêt.Enabled);
  EXPECT_EQ(std::accumulate(p.t.TotauxDonne, p.t.TotauxDonne + 4, 0), 0);
  EXPECT_TRUE(p.plateforme.erreurs.empty());
}

// Told once per file while it keeps failing; a replay leaves its time's
// failure untold, and a history that cannot be written does not stop the game.
TEST(Fichiers, UneÉcritureImpossibleGardeLAncienFichierEtPrévientUneFois) {
  Partie p;
  auto &erreurs = p.plateforme.erreurs;
  const std::string scores = "1\r\n2\r\n3\r\n4\r\n";
  p.dossier.Écrit("Scores", scores);
  DisquePlein([&] {
    p.t.ÉcritScores();
    p.t.ÉcritScores();
  });
  EXPECT_EQ(p.dossier.Lit("Scores"), scores);
  ASSERT_EQ(erreurs.size(), 1u);
  EXPECT_EQ(erreurs[0], "Impossible d'enregistrer le fichier « Scores » (" + p.dossier.Chemin() +
                            "/Scores) : la taille permise aux fichiers est dépassée. La partie "
                            "continue ; l'ancien fichier est conservé.");
  EXPECT_EQ(std::distance(fs::directory_iterator(p.dossier.Chemin()), {}), 2)
      << "no temporary file left behind";

  // Once a write of it works, a new failure is told again.
  p.t.ÉcritScores();
  for (const char *nom : {"Temps2", "Historique"})
    fs::create_directory(p.dossier.Chemin() + "/" + nom);
  p.t.Rejoue_MouseUp();
  ASSERT_EQ(erreurs.size(), 2u);
  EXPECT_NE(erreurs[1].find("« Historique »"), std::string::npos);
  p.t.NouveauJeu_MouseUp();
  p.t.Joue_Click();
  EXPECT_FALSE(p.t.SessionTerminée);
  EXPECT_NE(p.dossier.Lit("Scores"), "0\r\n0\r\n0\r\n0\r\n");
  DisquePlein([&] { p.t.ÉcritScores(); });
  ASSERT_EQ(erreurs.size(), 4u);
  EXPECT_NE(erreurs[2].find("« Temps2 »"), std::string::npos);
  EXPECT_NE(erreurs[2].find("un dossier porte ce nom"), std::string::npos);
  EXPECT_NE(erreurs[3].find("« Scores »"), std::string::npos);
}

// A folder that takes no new file, while its files stay writable: the file
// is written in place rather than not at all, and only a new file fails.
TEST(FichiersLimites, UnDossierSansNouveauFichierSÉcritEnPlace) {
  Partie p;
  const fs::path dossier = p.dossier.Chemin();
  // Root ignores the folder's permissions: the session runs in a child that
  // drops root for nobody, the owner of the folder and of its files.
  for (const char *nom : {"", "Noms", "Scores"})
    if (geteuid() == 0 && chown((dossier / nom).c_str(), 65534, 65534) != 0)
      GTEST_SKIP() << "cannot hand the folder to another user";
  fs::permissions(dossier, fs::perms(0555));
  const pid_t enfant = fork();
  if (enfant == 0) {
    if (geteuid() == 0 &&
        (setresgid(65534, 65534, 65534) != 0 || setresuid(65534, 65534, 65534) != 0))
      _exit(2);
    PlateformeSansFenêtre plateforme(dossier.string());
    TroisNiveaux t(plateforme);
    t.Form_Load();
    t.Scores[2] = -3;
    t.ÉcritScores();
    t.ÉcritTirage();
    const auto &e = plateforme.erreurs;
    _exit(e.size() == 1 && e[0].find("« Tirage »") != std::string::npos &&
                  e[0].find("le dossier est protégé en écriture") != std::string::npos
              ? 0
              : 1);
  }
  int statut = 0;
  waitpid(enfant, &statut, 0);
  fs::permissions(dossier, fs::perms::owner_all);
  if (enfant < 0 || !WIFEXITED(statut) || WEXITSTATUS(statut) == 2)
    GTEST_SKIP() << "no ordinary user to run as";
  EXPECT_EQ(WEXITSTATUS(statut), 0) << "one message, for the new file only";
  EXPECT_EQ(p.dossier.Lit("Scores"), "0\r\n0\r\n-3\r\n0\r\n");
  EXPECT_EQ(std::distance(fs::directory_iterator(dossier), {}), 2) << "no temporary file";
}

TEST(FichiersLimites, LesRestesDÉcrituresInterrompuesSontEffacésEtRienDAutre) {
  DossierEssai d;
  const fs::path dossier = d.Chemin();
  const std::vector<std::string> restes = {"Scores.kQbTzA", "Noms.XXXXXX",   "Tirage.aBcDeF",
                                           "Temps1.Zzzzzz", "Temps2.qwERty", "Historique.AbCdEf"};
  const std::vector<std::string> autres = {"Scores.backup",  "Scores.kQbTzAb", "Scores.kQbT1A",
                                           "Score.kQbTzA",   "Scores_kQbTzA",  "Scores.kQbTz",
                                           "Noms.kQbTzA.old"};
  for (const auto *noms : {&restes, &autres})
    for (const auto &nom : *noms)
      d.Écrit(nom, "0\r\n");
  fs::create_directory(dossier / "Temps2.AbCdEf");
  fs::create_symlink("Scores.backup", dossier / "Temps1.LiEnAb");

  PlateformeSansFenêtre p(d.Chemin());
  TroisNiveaux t(p);
  t.Form_Load();
  for (const auto &nom : restes)
    EXPECT_FALSE(d.Existe(nom)) << nom;
  for (const auto &nom : autres)
    EXPECT_TRUE(d.Existe(nom)) << nom;
  EXPECT_TRUE(fs::is_directory(dossier / "Temps2.AbCdEf") &&
              fs::is_symlink(dossier / "Temps1.LiEnAb"));
}

TEST(FichiersLimites, CeQuiNEstPasUnFichierOrdinaireNEstNiLuNiRemplacé) {
  Chien chien;
  Partie p;
  const fs::path dossier = p.dossier.Chemin();
  ASSERT_EQ(mkfifo((dossier / "Temps2").c_str(), 0644), 0);
  ASSERT_EQ(mkfifo((dossier / "Tirage").c_str(), 0644), 0);
  // A device of one's own where that is allowed, else the system's null
  // device, which an ordinary user cannot replace anyway.
  const fs::path appareil = dossier / "appareil";
  if (mknod(appareil.c_str(), S_IFCHR | 0666, makedev(1, 3)) != 0)
    fs::create_symlink("/dev/null", appareil);
  fs::create_symlink(appareil, dossier / "Temps1");

  // Readers pass over them as over a missing file, without waiting.
  p.t.Rejoue_MouseUp();
  EXPECT_EQ(p.t.Mains[3][0], 0);
  EXPECT_EQ(p.t.TempsDébutant, 0);
  EXPECT_TRUE(p.plateforme.erreurs.empty()) << "a replay passes over its files";
  EXPECT_TRUE(fs::is_fifo(dossier / "Temps2"));

  // Writers refuse them with a message, and leave them as they are.
  p.t.ÉcritTirage();
  p.t.Mode_MouseUp();
  p.t.ÉcritTempsDuMode();
  ASSERT_EQ(p.plateforme.erreurs.size(), 2u);
  EXPECT_NE(
      p.plateforme.erreurs[0].find("« Tirage » (" + dossier.string() +
                                   "/Tirage) : ce nom n'est pas celui d'un fichier ordinaire"),
      std::string::npos)
      << p.plateforme.erreurs[0];
  EXPECT_NE(p.plateforme.erreurs[1].find("« Temps1 »"), std::string::npos);
  EXPECT_TRUE(fs::is_fifo(dossier / "Tirage") && fs::is_symlink(dossier / "Temps1") &&
              fs::is_character_file(dossier / "Temps1"));

  // A link to a regular file is followed: the file it points to is written.
  fs::remove(dossier / "Tirage");
  p.dossier.Écrit("vrai-tirage", "");
  fs::create_symlink("vrai-tirage", dossier / "Tirage");
  p.t.ÉcritTirage();
  EXPECT_TRUE(fs::is_symlink(dossier / "Tirage"));
  EXPECT_EQ(p.dossier.Lit("vrai-tirage"), TexteDeTirage({std::vector<int>(52, 0)}))
      << "the replay of a pipe dealt code 0";
}

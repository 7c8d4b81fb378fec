// The data files at their limits: long names, scores at the 32-bit edge,
// folders that take no new file, leftovers of a crash, and whatever else
// than a regular file may lie at a data file's name.
#include <gtest/gtest.h>

#include <climits>
#include <filesystem>
#include <functional>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include "partie_essai.h"

namespace fs = std::filesystem;

int CommandeDonne(const std::vector<std::string> &arguments);

namespace {


// Runs `essai` as an ordinary user, for whom a folder's permissions bind:
// in a child that drops root for nobody, or here when not root. nullopt
// when neither can be had.
std::optional<bool> EnUtilisateurOrdinaire(const std::function<bool()> &essai) {
  if (geteuid() != 0)
    return essai();
  const pid_t enfant = fork();
  if (enfant < 0)
    return std::nullopt;
  if (enfant == 0) {
    if (setresgid(65534, 65534, 65534) != 0 || setresuid(65534, 65534, 65534) != 0)
      _exit(2);
    _exit(essai() ? 0 : 1);
  }
  int statut = 0;
  waitpid(enfant, &statut, 0);
  if (!WIFEXITED(statut) || WEXITSTATUS(statut) == 2)
    return std::nullopt;
  return WEXITSTATUS(statut) == 0;
}

// Ends the test program if a read or a write blocks.
struct Chien {
  Chien() { alarm(60); }
  ~Chien() { alarm(0); }
};

} // namespace

TEST(FichiersLimites, QuatreLongsNomsSeRelisentTelsQuels) {
  Partie p;
  std::string noms[4];
  for (int s = 0; s <= 3; ++s)
    noms[s] = std::string(30000, static_cast<char>('a' + s)) + "é, fin ";
  for (int s = 0; s <= 3; ++s)
    p.t.Fenêtre.NomsJoueursText[s].Text = noms[s];
  p.t.NomsJoueurs_MouseUp();
  p.t.EnregistreNoms_MouseUp();
  ASSERT_TRUE(p.plateforme.erreurs.empty());
  const std::string écrit = p.dossier.Lit("Noms");
  EXPECT_GT(écrit.size(), 64u * 1024);

  PlateformeSansFenêtre autre(p.dossier.Chemin());
  TroisNiveaux relu(autre);
  relu.Form_Load();
  ASSERT_FALSE(relu.DémarrageRefusé) << relu.ErreurDémarrage;
  for (int s = 0; s <= 3; ++s)
    EXPECT_TRUE(relu.Fenêtre.JoueursLabel[s].Caption == noms[s]) << "seat " << s;
  relu.EnregistreNoms_MouseUp();
  EXPECT_TRUE(p.dossier.Lit("Noms") == écrit) << "what was read writes the same bytes";

  // A name keeps as many characters as a name box takes.
  p.t.Fenêtre.NomsJoueursText[0].Text = std::string(40000, 'x');
  p.t.EnregistreNoms_MouseUp();
  EXPECT_EQ(p.dossier.Lit("Noms").find('"', 1), 32768u);
}

TEST(FichiersLimites, UnScoreSArrêteAuxLimitesSansTournerEtSeRelit) {
  DossierEssai d;
  d.Écrit("Scores", "-2147483646\r\n2147483627\r\n0\r\n-2147483648\r\n");
  d.Écrit("Tirage", TexteDeTirage(DonneDeRéférence));
  PlateformeSansFenêtre plateforme(d.Chemin());
  TroisNiveaux t(plateforme);
  t.Form_Load();
  ASSERT_FALSE(t.DémarrageRefusé) << t.ErreurDémarrage;
  plateforme.script = [&](int tour) {
    if (tour != 1)
      return;
    for (int k = 0; k <= 12; ++k)
      for (int j = k + 1; j <= 12; ++j)
        if (t.Mains[4][j] == DispositionDeRéférence[k]) {
          t.CartesJeu_MouseUp(39 + k);
          t.CartesJeu_MouseUp(39 + j);
        }
  };
  t.Rejoue_MouseUp();
  ASSERT_EQ(Partie::Textes(t.Fenêtre.TotalLabel), "-5 21 -7 -9");
  const std::string bornés = "-2147483648 2147483647 -7 -2147483648";
  EXPECT_EQ(Partie::Textes(t.Fenêtre.ScoreLabel), bornés);
  EXPECT_EQ(d.Lit("Scores"), "-2147483648\r\n2147483647\r\n-7\r\n-2147483648\r\n");

  // The solution view and back give the same numbers, though a score met
  // its limit on the way.
  ASSERT_TRUE(t.Fenêtre.VoirOrdi[0].Visible);
  t.VoirOrdi_Click(0);
  t.VoirOrdi_Click(1);
  EXPECT_EQ(Partie::Textes(t.Fenêtre.ScoreLabel), bornés);
  EXPECT_EQ(Partie::Textes(t.Fenêtre.TotalLabel), "-5 21 -7 -9");

  PlateformeSansFenêtre suivante(d.Chemin());
  TroisNiveaux relu(suivante);
  relu.Form_Load();
  EXPECT_FALSE(relu.DémarrageRefusé) << relu.ErreurDémarrage;
  EXPECT_EQ(Partie::Textes(relu.Fenêtre.ScoreLabel), bornés);
}

TEST(FichiersLimites, RejoueTaitUnTempsNonÉcritEtGoLeSignale) {
  Partie p(0);
  fs::create_directory(fs::path(p.dossier.Chemin()) / "Temps1");
  p.Tirage(DonneDeRéférence);
  p.t.Rejoue_MouseUp();
  EXPECT_TRUE(p.t.Fenêtre.NouveauJeu.Enabled) << "the replay went to its end";
  EXPECT_TRUE(p.plateforme.erreurs.empty()) << p.plateforme.erreurs.front();

  p.t.NouveauJeu_MouseUp();
  p.t.Joue_Click();
  ASSERT_EQ(p.plateforme.erreurs.size(), 1u);
  EXPECT_NE(p.plateforme.erreurs[0].find("« Temps1 »"), std::string::npos);
}

TEST(FichiersLimites, UnDossierSansNouveauFichierSÉcritEnPlace) {
  Partie p;
  const fs::path dossier = p.dossier.Chemin();
  struct stat avant {
  }, après{};
  stat((dossier / "Scores").c_str(), &avant);
  p.t.Scores[1] = 12;
  p.t.ÉcritScores();
  stat((dossier / "Scores").c_str(), &après);
  EXPECT_NE(avant.st_ino, après.st_ino) << "a writable folder gets the atomic replace";

  // The folder belongs to the ordinary user and refuses new files; the file
  // stays writable.
  for (const char *nom : {"", "Noms", "Scores"})
    if (chown((dossier / nom).c_str(), 65534, 65534) != 0 && geteuid() == 0)
      GTEST_SKIP() << "cannot hand the folder to another user";
  fs::permissions(dossier, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_read |
                               fs::perms::group_exec | fs::perms::others_read |
                               fs::perms::others_exec);
  const auto résultat = EnUtilisateurOrdinaire([&] {
    PlateformeSansFenêtre plateforme(dossier.string());
    TroisNiveaux t(plateforme);
    t.Form_Load();
    if (t.DémarrageRefusé || access(".", W_OK) == 0)
      return false;
    t.Scores[2] = -3;
    t.ÉcritScores();
    t.ÉcritTirage(); // a new file cannot be made here at all
    return plateforme.erreurs.size() == 1 &&
           plateforme.erreurs[0].find("« Tirage »") != std::string::npos &&
           plateforme.erreurs[0].find("le dossier est protégé en écriture") != std::string::npos;
  });
  fs::permissions(dossier, fs::perms::owner_all);
  if (!résultat)
    GTEST_SKIP() << "no ordinary user to run as";
  EXPECT_TRUE(*résultat);
  EXPECT_EQ(p.dossier.Lit("Scores"), "0\r\n12\r\n-3\r\n0\r\n");
  EXPECT_EQ(std::distance(fs::directory_iterator(dossier), {}), 2) << "no temporary file";
}

TEST(FichiersLimites, LesRestesDÉcrituresInterrompuesSontEffacésEtRienDAutre) {
  DossierEssai d;
  const fs::path dossier = d.Chemin();
  const std::vector<std::string> restes = {"Scores.kQbTzA", "Noms.XXXXXX", "Tirage.aBcDeF",
                                           "Temps1.Zzzzzz", "Temps2.qwERty", "Historique.AbCdEf"};
  const std::vector<std::string> autres = {"Scores.backup", "Scores.kQbTzAb", "Scores.kQbT1A",
                                           "Score.kQbTzA",  "Scores_kQbTzA",  "Autre.kQbTzA",
                                           "Scores.kQbTz",  "Noms.kQbTzA.old"};
  for (const auto &nom : restes)
    d.Écrit(nom, "0\r\n");
  for (const auto &nom : autres)
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
  EXPECT_TRUE(fs::is_directory(dossier / "Temps2.AbCdEf"));
  EXPECT_TRUE(fs::is_symlink(dossier / "Temps1.LiEnAb"));
  EXPECT_TRUE(d.Existe("Noms") && d.Existe("Scores"));
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
  EXPECT_NE(p.plateforme.erreurs[0].find("« Tirage »"), std::string::npos);
  EXPECT_NE(p.plateforme.erreurs[0].find("n'est pas celui d'un fichier ordinaire"),
            std::string::npos)
      << p.plateforme.erreurs[0];
  EXPECT_NE(p.plateforme.erreurs[1].find("« Temps1 »"), std::string::npos);
  EXPECT_TRUE(fs::is_fifo(dossier / "Tirage"));
  EXPECT_TRUE(fs::is_symlink(dossier / "Temps1"));
  EXPECT_TRUE(fs::is_character_file(dossier / "Temps1"));

  // A link to a regular file is followed: the file it points to is written.
  fs::remove(dossier / "Tirage");
  p.dossier.Écrit("vrai-tirage", "");
  fs::create_symlink("vrai-tirage", dossier / "Tirage");
  p.t.ÉcritTirage();
  EXPECT_TRUE(fs::is_symlink(dossier / "Tirage"));
  std::string zéros;
  for (int i = 0; i < 52; ++i)
    zéros += "0\r\n";
  EXPECT_EQ(p.dossier.Lit("vrai-tirage"), zéros) << "the replay of a pipe dealt code 0";

  // At start-up a pipe for Noms is refused at once.
  fs::remove(dossier / "Noms");
  ASSERT_EQ(mkfifo((dossier / "Noms").c_str(), 0644), 0);
  PlateformeSansFenêtre autre(p.dossier.Chemin());
  TroisNiveaux t(autre);
  t.Form_Load();
  EXPECT_NE(t.ErreurDémarrage.find("n'est pas un fichier ordinaire"), std::string::npos);
}

TEST(FichiersLimites, UnTubeDonnéÀLAnalyseEstRefuséSansAttendre) {
  Chien chien;
  DossierEssai d;
  const fs::path tube = fs::path(d.Chemin()) / "Tirage";
  ASSERT_EQ(mkfifo(tube.c_str(), 0644), 0);
  EXPECT_EQ(CommandeDonne({"--tirage", tube.string()}), 2);
  EXPECT_EQ(CommandeDonne({"--tirage", d.Chemin()}), 2) << "a folder";
}

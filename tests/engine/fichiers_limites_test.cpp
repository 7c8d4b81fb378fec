// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The data files at their limits: folders that take no new file, leftovers
// of a crash, and whatever else than a regular file lies at their names.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include "partie_essai.h"

namespace fs = std::filesystem;

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

TEST(FichiersLimites, UnDossierSansNouveauFichierSÉcritEnPlace) {
  DossierEssai d;
  const fs::path dossier = d.Chemin();
  // The folder belongs to the ordinary user and refuses new files; the file
  // stays writable.
  for (const char *nom : {"", "Noms", "Scores"})
    if (chown((dossier / nom).c_str(), 65534, 65534) != 0 && geteuid() == 0)
      GTEST_SKIP() << "cannot hand the folder to another user";
  fs::permissions(dossier, fs::perms(0555));
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
  EXPECT_EQ(d.Lit("Scores"), "0\r\n0\r\n-3\r\n0\r\n");
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

  // At start-up a pipe for Noms is refused at once.
  fs::remove(dossier / "Noms");
  ASSERT_EQ(mkfifo((dossier / "Noms").c_str(), 0644), 0);
  PlateformeSansFenêtre autre(p.dossier.Chemin());
  TroisNiveaux t(autre);
  t.Form_Load();
  EXPECT_NE(t.ErreurDémarrage.find("n'est pas un fichier ordinaire"), std::string::npos);
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The data files at their limits: leftovers of a crash, and whatever else
// than a regular file lies at their names.
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include "partie_essai.h"

namespace fs = std::filesystem;

namespace {

// Ends the test program if a read or a write blocks.
struct Chien {
  Chien() { alarm(60); }
  ~Chien() { alarm(0); }
};

} // namespace

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

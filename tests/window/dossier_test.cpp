#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/qt/bureau/dossier_donnees.h"
#include "platform/qt/bureau/ligne_de_commande.h"

namespace {

void Écrit(const QString &chemin, const QByteArray &octets) {
  QDir().mkpath(QFileInfo(chemin).absolutePath());
  QFile f(chemin);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(octets);
}

QByteArray Lit(const QString &chemin) {
  QFile f(chemin);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

const QByteArray Noms = "\"MicroProc\"\r\n\"GigaOctets\"\r\n\"M\xE9gaBytes\"\r\n\"Bibi\"\r\n";
const QByteArray Scores = "0\r\n0\r\n0\r\n0\r\n";

// A program folder, a home's data folder and an installed share folder.
struct Machine {
  QTemporaryDir racine;
  QString programme = racine.filePath("usr/bin");
  QString installé = racine.filePath("usr/share/troisniveaux");
  QString personnel = racine.filePath("home/.local/share/troisniveaux");
  Machine() {
    QDir().mkpath(programme);
    Écrit(installé + "/Noms", Noms);
    Écrit(installé + "/Scores", Scores);
    Écrit(installé + "/pub0.htm", "<p>page</p>");
    QFile::setPermissions(installé + "/Noms",
                          QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
  }
  DossierDesDonnéesChoisi Choisit() const {
    return ChoisitDossierDesDonnées(programme, personnel, {racine.filePath("ailleurs"), installé});
  }
};

} // namespace

TEST(DossierDesDonnées, UnNomsÀCôtéDuProgrammeLeRendPortable) {
  Machine m;
  Écrit(m.programme + "/Noms", Noms);
  const auto choix = m.Choisit();
  EXPECT_TRUE(choix.portable);
  EXPECT_EQ(choix.dossier, m.programme);
  EXPECT_EQ(choix.pages, m.programme);
  EXPECT_TRUE(choix.erreur.isEmpty());
  EXPECT_FALSE(QFileInfo::exists(m.personnel)) << "the player's folder is left alone";
}

TEST(DossierDesDonnées, LePremierLancementInstalléCopieLesDéfautsChezLeJoueur) {
  Machine m;
  const auto choix = m.Choisit();
  ASSERT_TRUE(choix.erreur.isEmpty()) << choix.erreur.toStdString();
  EXPECT_FALSE(choix.portable);
  EXPECT_TRUE(choix.créé);
  EXPECT_EQ(choix.dossier, m.personnel);
  EXPECT_EQ(choix.pages, m.installé);
  EXPECT_EQ(Lit(m.personnel + "/Noms"), Noms);
  EXPECT_EQ(Lit(m.personnel + "/Scores"), Scores);
  EXPECT_TRUE(QFileInfo(m.personnel + "/Noms").isWritable()) << "the copy is the player's";
  EXPECT_FALSE(QFileInfo::exists(m.personnel + "/pub0.htm")) << "pages stay installed";
  // Nothing is left beside it but the folder itself.
  EXPECT_EQ(QDir(QFileInfo(m.personnel).absolutePath())
                .entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList{"troisniveaux"});

  // The next start keeps what the player has, a damaged file included:
  // the start then reports it.
  Écrit(m.personnel + "/Scores", "12\r\n");
  QFile::remove(m.personnel + "/Noms");
  const auto ensuite = m.Choisit();
  EXPECT_TRUE(ensuite.erreur.isEmpty());
  EXPECT_FALSE(ensuite.créé);
  EXPECT_EQ(ensuite.dossier, m.personnel);
  EXPECT_FALSE(QFileInfo::exists(m.personnel + "/Noms"));
  EXPECT_EQ(Lit(m.personnel + "/Scores"), "12\r\n");
}

TEST(DossierDesDonnées, SansDéfautsInstallésNiDossierPossibleLeDémarrageEstRefusé) {
  Machine m;
  QFile::remove(m.installé + "/Scores");
  auto choix = m.Choisit();
  EXPECT_TRUE(choix.erreur.contains("Scores")) << choix.erreur.toStdString();
  EXPECT_TRUE(choix.erreur.contains(m.installé)) << "says where it looked";
  EXPECT_FALSE(QFileInfo::exists(m.personnel));

  // A file where the parent folder should be: nothing can be made there.
  Machine bloquée;
  Écrit(QFileInfo(bloquée.personnel).absolutePath(), "pas un dossier");
  choix = bloquée.Choisit();
  EXPECT_FALSE(choix.erreur.isEmpty());
  EXPECT_TRUE(choix.erreur.contains(QFileInfo(bloquée.personnel).absolutePath()))
      << choix.erreur.toStdString();
}

TEST(DossierDesDonnées, LesDossiersInstallésCommencentÀCôtéDuProgramme) {
  QStringList dossiers = DossiersInstallés();
  ASSERT_FALSE(dossiers.isEmpty());
  EXPECT_TRUE(dossiers.first().endsWith("/troisniveaux")) << dossiers.first().toStdString();
  EXPECT_EQ(dossiers.removeDuplicates(), 0);
}

TEST(LigneDeCommande, AideEtVersionSeulement) {
  const char *aide[] = {"troisniveaux", "--help"};
  const char *version[] = {"troisniveaux", "--version"};
  const char *rien[] = {"troisniveaux"};
  const char *option[] = {"troisniveaux", "--plein-écran"};
  const char *argument[] = {"troisniveaux", "Noms"};
  testing::internal::CaptureStdout();
  EXPECT_EQ(TraiteLigneDeCommande(2, aide), 0);
  EXPECT_EQ(TraiteLigneDeCommande(2, version), 0);
  const std::string sortie = testing::internal::GetCapturedStdout();
  EXPECT_NE(sortie.find("Utilisation : troisniveaux"), std::string::npos);
  EXPECT_NE(sortie.find("troisniveaux 0"), std::string::npos);
  EXPECT_EQ(TraiteLigneDeCommande(1, rien), std::nullopt);
  testing::internal::CaptureStderr();
  EXPECT_EQ(TraiteLigneDeCommande(2, option), 2);
  EXPECT_EQ(TraiteLigneDeCommande(2, argument), 2);
  const std::string erreurs = testing::internal::GetCapturedStderr();
  EXPECT_NE(erreurs.find("option inconnue « --plein-écran »"), std::string::npos);
  EXPECT_NE(erreurs.find("argument inattendu « Noms »"), std::string::npos);
}

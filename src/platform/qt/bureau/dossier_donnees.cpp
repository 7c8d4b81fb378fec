// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/bureau/dossier_donnees.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "platform/qt/bureau/identite.h"

#ifndef TN_DONNEES_RELATIVES
#define TN_DONNEES_RELATIVES "../share/troisniveaux"
#endif

namespace {

const char *const DéfautsCopiés[] = {"Noms", "Scores"};

bool TientLesDéfauts(const QString &dossier) {
  for (const char *nom : DéfautsCopiés)
    if (!QFileInfo(QDir(dossier).filePath(nom)).isFile())
      return false;
  return true;
}

// Fills a fresh folder beside the player's one and renames it into place, so
// a first run cut short leaves no half-made folder that would then stand.
QString CréeDossierPersonnel(const QString &personnel, const QString &source) {
  const QString parent = QFileInfo(personnel).absolutePath();
  if (!QDir().mkpath(parent))
    return "Le dossier « " + parent + " » ne peut pas être créé.";
  QTemporaryDir provisoire(QDir(parent).filePath(QFileInfo(personnel).fileName() + "-XXXXXX"));
  if (!provisoire.isValid())
    return "Le dossier « " + parent + " » refuse la création d'un dossier (" +
           provisoire.errorString() + ").";
  for (const char *nom : DéfautsCopiés) {
    const QString copie = QDir(provisoire.path()).filePath(nom);
    QFile original(QDir(source).filePath(nom));
    if (!original.copy(copie))
      return "Le fichier « " + original.fileName() + " » ne peut pas être copié dans « " + parent +
             " » (" + original.errorString() + ").";
    // The installed defaults are read-only; the player's copies are theirs.
    QFile::setPermissions(copie, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                     QFile::ReadOther);
  }
  QFile::setPermissions(provisoire.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                               QFile::ReadGroup | QFile::ExeGroup |
                                               QFile::ReadOther | QFile::ExeOther);
  if (!QDir().rename(provisoire.path(), personnel)) {
    // Another copy of the game, started at the same moment, may have won.
    if (QFileInfo(personnel).isDir())
      return {};
    return "Le dossier « " + personnel + " » ne peut pas être créé.";
  }
  provisoire.setAutoRemove(false);
  return {};
}

} // namespace

DossierDesDonnéesChoisi ChoisitDossierDesDonnées(const QString &programme, const QString &personnel,
                                                 const QStringList &installés) {
  DossierDesDonnéesChoisi choix;
  if (QFileInfo::exists(QDir(programme).filePath("Noms"))) {
    choix.dossier = programme;
    choix.pages = programme;
    choix.portable = true;
    return choix;
  }
  choix.dossier = personnel;
  choix.pages = programme;
  QString défauts;
  for (const QString &dossier : installés) {
    if (défauts.isEmpty() && TientLesDéfauts(dossier))
      défauts = dossier;
    if (choix.pages == programme && QFileInfo::exists(QDir(dossier).filePath("pub0.htm")))
      choix.pages = dossier;
  }
  // Once the folder exists, what lies in it is the player's: a missing or
  // damaged file is reported at start like any other, never replaced.
  if (QFileInfo(personnel).isDir())
    return choix;
  if (défauts.isEmpty()) {
    choix.erreur = "Les fichiers « Noms » et « Scores » livrés avec le jeu sont introuvables "
                   "(cherchés dans : " +
                   (installés.isEmpty() ? QString("aucun dossier") : installés.join(", ")) +
                   "). Le dossier « " + personnel + " » ne peut pas être préparé.";
    return choix;
  }
  choix.erreur = CréeDossierPersonnel(personnel, défauts);
  choix.créé = choix.erreur.isEmpty();
  return choix;
}

QStringList DossiersInstallés() {
  QStringList dossiers;
  const auto ajoute = [&dossiers](const QString &dossier) {
    const QString propre = QDir::cleanPath(dossier);
    if (!dossiers.contains(propre))
      dossiers << propre;
  };
  ajoute(QDir(QCoreApplication::applicationDirPath()).filePath(TN_DONNEES_RELATIVES));
  // The first standard location is the player's own: it never holds defaults.
  const QStringList système =
      QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
  for (qsizetype i = 1; i < système.size(); ++i)
    ajoute(QDir(système[i]).filePath(NomDuProgramme));
  return dossiers;
}

const DossierDesDonnéesChoisi &DossierDeCetteSession() {
  static const DossierDesDonnéesChoisi choix = ChoisitDossierDesDonnées(
      QCoreApplication::applicationDirPath(),
      QStandardPaths::writableLocation(QStandardPaths::AppDataLocation), DossiersInstallés());
  return choix;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/bureau/langue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>
#include <memory>

#include "platform/qt/bureau/identite.h"
#include "platform/qt/bureau/reglages.h"

#ifndef TN_DONNEES_RELATIVES
#define TN_DONNEES_RELATIVES "../share/troisniveaux"
#endif

namespace {

const char Clé[] = "langue";

// The command line is read before the application object exists.
QString DossierDuProgramme() {
  if (QCoreApplication::instance())
    return QCoreApplication::applicationDirPath();
  return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
}

QString Fichier(const QString &langue) {
  return QDir(DossierDesTraductions())
      .filePath(QStringLiteral("%1_%2.qm").arg(NomDuProgramme, langue));
}

std::unique_ptr<QTranslator> &Traducteur() {
  static std::unique_ptr<QTranslator> traducteur;
  return traducteur;
}

QString &Parlée() {
  static QString langue = QStringLiteral("fr");
  return langue;
}

// Before the session the application has no name yet: the file is named as
// the settings of the session name it.
std::unique_ptr<QSettings> Réglages() {
  if (QCoreApplication::instance() && !QCoreApplication::applicationName().isEmpty())
    return RéglagesDuJoueur();
  return std::make_unique<QSettings>(NomDuProgramme, NomDuProgramme);
}

} // namespace

QString DossierDesTraductions() {
  const QDir programme(DossierDuProgramme());
  for (const QString &dossier :
       {programme.filePath("traductions"),
        QDir::cleanPath(programme.filePath(TN_DONNEES_RELATIVES "/traductions"))})
    if (QFileInfo(dossier).isDir())
      return dossier;
  return {};
}

QStringList LanguesDisponibles() {
  QStringList langues{QStringLiteral("fr")};
  const QString dossier = DossierDesTraductions();
  if (dossier.isEmpty())
    return langues;
  const QString préfixe = QStringLiteral("%1_").arg(NomDuProgramme);
  for (const QFileInfo &f :
       QDir(dossier).entryInfoList({préfixe + "*.qm"}, QDir::Files, QDir::Name)) {
    const QString langue = f.completeBaseName().mid(préfixe.size());
    if (!langue.isEmpty() && !langues.contains(langue))
      langues << langue;
  }
  return langues;
}

QString LangueDeDépart(const QString &demandée) {
  const QStringList disponibles = LanguesDisponibles();
  if (!demandée.isEmpty())
    return disponibles.contains(demandée) ? demandée : QStringLiteral("fr");
  const QString gardée = Réglages()->value(Clé).toString();
  if (disponibles.contains(gardée))
    return gardée;
  // "C" and "POSIX" name no language: the game then speaks its own.
  if (QLocale::system().language() == QLocale::C)
    return QStringLiteral("fr");
  for (const QString &nom : QLocale::system().uiLanguages()) {
    const QString langue = nom.section('-', 0, 0).section('_', 0, 0).toLower();
    if (disponibles.contains(langue))
      return langue;
  }
  return QStringLiteral("fr");
}

// Installing or removing a translator tells every window to redraw its texts.
bool ParleLangue(const QString &langue) {
  auto &traducteur = Traducteur();
  if (langue == Parlée())
    return true;
  if (traducteur) {
    QCoreApplication::removeTranslator(traducteur.get());
    traducteur.reset();
  }
  Parlée() = QStringLiteral("fr");
  bool réussi = langue == Parlée();
  if (!réussi) {
    auto nouveau = std::make_unique<QTranslator>();
    if (nouveau->load(Fichier(langue)) && QCoreApplication::installTranslator(nouveau.get())) {
      traducteur = std::move(nouveau);
      Parlée() = langue;
      réussi = true;
    }
  }
  return réussi;
}

QString LangueParlée() { return Parlée(); }

void LangueSuivante() {
  const QStringList langues = LanguesDisponibles();
  const QString suivante = langues[(langues.indexOf(Parlée()) + 1) % langues.size()];
  ParleLangue(suivante);
  Réglages()->setValue(Clé, LangueParlée());
}

QString TraduitAvantLaSession(const QString &langue, const char *contexte, const char *texte) {
  QTranslator traducteur;
  if (langue != QLatin1String("fr") && traducteur.load(Fichier(langue))) {
    const QString traduit = traducteur.translate(contexte, texte);
    if (!traduit.isEmpty())
      return traduit;
  }
  return QString::fromUtf8(texte);
}

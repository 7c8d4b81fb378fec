// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/bureau/ligne_de_commande.h"

#include <QtGlobal>
#include <cstdio>
#include <string_view>

#include "platform/qt/bureau/langue.h"

#ifndef TN_VERSION
#define TN_VERSION "0"
#endif

namespace {

const char Contexte[] = "LigneDeCommande";

const char *const Aide = QT_TRANSLATE_NOOP(
    "LigneDeCommande",
    "Utilisation : troisniveaux [--langue fr|en] [--help | --version]\n"
    "\n"
    "Trois Niveaux, un jeu de cartes contre trois joueurs de l'ordinateur : treize cartes\n"
    "à poser sur trois niveaux (5, 5 et 3), chacun plus fort que le suivant.\n"
    "\n"
    "  --langue LANGUE  joue dans cette langue (%1)\n"
    "  -h, --help       affiche cette aide et s'arrête\n"
    "  -V, --version    affiche la version et s'arrête\n"
    "\n"
    "Fichiers (Noms, Scores, Temps1, Temps2, Tirage, Historique) : à côté du programme quand\n"
    "un fichier Noms s'y trouve, sinon dans le dossier de données de l'utilisateur\n"
    "(~/.local/share/troisniveaux, ou $XDG_DATA_HOME/troisniveaux), créé au premier\n"
    "lancement avec les noms et scores par défaut.\n");

QString &Demandée() {
  static QString langue;
  return langue;
}

void Écrit(std::FILE *flux, const QString &langue, const char *texte,
           const QStringList &arguments = {}) {
  QString traduit = TraduitAvantLaSession(langue, Contexte, texte);
  for (const QString &argument : arguments)
    traduit = traduit.arg(argument);
  std::fputs(traduit.toUtf8().constData(), flux);
}

} // namespace

QString LangueDeLaLigneDeCommande() { return Demandée(); }

std::optional<int> TraiteLigneDeCommande(int argc, const char *const argv[]) {
  Demandée().clear();
  // The language comes first: the help and the errors are told in it.
  int erreur = 0;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument != "--langue")
      continue;
    if (i + 1 >= argc || !LanguesDisponibles().contains(QString::fromLocal8Bit(argv[i + 1]))) {
      erreur = i;
      break;
    }
    Demandée() = QString::fromLocal8Bit(argv[++i]);
  }
  const QString langue = LangueDeDépart(Demandée());
  if (erreur) {
    Écrit(stderr, langue,
          QT_TRANSLATE_NOOP("LigneDeCommande",
                            "troisniveaux : langue inconnue « %1 » (langues : %2)\n"),
          {erreur + 1 < argc ? QString::fromLocal8Bit(argv[erreur + 1]) : QString(),
           LanguesDisponibles().join(", ")});
    return 2;
  }
  int premier = 0;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--langue") {
      ++i;
      continue;
    }
    if (argument == "--help" || argument == "-h") {
      Écrit(stdout, langue, Aide, {LanguesDisponibles().join(", ")});
      return 0;
    }
    if (argument == "--version" || argument == "-V") {
      std::printf("troisniveaux %s\n", TN_VERSION);
      return 0;
    }
    if (!premier)
      premier = i;
  }
  if (!premier)
    return std::nullopt;
  const QString fautif = QString::fromLocal8Bit(argv[premier]);
  if (fautif.startsWith('-'))
    Écrit(stderr, langue,
          QT_TRANSLATE_NOOP("LigneDeCommande", "troisniveaux : option inconnue « %1 »\n"),
          {fautif});
  else
    Écrit(stderr, langue,
          QT_TRANSLATE_NOOP("LigneDeCommande", "troisniveaux : argument inattendu « %1 »\n"),
          {fautif});
  Écrit(stderr, langue,
        QT_TRANSLATE_NOOP("LigneDeCommande",
                          "Essayez « troisniveaux --help » pour en savoir plus.\n"));
  return 2;
}

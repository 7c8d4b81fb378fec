// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "analyse/commande_historique.h"

#include <cstdio>
#include <iomanip>

#include <QStandardPaths>
#include <filesystem>

#include "files/historique.h"

const char *const AideHistorique =
    "Usage : troisniveaux-analyse historique [--json] [FICHIER]\n"
    "\n"
    "Résume l'historique des scores (par défaut le fichier « Historique » du dossier\n"
    "courant s'il y en a un, sinon celui du dossier de données du joueur,\n"
    "~/.local/share/troisniveaux) : pour chaque joueur le nombre de donnes, la\n"
    "moyenne de points par donne, la meilleure et la pire donne, et le score où\n"
    "l'historique s'arrête.\n"
    "Les noms sont ceux du fichier « Noms » posé à côté, s'il y en a un.\n"
    "\n"
    "  --json   une seule ligne JSON : donnes, remises, lignesIgnorées, sièges\n"
    "  --help   ce texte\n";

namespace {

// Two decimals, the same in every locale.
std::string Décimal(double x) {
  char tampon[32];
  std::snprintf(tampon, sizeof tampon, "%.2f", x);
  return tampon;
}

std::string ChaîneJson(const std::string &s) {
  std::string r = "\"";
  for (const char c : s) {
    if (c == '"' || c == '\\')
      r += '\\';
    if (static_cast<unsigned char>(c) < 0x20) {
      char tampon[8];
      std::snprintf(tampon, sizeof tampon, "\\u%04x", c);
      r += tampon;
      continue;
    }
    r += c;
  }
  return r + "\"";
}

// The width of a text as a terminal shows it: one column per character.
std::size_t Colonnes(const std::string &s) {
  std::size_t n = 0;
  for (const char c : s)
    if ((static_cast<unsigned char>(c) & 0xC0) != 0x80)
      ++n;
  return n;
}

} // namespace

int CommandeHistorique(const std::vector<std::string> &arguments, std::ostream &sortie,
                       std::ostream &erreurs) {
  bool json = false;
  std::string fichier = historique::NomDuFichier;
  bool fichierDonné = false;
  for (const std::string &a : arguments) {
    if (a == "--help" || a == "-h") {
      sortie << AideHistorique;
      return 0;
    }
    if (a == "--json") {
      json = true;
    } else if (!a.empty() && a[0] != '-' && !fichierDonné) {
      fichier = a;
      fichierDonné = true;
    } else {
      erreurs << "Argument inconnu : « " << a
              << " ». Voir troisniveaux-analyse historique --help.\n";
      return 2;
    }
  }
  // Without a file named: the game's own, portable beside us or installed.
  if (!fichierDonné && !std::filesystem::exists(fichier))
    fichier = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString() +
              "/troisniveaux/" + historique::NomDuFichier;
  const historique::Lecture lecture = historique::Lit(fichier);
  if (!lecture.trouvé) {
    erreurs << "Le fichier « " << fichier << " » est introuvable ou illisible.\n";
    return 1;
  }
  const historique::Figures f = historique::Calcule(lecture.entrées);
  const auto noms = historique::NomsÀCôté(fichier);
  if (json) {
    sortie << "{\"donnes\": " << f.donnes << ", \"remises\": " << f.remises
           << ", \"lignesIgnorées\": " << lecture.lignesIgnorées << ", \"sièges\": [";
    for (int s = 0; s <= 3; ++s) {
      const auto &siège = f.sièges[s];
      sortie << (s ? ", " : "") << "{\"nom\": " << ChaîneJson(noms[s])
             << ", \"donnes\": " << siège.donnes << ", \"moyenne\": " << Décimal(siège.moyenne)
             << ", \"meilleure\": " << siège.meilleure << ", \"pire\": " << siège.pire
             << ", \"score\": " << siège.score << "}";
    }
    sortie << "]}\n";
    return 0;
  }
  sortie << "Historique : " << f.donnes << (f.donnes > 1 ? " donnes" : " donne") << ", "
         << f.remises << (f.remises > 1 ? " remises à zéro" : " remise à zéro");
  if (lecture.lignesIgnorées > 0)
    sortie << " (" << lecture.lignesIgnorées
           << (lecture.lignesIgnorées > 1 ? " lignes illisibles passées)"
                                          : " ligne illisible passée)");
  sortie << "\n\n";
  sortie << "Joueur          Donnes   Moyenne  Meilleure   Pire   Score\n";
  for (int s = 0; s <= 3; ++s) {
    const auto &siège = f.sièges[s];
    std::string nom = noms[s];
    if (Colonnes(nom) < 14)
      nom += std::string(14 - Colonnes(nom), ' ');
    sortie << nom << std::setw(8) << siège.donnes << std::setw(10) << Décimal(siège.moyenne)
           << std::setw(11) << siège.meilleure << std::setw(7) << siège.pire << std::setw(8)
           << siège.score << "\n";
  }
  return 0;
}

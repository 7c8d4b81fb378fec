#include "platform/qt/bureau/ligne_de_commande.h"

#include <cstdio>
#include <string_view>

#ifndef TN_VERSION
#define TN_VERSION "0"
#endif

namespace {

const char Aide[] =
    "Utilisation : troisniveaux [--help | --version]\n"
    "\n"
    "Trois Niveaux, un jeu de cartes contre trois joueurs de l'ordinateur : treize cartes\n"
    "à poser sur trois niveaux (5, 5 et 3), chacun plus fort que le suivant.\n"
    "\n"
    "  -h, --help     affiche cette aide et s'arrête\n"
    "  -V, --version  affiche la version et s'arrête\n"
    "\n"
    "Fichiers (Noms, Scores, Temps1, Temps2, Tirage, Historique) : à côté du programme quand\n"
    "un fichier Noms s'y trouve, sinon dans le dossier de données de l'utilisateur\n"
    "(~/.local/share/troisniveaux, ou $XDG_DATA_HOME/troisniveaux), créé au premier\n"
    "lancement avec les noms et scores par défaut.\n";

} // namespace

std::optional<int> TraiteLigneDeCommande(int argc, const char *const argv[]) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--help" || argument == "-h") {
      std::fputs(Aide, stdout);
      return 0;
    }
    if (argument == "--version" || argument == "-V") {
      std::printf("troisniveaux %s\n", TN_VERSION);
      return 0;
    }
  }
  if (argc <= 1)
    return std::nullopt;
  const std::string_view premier = argv[1];
  if (premier.starts_with("-"))
    std::fprintf(stderr, "troisniveaux : option inconnue « %s »\n", argv[1]);
  else
    std::fprintf(stderr, "troisniveaux : argument inattendu « %s »\n", argv[1]);
  std::fputs("Essayez « troisniveaux --help » pour en savoir plus.\n", stderr);
  return 2;
}

// What a write cut short leaves behind. A data file is replaced through a
// temporary file beside it, named after it with a dot and six random letters
// ("Scores.kQbTzA"); a crash between its creation and the rename leaves it
// there. Such leftovers of the five files are removed at the next start.
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "core/table_state.h"

namespace {

const char *const FichiersDuJeu[5] = {"Noms", "Scores", "Temps1", "Temps2", "Tirage"};

bool EstMinuscule(char c) { return c >= 'a' && c <= 'z'; }
bool EstMajuscule(char c) { return c >= 'A' && c <= 'Z'; }

// "Scores." and six letters drawn at random. Six small letters make a word
// ("Scores.backup"): that is how a player names a copy, and it is left alone.
bool NomDeReste(const std::string &nom) {
  for (const char *fichier : FichiersDuJeu) {
    const std::string préfixe = std::string(fichier) + ".";
    if (nom.size() != préfixe.size() + 6 || nom.compare(0, préfixe.size(), préfixe) != 0)
      continue;
    bool minuscules = true;
    for (std::size_t i = préfixe.size(); i < nom.size(); ++i) {
      if (!EstMinuscule(nom[i]) && !EstMajuscule(nom[i]))
        return false;
      minuscules = minuscules && EstMinuscule(nom[i]);
    }
    return !minuscules;
  }
  return false;
}

} // namespace

// Only regular files of this user are removed, never what a link points to;
// a file that cannot be removed stays, without a word.
void TroisNiveaux::NettoieFichiersTemporaires() {
  std::error_code e;
  for (auto it = std::filesystem::directory_iterator(".", e);
       !e && it != std::filesystem::directory_iterator(); it.increment(e)) {
    const std::string nom = it->path().filename().string();
    struct stat état {};
    if (!NomDeReste(nom) || lstat(nom.c_str(), &état) != 0 || !S_ISREG(état.st_mode) ||
        état.st_uid != geteuid())
      continue;
    unlink(nom.c_str());
  }
}

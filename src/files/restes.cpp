// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// What a write cut short leaves behind. A data file is replaced through a
// temporary file beside it, named after it with a dot and six random letters
// ("Scores.kQbTzA"); a crash between its creation and the rename leaves it
// there. Such leftovers of the five files and of the history are removed at
// the next start.
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "core/table_state.h"
#include "files/format.h"
#include "files/historique.h"

namespace {

bool EstMinuscule(char c) { return c >= 'a' && c <= 'z'; }
bool EstMajuscule(char c) { return c >= 'A' && c <= 'Z'; }

// "Scores." and six letters drawn at random. Six small letters make a word
// ("Scores.backup"): that is how a player names a copy, and it is left alone.
bool NomDeReste(const std::string &nom, const std::vector<std::string> &fichiers) {
  for (const std::string &fichier : fichiers) {
    const std::string préfixe = fichier + ".";
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

// A file that cannot be removed stays, without a word.
void format::NettoieRestes(const std::string &dossier, const std::vector<std::string> &noms) {
  std::error_code e;
  for (auto it = std::filesystem::directory_iterator(dossier, e);
       !e && it != std::filesystem::directory_iterator(); it.increment(e)) {
    const std::string chemin = it->path().string();
    struct stat état {};
    if (!NomDeReste(it->path().filename().string(), noms) || lstat(chemin.c_str(), &état) != 0 ||
        !S_ISREG(état.st_mode) || état.st_uid != geteuid())
      continue;
    unlink(chemin.c_str());
  }
}

void TroisNiveaux::NettoieFichiersTemporaires() {
  format::NettoieRestes(".",
                        {"Noms", "Scores", "Temps1", "Temps2", "Tirage", historique::NomDuFichier});
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <filesystem>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

#include "core/table_state.h"
#include "files/format.h"

namespace {

// Far above any file the game writes: four names of the longest a name box
// takes come to 128 KiB.
constexpr std::size_t TailleMaximale = 1024 * 1024;

std::string CheminComplet(const std::string &nom) {
  std::error_code erreur;
  const auto chemin = std::filesystem::absolute(nom, erreur);
  return erreur ? nom : chemin.string();
}

std::string Désignation(const std::string &nom) {
  return "Le fichier « " + nom + " » (" + CheminComplet(nom) + ")";
}

const std::string FinDuMessage = " La partie ne peut pas commencer.";

// Reads a start-up file; on failure, says why in `erreur`. `tronqué` tells
// that the file goes on past the lines returned.
std::optional<std::vector<std::string>> LignesAuDémarrage(const std::string &nom,
                                                          std::string &erreur, bool &tronqué) {
  auto lignes = format::LitLignes(nom, TailleMaximale, &tronqué);
  if (lignes)
    return lignes;
  std::error_code e;
  if (!std::filesystem::exists(nom, e))
    erreur = Désignation(nom) + " est introuvable." + FinDuMessage;
  else if (!std::filesystem::is_regular_file(nom, e))
    erreur = Désignation(nom) + " n'est pas un fichier ordinaire." + FinDuMessage;
  else
    erreur = Désignation(nom) + " ne peut pas être lu (droits insuffisants ?)." + FinDuMessage;
  return std::nullopt;
}

// "ne contient aucun nom", "contient seulement deux scores"... A file that
// goes on past the size limit may hold more, but is no file the game wrote.
std::string TropPeu(std::size_t lus, const char *singulier, const char *pluriel, bool tronqué) {
  if (tronqué)
    return " est trop grand pour être un fichier du jeu (plus de 1 Mo).";
  switch (lus) {
  case 0:
    return std::string(" ne contient aucun ") + singulier + ".";
  case 1:
    return std::string(" contient un seul ") + singulier + " au lieu de quatre.";
  case 2:
    return std::string(" contient seulement deux ") + pluriel + " au lieu de quatre.";
  default:
    return std::string(" contient seulement trois ") + pluriel + " au lieu de quatre.";
  }
}

std::string LigneFautive(const std::string &nom, int ligne, const char *défaut) {
  return Désignation(nom) + " : la ligne " + std::to_string(ligne) + " " + défaut + "." +
         FinDuMessage;
}

} // namespace

// Each line present is checked before their number, so that the message
// names the first fault a reader of the file would see.
bool TroisNiveaux::LitNoms() {
  bool tronqué = false;
  const auto lignes = LignesAuDémarrage("Noms", ErreurDémarrage, tronqué);
  if (!lignes)
    return false;
  std::string noms[4];
  for (int siège = 0; siège <= 3; ++siège) {
    if (static_cast<std::size_t>(siège) >= lignes->size()) {
      ErreurDémarrage =
          Désignation("Noms") + TropPeu(lignes->size(), "nom", "noms", tronqué) + FinDuMessage;
      return false;
    }
    const auto nom = format::Chaîne((*lignes)[siège]);
    if (!nom) {
      ErreurDémarrage = LigneFautive("Noms", siège + 1, "n'est pas un nom entre guillemets");
      return false;
    }
    noms[siège] = *nom;
  }
  for (int siège = 0; siège <= 3; ++siège) {
    Fenêtre.NomsJoueursText[siège].Text = noms[siège];
    Fenêtre.JoueursLabel[siège].Caption = noms[siège];
  }
  return true;
}

// A score holds any 32-bit value: the game's own scores stop at its limits.
bool TroisNiveaux::LitScores() {
  bool tronqué = false;
  const auto lignes = LignesAuDémarrage("Scores", ErreurDémarrage, tronqué);
  if (!lignes)
    return false;
  int32_t lus[4] = {};
  for (int siège = 0; siège <= 3; ++siège) {
    if (static_cast<std::size_t>(siège) >= lignes->size()) {
      ErreurDémarrage = Désignation("Scores") +
                        TropPeu(lignes->size(), "score", "scores", tronqué) + FinDuMessage;
      return false;
    }
    const auto lu = format::EntierOuDépassement((*lignes)[siège]);
    if (lu.sorte == format::LectureEntier::PasUnEntier) {
      ErreurDémarrage = LigneFautive("Scores", siège + 1, "n'est pas un nombre entier");
      return false;
    }
    if (lu.sorte == format::LectureEntier::TropGrand ||
        lu.valeur < std::numeric_limits<int32_t>::min() ||
        lu.valeur > std::numeric_limits<int32_t>::max()) {
      ErreurDémarrage =
          LigneFautive("Scores", siège + 1,
                       "contient un nombre trop grand (un score va de -2147483648 à 2147483647)");
      return false;
    }
    lus[siège] = static_cast<int32_t>(lu.valeur);
  }
  for (int siège = 0; siège <= 3; ++siège) {
    Scores[siège] = lus[siège];
    Fenêtre.ScoreLabel[siège].ForeColor = Scores[siège] < 0 ? 255 : 0;
    Fenêtre.ScoreLabel[siège].Caption = std::to_string(Scores[siège]);
  }
  return true;
}

namespace {

// Whether the data folder itself has been deleted under the game: the
// current folder then has no name left.
bool DossierSupprimé() {
  struct stat dossier {};
  return stat(".", &dossier) == 0 && dossier.st_nlink == 0;
}

// Why a file could not be replaced, in the player's words. Qt keeps only a
// coarse error kind, so the last system error and the folder itself are asked.
std::string Raison(const std::string &nom, const format::Écriture &é) {
  std::error_code e;
  if (DossierSupprimé())
    return "le dossier des données n'existe plus";
  if (std::filesystem::is_directory(nom, e))
    return "un dossier porte ce nom";
  if (é.pasUnFichier)
    return "ce nom n'est pas celui d'un fichier ordinaire (un tube, un périphérique ou un lien "
           "vers l'un d'eux)";
  if (é.ressource || é.errnoÉcriture == ENOSPC)
    return "le disque est plein";
  if (é.errnoÉcriture == EFBIG || é.errnoÉcriture == EDQUOT)
    return "la taille permise aux fichiers est dépassée";
  if (access(".", W_OK) != 0)
    return errno == EROFS ? "le disque est en lecture seule" : "le dossier est protégé en écriture";
  if (access(nom.c_str(), F_OK) == 0 && access(nom.c_str(), W_OK) != 0)
    return "le fichier est protégé en écriture";
  return "le système a refusé l'écriture";
}

// What is left of the file, told as it stands rather than as hoped.
std::string CeQuiReste(const std::string &nom, const format::Écriture &é) {
  std::error_code e;
  if (é.enPlace)
    return ". La partie continue ; le fichier a pu rester incomplet.";
  if (DossierSupprimé() || !std::filesystem::exists(nom, e))
    return ". La partie continue sans ce fichier.";
  return ". La partie continue ; l'ancien fichier est conservé.";
}

// Replaces the file whole (see format::ÉcritFichier). A failure is told
// once, unless `signale` is false; the player hears of that file again only
// after a write of it has worked.
void Écrit(TroisNiveaux &t, const std::string &nom, const std::string &octets,
           bool signale = true) {
  const format::Écriture é = format::ÉcritFichier(nom, octets, true);
  auto &signalés = t.FichiersNonÉcrits;
  const auto signalé = std::find(signalés.begin(), signalés.end(), nom);
  if (é.réussi) {
    if (signalé != signalés.end())
      signalés.erase(signalé);
    return;
  }
  if (!signale || signalé != signalés.end())
    return;
  signalés.push_back(nom);
  // A deleted folder has no path left to ask for: the one the game chose.
  const std::string chemin =
      DossierSupprimé() ? t.plateforme.DossierDesDonnées() + "/" + nom : CheminComplet(nom);
  t.plateforme.SignaleErreur("Impossible d'enregistrer le fichier « " + nom + " » (" + chemin +
                             ") : " + Raison(nom, é) + CeQuiReste(nom, é));
}
} // namespace

void TroisNiveaux::ÉcritNoms(const std::string (&noms)[4]) {
  std::string octets;
  for (int siège = 0; siège <= 3; ++siège)
    octets += format::LigneChaîne(noms[siège]);
  Écrit(*this, "Noms", octets);
}

void TroisNiveaux::ÉcritScores() {
  std::string octets;
  for (int siège = 0; siège <= 3; ++siège)
    octets += format::LigneEntier(Scores[siège]);
  Écrit(*this, "Scores", octets);
}

// The time of the last deal of the mode that stands now. Every failure
// counts as an empty text, hence 0; a value the field cannot hold leaves the
// field as it was.
void TroisNiveaux::LitTempsDuMode() {
  const char *nom = Mode == 0 ? "Temps1" : "Temps2";
  std::string texte;
  if (const auto lignes = format::LitLignes(nom, TailleMaximale); lignes && !lignes->empty())
    texte = lignes->front().substr(0, lignes->front().find(','));
  std::size_t début = 0;
  while (début < texte.size() && (texte[début] == ' ' || texte[début] == '\t'))
    ++début;
  const double valeur = format::NombreEnTête(std::string_view(texte).substr(début));
  if (!std::isfinite(valeur))
    return;
  if (Mode == 0) {
    TempsExpert = valeur;
  } else {
    const double arrondi = std::nearbyint(valeur); // halves to even
    if (arrondi >= std::numeric_limits<int16_t>::min() &&
        arrondi <= std::numeric_limits<int16_t>::max())
      TempsDébutant = static_cast<int16_t>(arrondi);
  }
}

void TroisNiveaux::ÉcritTempsDuMode(bool signaleÉchec) {
  Écrit(*this, Mode != 0 ? "Temps2" : "Temps1", format::LigneEntier(TempsÉcoulé), signaleÉchec);
}

void TroisNiveaux::ÉcritTirage() {
  std::string octets;
  for (int siège = 0; siège <= 3; ++siège)
    for (int k = 0; k <= 12; ++k)
      octets += format::LigneEntier(Mains[siège][k]);
  Écrit(*this, "Tirage", octets);
}

// A replay takes the file as it finds it. Entries are read one a line into a
// byte that starts at 0: a line that holds no whole number from 0 to 255, or
// no line at all, is a failed read and the byte keeps its last value. Every
// place then gets the byte; a code with no picture leaves its slot as it is.
void TroisNiveaux::LitTirage() {
  std::vector<std::string> lignes;
  if (auto lues = format::LitLignes("Tirage", TailleMaximale))
    lignes = std::move(*lues);
  uint8_t c = 0;
  std::size_t suivante = 0;
  for (int siège = 0; siège <= 3; ++siège) {
    for (int k = 0; k <= 12; ++k) {
      if (suivante < lignes.size())
        if (const auto valeur = format::Entier(lignes[suivante++]);
            valeur && *valeur >= 0 && *valeur <= 255)
          c = static_cast<uint8_t>(*valeur);
      if (siège == 3) {
        MontreCarte(39 + k, c);
        Mains[4][k] = c;
      }
      Mains[siège][k] = c;
    }
  }
}

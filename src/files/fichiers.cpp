#include <QSaveFile>
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

// Why a file could not be replaced, in the player's words. Qt keeps only a
// coarse error kind, so the last system error and the folder itself are asked.
std::string Raison(const std::string &nom, QFileDevice::FileError erreur, int errnoÉcriture) {
  std::error_code e;
  if (std::filesystem::is_directory(nom, e))
    return "un dossier porte ce nom";
  if (std::filesystem::exists(nom, e) && !std::filesystem::is_regular_file(nom, e))
    return "ce nom n'est pas celui d'un fichier ordinaire (un tube, un périphérique ou un lien "
           "vers l'un d'eux)";
  if (erreur == QFileDevice::ResourceError || errnoÉcriture == ENOSPC)
    return "le disque est plein";
  if (errnoÉcriture == EFBIG || errnoÉcriture == EDQUOT)
    return "la taille permise aux fichiers est dépassée";
  if (access(".", W_OK) != 0)
    return errno == EROFS ? "le disque est en lecture seule" : "le dossier est protégé en écriture";
  if (access(nom.c_str(), F_OK) == 0 && access(nom.c_str(), W_OK) != 0)
    return "le fichier est protégé en écriture";
  return "le système a refusé l'écriture";
}

// Whether the open file is the data file itself rather than a temporary
// beside it: the folder refused new files, so the file is written in place.
bool ÉcritEnPlace(const QSaveFile &fichier, const std::string &nom) {
  struct stat ouvert {
  }, cible{};
  return fstat(fichier.handle(), &ouvert) == 0 && stat(nom.c_str(), &cible) == 0 &&
         ouvert.st_dev == cible.st_dev && ouvert.st_ino == cible.st_ino;
}

// Only a regular file is ever replaced: a pipe, a device or a folder at the
// name (or a link to one) is left as it is. A link to a regular file is
// followed, and the file it points to is written.
bool RemplaçableOuAbsent(const std::string &nom) {
  struct stat état {};
  return stat(nom.c_str(), &état) == 0 ? S_ISREG(état.st_mode) : errno == ENOENT;
}

// Replaces the file whole: its old content stays until the new one is on
// disk, so a full disk or a crash never leaves it cut short. Where the
// folder takes no new file but the file itself is writable, it is written
// in place instead. A failure is told once, unless `signale` is false; the
// player hears of that file again only after a write of it has worked.
void Écrit(TroisNiveaux &t, const std::string &nom, const std::string &octets,
           bool signale = true) {
  QSaveFile fichier(QString::fromStdString(nom));
  fichier.setDirectWriteFallback(true);
  const bool ordinaire = RemplaçableOuAbsent(nom);
  errno = 0;
  // The flush comes before the commit: a commit whose own flush fails still
  // renames the empty temporary file over the old one.
  const bool ouvert = ordinaire && fichier.open(QIODevice::WriteOnly);
  const bool enPlace = ouvert && ÉcritEnPlace(fichier, nom);
  const bool réussi = ouvert &&
                      fichier.write(octets.data(), static_cast<qint64>(octets.size())) ==
                          static_cast<qint64>(octets.size()) &&
                      fichier.flush() && RemplaçableOuAbsent(nom) && fichier.commit();
  const int errnoÉcriture = errno;
  if (!réussi)
    fichier.cancelWriting();

  auto &signalés = t.FichiersNonÉcrits;
  const auto signalé = std::find(signalés.begin(), signalés.end(), nom);
  if (réussi) {
    if (signalé != signalés.end())
      signalés.erase(signalé);
    return;
  }
  if (!signale || signalé != signalés.end())
    return;
  signalés.push_back(nom);
  const std::string raison = ordinaire ? Raison(nom, fichier.error(), errnoÉcriture)
                                       : Raison(nom, QFileDevice::NoError, 0);
  t.plateforme.SignaleErreur("Impossible d'enregistrer le fichier « " + nom + " » (" +
                             CheminComplet(nom) + ") : " + raison +
                             (enPlace ? ". La partie continue ; le fichier a pu rester incomplet."
                                      : ". La partie continue ; l'ancien fichier est conservé."));
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

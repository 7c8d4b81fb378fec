#include <QSaveFile>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>

#include "core/table_state.h"
#include "files/format.h"

namespace {

constexpr std::size_t TailleMaximale = 64 * 1024; // far above any file the game writes

std::string CheminComplet(const std::string &nom) {
  std::error_code erreur;
  const auto chemin = std::filesystem::absolute(nom, erreur);
  return erreur ? nom : chemin.string();
}

std::string Désignation(const std::string &nom) {
  return "Le fichier « " + nom + " » (" + CheminComplet(nom) + ")";
}

// Reads a start-up file; on failure, says why in `erreur`.
std::optional<std::vector<std::string>> LignesAuDémarrage(const std::string &nom,
                                                          std::string &erreur) {
  std::error_code e;
  if (!std::filesystem::exists(nom, e)) {
    erreur = Désignation(nom) + " est introuvable.";
    return std::nullopt;
  }
  if (!std::filesystem::is_regular_file(nom, e)) {
    erreur = Désignation(nom) + " n'est pas un fichier ordinaire.";
    return std::nullopt;
  }
  const auto octets = format::LitOctets(nom, TailleMaximale);
  if (!octets) {
    erreur = Désignation(nom) + " ne peut pas être lu (droits insuffisants ?).";
    return std::nullopt;
  }
  return format::Lignes(*octets);
}

const char *const Nombres[] = {"aucun", "un seul", "seulement deux", "seulement trois"};

std::string FinDuMessage() { return " La partie ne peut pas commencer."; }

} // namespace

bool TroisNiveaux::LitNoms() {
  const auto lignes = LignesAuDémarrage("Noms", ErreurDémarrage);
  if (!lignes) {
    ErreurDémarrage += FinDuMessage();
    return false;
  }
  std::string noms[4];
  for (int siège = 0; siège <= 3; ++siège) {
    if (static_cast<int>(lignes->size()) <= siège) {
      ErreurDémarrage = Désignation("Noms") + " ne contient " + Nombres[siège] +
                        (siège < 2 ? " nom" : " noms") + " au lieu de quatre." + FinDuMessage();
      return false;
    }
    const auto nom = format::Chaîne((*lignes)[siège]);
    if (!nom) {
      ErreurDémarrage = Désignation("Noms") + " : la ligne " + std::to_string(siège + 1) +
                        " n'est pas un nom entre guillemets." + FinDuMessage();
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

bool TroisNiveaux::LitScores() {
  const auto lignes = LignesAuDémarrage("Scores", ErreurDémarrage);
  if (!lignes) {
    ErreurDémarrage += FinDuMessage();
    return false;
  }
  int32_t lus[4] = {};
  for (int siège = 0; siège <= 3; ++siège) {
    if (static_cast<int>(lignes->size()) <= siège) {
      ErreurDémarrage = Désignation("Scores") + " ne contient " + Nombres[siège] +
                        (siège < 2 ? " score" : " scores") + " au lieu de quatre." +
                        FinDuMessage();
      return false;
    }
    const auto valeur = format::Entier((*lignes)[siège]);
    if (!valeur || *valeur < std::numeric_limits<int32_t>::min() ||
        *valeur > std::numeric_limits<int32_t>::max()) {
      ErreurDémarrage = Désignation("Scores") + " : la ligne " + std::to_string(siège + 1) +
                        " n'est pas un nombre entier." + FinDuMessage();
      return false;
    }
    lus[siège] = static_cast<int32_t>(*valeur);
  }
  for (int siège = 0; siège <= 3; ++siège) {
    Scores[siège] = lus[siège];
    Fenêtre.ScoreLabel[siège].ForeColor = Scores[siège] < 0 ? 255 : 0;
    Fenêtre.ScoreLabel[siège].Caption = std::to_string(Scores[siège]);
  }
  return true;
}

namespace {

std::string Raison(QFileDevice::FileError erreur) {
  switch (erreur) {
  case QFileDevice::ResourceError:
    return "plus de place sur le disque";
  case QFileDevice::PermissionsError:
  case QFileDevice::OpenError:
    return "le dossier est protégé en écriture";
  case QFileDevice::WriteError:
    return "l'écriture a échoué (disque plein ?)";
  default:
    return "erreur du système de fichiers";
  }
}

// Replaces the file whole: its old content stays until the new one is on
// disk, so a full disk or a crash never leaves it cut short.
void Écrit(Plateforme &plateforme, const std::string &nom, const std::string &octets) {
  QSaveFile fichier(QString::fromStdString(nom));
  bool réussi = fichier.open(QIODevice::WriteOnly);
  if (réussi)
    réussi = fichier.write(octets.data(), static_cast<qint64>(octets.size())) ==
             static_cast<qint64>(octets.size());
  if (réussi)
    réussi = fichier.commit();
  else
    fichier.cancelWriting();
  if (!réussi)
    plateforme.SignaleErreur("Impossible d'enregistrer le fichier « " + nom + " » (" +
                             CheminComplet(nom) + ") : " + Raison(fichier.error()) +
                             ". La partie continue ; l'ancien fichier est conservé.");
}

} // namespace

void TroisNiveaux::ÉcritNoms(const std::string (&noms)[4]) {
  std::string octets;
  for (int siège = 0; siège <= 3; ++siège)
    octets += format::LigneChaîne(noms[siège]);
  Écrit(plateforme, "Noms", octets);
}

void TroisNiveaux::ÉcritScores() {
  std::string octets;
  for (int siège = 0; siège <= 3; ++siège)
    octets += format::LigneEntier(Scores[siège]);
  Écrit(plateforme, "Scores", octets);
}

// The time of the last deal of the mode that stands now; every failure gives 0.
void TroisNiveaux::LitTempsDuMode() {
  const char *nom = Mode == 0 ? "Temps1" : "Temps2";
  std::string texte;
  std::error_code e;
  if (std::filesystem::is_regular_file(nom, e))
    if (const auto octets = format::LitOctets(nom, TailleMaximale)) {
      const auto lignes = format::Lignes(*octets);
      if (!lignes.empty())
        texte = lignes.front().substr(0, lignes.front().find(','));
    }
  std::size_t début = 0;
  while (début < texte.size() && (texte[début] == ' ' || texte[début] == '\t'))
    ++début;
  const double valeur = format::NombreEnTête(std::string_view(texte).substr(début));
  if (Mode == 0) {
    TempsExpert = valeur;
  } else {
    const double arrondi = std::nearbyint(valeur);
    if (arrondi >= std::numeric_limits<int16_t>::min() &&
        arrondi <= std::numeric_limits<int16_t>::max())
      TempsDébutant = static_cast<int16_t>(arrondi);
  }
}

void TroisNiveaux::ÉcritTempsDuMode() {
  Écrit(plateforme, Mode != 0 ? "Temps2" : "Temps1", format::LigneEntier(TempsÉcoulé));
}

void TroisNiveaux::ÉcritTirage() {
  std::string octets;
  for (int siège = 0; siège <= 3; ++siège)
    for (int k = 0; k <= 12; ++k)
      octets += format::LigneEntier(Mains[siège][k]);
  Écrit(plateforme, "Tirage", octets);
}

// A replay takes the file as it finds it: an entry that can't be read leaves
// the last value standing, and an entry that fits no card slot is passed over,
// as every failing statement of a replay is.
void TroisNiveaux::LitTirage() {
  std::vector<std::string> lignes;
  std::error_code e;
  if (std::filesystem::is_regular_file("Tirage", e))
    if (const auto octets = format::LitOctets("Tirage", TailleMaximale))
      lignes = format::Lignes(*octets);
  int64_t c = 0;
  std::size_t suivante = 0;
  for (int siège = 0; siège <= 3; ++siège) {
    for (int k = 0; k <= 12; ++k) {
      if (suivante < lignes.size())
        if (const auto valeur = format::Entier(lignes[suivante++]))
          c = *valeur;
      const bool tientDansUnOctet = c >= 0 && c <= 255;
      if (siège == 3) {
        MontreCarte(39 + k, static_cast<int>(std::clamp<int64_t>(c, -1, 255)));
        if (tientDansUnOctet)
          Mains[4][k] = static_cast<uint8_t>(c);
      }
      if (tientDansUnOctet)
        Mains[siège][k] = static_cast<uint8_t>(c);
    }
  }
}

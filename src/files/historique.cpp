// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "files/historique.h"

#include <QDateTime>
#include <algorithm>
#include <filesystem>
#include <limits>

#include "core/table_state.h"
#include "files/format.h"

namespace historique {

namespace {

// A hand-made file far beyond what the game keeps is read by its end only.
constexpr std::size_t LectureMaximale = 4 * 1024 * 1024;

const char *const Remise = "SCORES A 0";

std::vector<std::string_view> Champs(std::string_view ligne) {
  std::vector<std::string_view> champs;
  std::size_t début = 0;
  while (true) {
    const std::size_t fin = ligne.find(';', début);
    champs.push_back(ligne.substr(début, fin - début));
    if (fin == std::string_view::npos)
      return champs;
    début = fin + 1;
  }
}

// "aaaa-mm-jj hh:mm:ss", checked by hand: a date parser costs more than the
// rest of a line's reading, thousands of times over.
bool DateValide(std::string_view date) {
  if (date.size() != 19)
    return false;
  const auto nombre = [&](std::size_t début, std::size_t n) {
    int valeur = 0;
    for (std::size_t i = début; i < début + n; ++i) {
      if (date[i] < '0' || date[i] > '9')
        return -1;
      valeur = valeur * 10 + (date[i] - '0');
    }
    return valeur;
  };
  if (date[4] != '-' || date[7] != '-' || date[10] != ' ' || date[13] != ':' || date[16] != ':')
    return false;
  const int année = nombre(0, 4), mois = nombre(5, 2), jour = nombre(8, 2);
  const int heure = nombre(11, 2), minute = nombre(14, 2), seconde = nombre(17, 2);
  return année >= 0 && mois >= 1 && mois <= 12 && jour >= 1 && jour <= 31 && heure >= 0 &&
         heure <= 23 && minute >= 0 && minute <= 59 && seconde >= 0 && seconde <= 59;
}

std::optional<int32_t> Entier32(std::string_view texte) {
  const auto valeur = format::Entier(texte);
  if (!valeur || *valeur < std::numeric_limits<int32_t>::min() ||
      *valeur > std::numeric_limits<int32_t>::max())
    return std::nullopt;
  return static_cast<int32_t>(*valeur);
}

std::string Maintenant() {
  return QDateTime::currentDateTime().toString("yyyy-MM-dd HH:mm:ss").toStdString();
}

// The whole file, or its last LectureMaximale bytes with the first, cut
// line dropped.
std::optional<std::string> Octets(const std::string &nom) {
  auto lecture = format::LitFichier(nom, LectureMaximale, true);
  if (lecture.état != format::Lecture::Lu)
    return std::nullopt;
  if (lecture.tronqué)
    lecture.octets.erase(0, std::min(lecture.octets.size(), lecture.octets.find('\n') + 1));
  return std::move(lecture.octets);
}

void Note(TroisNiveaux &t, const Entrée &e) {
  if (Ajoute(e)) {
    std::erase(t.FichiersNonÉcrits, std::string(NomDuFichier));
    return;
  }
  auto &signalés = t.FichiersNonÉcrits;
  const bool déjàDit = std::find(signalés.begin(), signalés.end(), NomDuFichier) != signalés.end();
  // When Scores has just failed, its message says enough about the folder.
  const bool scoresEnPanne =
      std::find(signalés.begin(), signalés.end(), "Scores") != signalés.end();
  if (!déjàDit)
    signalés.emplace_back(NomDuFichier);
  if (déjàDit || scoresEnPanne)
    return;
  std::error_code erreur;
  const auto chemin = std::filesystem::absolute(NomDuFichier, erreur);
  t.plateforme.SignaleErreur(std::string("L'historique des scores ne peut pas être enregistré "
                                         "dans le fichier « ") +
                             NomDuFichier + " » (" + (erreur ? NomDuFichier : chemin.string()) +
                             "). La partie continue sans lui.");
}

} // namespace

std::string Ligne(const Entrée &e) {
  if (e.remise)
    return e.date + ";" + Remise + "\r\n";
  std::string ligne = e.date + (e.mode == 0 ? ";EXPERT" : ";DEBUTANT");
  for (int32_t total : e.totaux)
    ligne += ";" + std::to_string(total);
  for (int32_t score : e.scores)
    ligne += ";" + std::to_string(score);
  return ligne + "\r\n";
}

std::optional<Entrée> LitLigne(std::string_view ligne) {
  while (!ligne.empty() && (ligne.back() == '\r' || ligne.back() == '\n'))
    ligne.remove_suffix(1);
  const auto champs = Champs(ligne);
  if (champs.empty() || !DateValide(champs[0]))
    return std::nullopt;
  Entrée e;
  e.date = std::string(champs[0]);
  if (champs.size() == 2 && champs[1] == Remise) {
    e.remise = true;
    return e;
  }
  if (champs.size() != 10 || (champs[1] != "DEBUTANT" && champs[1] != "EXPERT"))
    return std::nullopt;
  e.mode = champs[1] == "EXPERT" ? 0 : 1;
  for (int s = 0; s <= 3; ++s) {
    const auto total = Entier32(champs[2 + s]), score = Entier32(champs[6 + s]);
    if (!total || !score)
      return std::nullopt;
    e.totaux[s] = *total;
    e.scores[s] = *score;
  }
  return e;
}

Lecture Lit(const std::string &nom) {
  Lecture lecture;
  const auto octets = Octets(nom);
  if (!octets)
    return lecture;
  lecture.trouvé = true;
  for (const std::string &ligne : format::Lignes(*octets)) {
    if (ligne.empty())
      continue;
    if (auto e = LitLigne(ligne))
      lecture.entrées.push_back(std::move(*e));
    else
      ++lecture.lignesIgnorées;
  }
  return lecture;
}

Figures Calcule(const std::vector<Entrée> &entrées) {
  Figures f;
  int64_t sommes[4] = {};
  for (const Entrée &e : entrées) {
    if (e.remise) {
      ++f.remises;
      for (FiguresSiège &s : f.sièges)
        s.score = 0;
      continue;
    }
    ++f.donnes;
    for (int s = 0; s <= 3; ++s) {
      FiguresSiège &siège = f.sièges[s];
      siège.meilleure = siège.donnes == 0 ? e.totaux[s] : std::max(siège.meilleure, e.totaux[s]);
      siège.pire = siège.donnes == 0 ? e.totaux[s] : std::min(siège.pire, e.totaux[s]);
      ++siège.donnes;
      sommes[s] += e.totaux[s];
      siège.score = e.scores[s];
    }
  }
  for (int s = 0; s <= 3; ++s)
    if (f.sièges[s].donnes > 0)
      f.sièges[s].moyenne = static_cast<double>(sommes[s]) / f.sièges[s].donnes;
  return f;
}

std::vector<std::string> NomsÀCôté(const std::string &nomDuFichier) {
  std::vector<std::string> noms(NomsParDéfaut, NomsParDéfaut + 4);
  const auto dossier = std::filesystem::path(nomDuFichier).parent_path();
  const std::string fichier = (dossier / "Noms").string();
  std::error_code e;
  if (!std::filesystem::is_regular_file(fichier, e))
    return noms;
  if (const auto lignes = format::LitLignes(fichier, 64 * 1024))
    for (std::size_t s = 0; s < 4 && s < lignes->size(); ++s)
      if (const auto nom = format::Chaîne((*lignes)[s]))
        noms[s] = *nom;
  return noms;
}

bool Ajoute(const Entrée &e, const std::string &nom) {
  // Only valid lines are carried over: a damaged file mends itself here.
  std::vector<std::string> lignes;
  if (const auto octets = Octets(nom))
    for (const std::string &ligne : format::Lignes(*octets))
      if (LitLigne(ligne))
        lignes.push_back(ligne);
  const std::size_t gardées = std::min(lignes.size(), LignesGardées - 1);
  std::string tout;
  for (std::size_t n = lignes.size() - gardées; n < lignes.size(); ++n)
    tout += lignes[n] + "\r\n";
  tout += Ligne(e);

  return format::ÉcritFichier(nom, tout, false).réussi;
}

void NoteDonne(TroisNiveaux &t) {
  Entrée e;
  e.date = Maintenant();
  e.mode = t.Mode;
  std::copy(std::begin(t.TotauxDonne), std::end(t.TotauxDonne), e.totaux);
  std::copy(std::begin(t.Scores), std::end(t.Scores), e.scores);
  Note(t, e);
}

void NoteRemise(TroisNiveaux &t) {
  Entrée e;
  e.date = Maintenant();
  e.remise = true;
  Note(t, e);
}

} // namespace historique

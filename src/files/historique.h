// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The history of the scores: one line per deal whose showdown wrote Scores,
// one per SCORES A 0, kept in the data folder beside the five files. The
// game reads it only to show it; nothing of the play depends on it.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class TroisNiveaux;

namespace historique {

inline constexpr const char *NomDuFichier = "Historique";
// The last lines kept: some years of play in a few hundred kilobytes.
inline constexpr std::size_t LignesGardées = 5000;

struct Entrée {
  std::string date;    // "aaaa-mm-jj hh:mm:ss", local time
  bool remise = false; // a SCORES A 0: no mode, totals nor scores
  uint8_t mode = 1;    // 1 DEBUTANT, 0 EXPERT
  int32_t totaux[4] = {};
  int32_t scores[4] = {}; // the scores after the deal
  bool operator==(const Entrée &) const = default;
};

// "2026-11-23 21:04:05;EXPERT;-5;21;-7;-9;120;-3;14;-131" or
// "2026-11-23 21:06:00;SCORES A 0", then CR LF.
std::string Ligne(const Entrée &e);
// A line read back; nothing when it is not exactly what Ligne writes.
std::optional<Entrée> LitLigne(std::string_view ligne);

struct Lecture {
  std::vector<Entrée> entrées;
  int lignesIgnorées = 0; // damaged or foreign lines passed over
  bool trouvé = false;    // the file exists and could be read
};
// The file as it stands, in order; a missing or unreadable file gives none.
Lecture Lit(const std::string &nom = NomDuFichier);

// What the table and the analysis command show of the history.
struct FiguresSiège {
  int donnes = 0;
  double moyenne = 0;              // points per deal
  int32_t meilleure = 0, pire = 0; // the best and worst deal's total
  int32_t score = 0;               // after the last line: the score the history ends on
};
struct Figures {
  int donnes = 0, remises = 0;
  FiguresSiège sièges[4];
};
Figures Calcule(const std::vector<Entrée> &entrées);

// The names in a Noms file beside the history, the default names where it
// has none.
std::vector<std::string> NomsÀCôté(const std::string &nomDuFichier);

// Appends one entry: the file is rewritten whole through a temporary one,
// keeping its last LignesGardées valid lines, so a crash leaves either the
// old file or the new one. False when it could not be written.
bool Ajoute(const Entrée &e, const std::string &nom = NomDuFichier);

// The game's two calls: after the first showdown run of a deal has written
// Scores, and after SCORES A 0. A failed write is told once, and not at all
// when Scores itself has just failed in the same folder.
void NoteDonne(TroisNiveaux &t);
void NoteRemise(TroisNiveaux &t);

} // namespace historique

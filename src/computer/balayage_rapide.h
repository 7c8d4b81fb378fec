// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The game's sweep, fast. A level's value depends only on which of the
// seat's 13 places it holds, and there are only 1287 sets of five places and
// 286 of three: each is valued once per seat, and a row of the table is then
// a few look-ups and compares. The result is the row-by-row sweep's, to the
// last bit: the same valuations, the same sums, the same rows kept.

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "core/table_state.h"

constexpr int NombreCinq = 1287; // sets of 5 places among 13
constexpr int NombreTrois = 286; // sets of 3 places among 13

struct IndexBalayage {
  uint8_t placesCinq[NombreCinq][5];
  uint8_t placesTrois[NombreTrois][3];
  // Level 1 of each group's first row, the only row of a group that the
  // sweep values level 1 at.
  uint16_t niveau1[NombreCinq];
  // Levels 2 and 3 of rows 1..72072; entry 0 is unused.
  std::vector<uint16_t> niveau2, niveau3;
};

// Null if the table is not 72072 layouts of the 13 places.
std::shared_ptr<const IndexBalayage>
ConstruitIndexBalayage(const std::vector<std::array<uint8_t, 13>> &rangements);

// What the row-by-row sweep carries from row to row in the record.
struct SuiviBalayage {
  float meilleure = 0;    // MeilleureValeur
  int32_t rangée = 0;     // MeilleurRangement of the seat
  double valeur3 = 0;     // Valeur3, as the last row that wrote it left it
  double somme = 0;       // Somme of the last row in order
  bool quinteVue = false; // some row was an all-straight
  bool flushVu = false;   // some row was an all-flush
};

// The values of every set of places for one seat's 13 cards.
class ValeursDuSiège {
public:
  // Values the sets with the record's own routines; the working fields of
  // `t` are left in disorder, to be set right afterwards.
  ValeursDuSiège(TroisNiveaux &t, const IndexBalayage &index, int siège);

  // Rows première..dernière, all within one group.
  void Balaye(int première, int dernière, SuiviBalayage &suivi) const;

private:
  const IndexBalayage &index;
  double valeur1[NombreCinq], valeur2[NombreCinq];
  // Whether the value lies where three cards in sequence or of one suit
  // count: bit 0 straights, bit 1 flushes.
  uint8_t portée1[NombreCinq], portée2[NombreCinq];
  double valeur3[NombreTrois];
  // Bit 0 in sequence, bit 1 of one suit, bit 2 written even then (a pair
  // or three of a kind).
  uint8_t genre3[NombreTrois];
};

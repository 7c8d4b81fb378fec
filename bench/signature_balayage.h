// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The rows the computer's sweep keeps for a fixed list of deals, and their
// fingerprint: the benchmark prints it, a test holds it. It must never
// change when the sweep gets faster.
#include <array>
#include <cstdint>

#include "core/table_state.h"

inline constexpr int NombreDonnesFixes = 8;
inline constexpr uint64_t EmpreinteAttendue = 0x60db6e9b687eec0dull;

// Deal `graine` of the list: a shuffle of our own over a generator whose
// output the standard fixes, so the deals are the same with every library.
std::array<uint8_t, 52> DonneFixe(uint64_t graine);

// A DEBUTANT table ready to sweep, as the mode button and Form_Load leave it
// (the table of arrangements built): false when it could not be built.
bool PrépareTable(TroisNiveaux &t);
// The table as Init and the deal leave it, seat 3's layout as dealt.
void PrépareDonne(TroisNiveaux &t, const std::array<uint8_t, 52> &cartes);

struct SignatureBalayage {
  int32_t rangées[NombreDonnesFixes][4] = {};
  bool toutFlush[NombreDonnesFixes][4] = {}, toutQuinte[NombreDonnesFixes][4] = {};
  bool sixPaires[NombreDonnesFixes][4] = {}, mégaQuinte[NombreDonnesFixes][4] = {};
  uint64_t empreinte = 0;
  // The row-by-row sweep kept the same rows (always true when not compared).
  bool pareil = true;
};

// Sweeps every fixed deal the game's way; with `compare`, also row by row.
SignatureBalayage CalculeSignature(TroisNiveaux &t, bool compare);

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The game's random generator: uniform reals in [0, 1). A reseed from the
// clock only perturbs the state, so reseeding twice with the same clock value
// still gives two different draws (the deal depends on it to end).

#include <cstdint>

class Aléatoire {
public:
  void Réensemence(float graine);
  double Tire();

private:
  uint64_t état = 0x9E3779B97F4A7C15ull;
};

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "core/aleatoire.h"

#include <bit>

namespace {
uint64_t Mélange(uint64_t z) {
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
  return z ^ (z >> 31);
}
} // namespace

void Aléatoire::Réensemence(float graine) {
  état ^= Mélange(std::bit_cast<uint32_t>(graine) + 0x632BE59BD9B4E019ull);
}

double Aléatoire::Tire() {
  état += 0x9E3779B97F4A7C15ull;
  return static_cast<double>(Mélange(état) >> 11) * 0x1.0p-53;
}

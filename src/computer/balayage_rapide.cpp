// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "computer/balayage_rapide.h"

#include <bit>

#include "valuation/classement.h"

using namespace classement;

namespace {

constexpr uint8_t EnSuite = 1, MêmeCouleur = 2, ToujoursÉcrite = 4;

uint16_t Masque(const std::array<uint8_t, 13> &rangée, int première, int nombre) {
  uint16_t m = 0;
  for (int k = première; k < première + nombre; ++k)
    m = static_cast<uint16_t>(m | (1u << rangée[k]));
  return m;
}

uint8_t Portée(const TroisNiveaux &t, double v) {
  return static_cast<uint8_t>((DansLesQuintes(t, v) ? EnSuite : 0) |
                              (DansLesFlushs(t, v) ? MêmeCouleur : 0));
}

} // namespace

std::shared_ptr<const IndexBalayage>
ConstruitIndexBalayage(const std::vector<std::array<uint8_t, 13>> &rangements) {
  if (rangements.size() != NombreRangements + 1)
    return nullptr;
  auto index = std::make_shared<IndexBalayage>();
  std::vector<uint16_t> numéro(1 << 13, 0);
  int cinq = 0, trois = 0;
  for (unsigned m = 0; m < (1u << 13); ++m) {
    const int n = std::popcount(m);
    if (n != 5 && n != 3)
      continue;
    uint8_t *places = n == 5 ? index->placesCinq[cinq] : index->placesTrois[trois];
    for (uint8_t p = 0, j = 0; p < 13; ++p)
      if (m & (1u << p))
        places[j++] = p;
    numéro[m] = static_cast<uint16_t>(n == 5 ? cinq++ : trois++);
  }

  index->niveau2.assign(NombreRangements + 1, 0);
  index->niveau3.assign(NombreRangements + 1, 0);
  for (int i = 1; i <= NombreRangements; ++i) {
    const auto &rangée = rangements[i];
    for (uint8_t p : rangée)
      if (p >= 13)
        return nullptr;
    const uint16_t m1 = Masque(rangée, 0, 5), m2 = Masque(rangée, 5, 5), m3 = Masque(rangée, 10, 3);
    if ((m1 | m2 | m3) != 0x1FFF || std::popcount(m1) != 5 || std::popcount(m2) != 5)
      return nullptr;
    if (i % 56 == 1)
      index->niveau1[i / 56] = numéro[m1];
    index->niveau2[i] = numéro[m2];
    index->niveau3[i] = numéro[m3];
  }
  return index;
}

ValeursDuSiège::ValeursDuSiège(TroisNiveaux &t, const IndexBalayage &index, int siège)
    : index(index) {
  const uint8_t(&main)[13] = t.Mains[siège];
  for (int k = 0; k < NombreCinq; ++k) {
    uint8_t niveau[5], rangs[5];
    for (int j = 0; j < 5; ++j)
      niveau[j] = main[index.placesCinq[k][j]];
    ClasseCinq(t, niveau, rangs);
    valeur1[k] = ValeurCinq(t, rangs, Barème::Niveau1);
    valeur2[k] = ValeurCinq(t, rangs, Barème::Niveau2);
    portée1[k] = Portée(t, valeur1[k]);
    portée2[k] = Portée(t, valeur2[k]);
  }
  for (int k = 0; k < NombreTrois; ++k) {
    uint8_t niveau[3], rangs[3];
    for (int j = 0; j < 3; ++j)
      niveau[j] = main[index.placesTrois[k][j]];
    ClasseTrois(t, niveau, rangs);
    valeur3[k] = t.EstPaire ? PaireTrois(t, rangs) : t.EstBrelan ? t.BaseMain[2] : RienTrois(rangs);
    genre3[k] = static_cast<uint8_t>((t.EstQuinte ? EnSuite : 0) | (t.EstFlush ? MêmeCouleur : 0) |
                                     (t.EstPaire || t.EstBrelan ? ToujoursÉcrite : 0));
  }
}

void ValeursDuSiège::Balaye(int première, int dernière, SuiviBalayage &suivi) const {
  const int k1 = index.niveau1[(première - 1) / 56];
  const double v1 = valeur1[k1];
  const uint8_t portée = portée1[k1];
  const uint16_t *niveau2 = index.niveau2.data();
  const uint16_t *niveau3 = index.niveau3.data();
  float meilleure = suivi.meilleure;
  int32_t rangée = suivi.rangée;
  double somme = suivi.somme;
  // The order test, then the sum rounded to float kept only when strictly greater.
  const auto Retient = [&](int i, double v2, double v3) {
    if (v2 < v1 && v3 < v2) {
      somme = (v1 + v2) + v3;
      const float f = static_cast<float>(somme);
      if (f > meilleure) {
        meilleure = f;
        rangée = i;
      }
    }
  };

  if (portée == 0) {
    // Level 1 is neither a straight nor a flush: no row of the group is
    // special, and every row writes Valeur3.
    for (int i = première; i <= dernière; ++i) {
      const double v2 = valeur2[niveau2[i]];
      const double v3 = valeur3[niveau3[i]];
      Retient(i, v2, v3);
    }
    suivi.valeur3 = valeur3[niveau3[dernière]];
  } else {
    double v3 = suivi.valeur3;
    for (int i = première; i <= dernière; ++i) {
      const int k2 = niveau2[i], k3 = niveau3[i];
      const uint8_t genre = genre3[k3];
      const uint8_t vu = genre & portée & portée2[k2];
      // An all-straight or all-flush row leaves Valeur3 to the row before.
      if ((genre & ToujoursÉcrite) || vu == 0)
        v3 = valeur3[k3];
      const double v2 = valeur2[k2];
      Retient(i, v2, v3);
      if (vu & MêmeCouleur) {
        rangée = i;
        meilleure = 6900.0f;
        suivi.flushVu = true;
      }
      if (vu & EnSuite) {
        rangée = i;
        meilleure = 6600.0f;
        suivi.quinteVue = true;
      }
    }
    suivi.valeur3 = v3;
  }
  suivi.meilleure = meilleure;
  suivi.rangée = rangée;
  suivi.somme = somme;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "signature_balayage.h"

#include <algorithm>
#include <random>
#include <utility>

std::array<uint8_t, 52> DonneFixe(uint64_t graine) {
  std::array<uint8_t, 52> cartes;
  for (int c = 0; c < 52; ++c)
    cartes[c] = static_cast<uint8_t>(c);
  std::mt19937_64 g(graine);
  for (int i = 51; i > 0; --i)
    std::swap(cartes[i], cartes[g() % static_cast<uint64_t>(i + 1)]);
  return cartes;
}

bool PrépareTable(TroisNiveaux &t) {
  t.ConstruitRangements();
  const int16_t bases[8] = {100, 200, 350, 380, 500, 600, 1000, 1500};
  std::copy(bases, bases + 8, t.BaseMain);
  t.Mode = 1;
  t.Fenêtre.TempsFondSS.Width = 3900;
  t.Fenêtre.TempsShape.Width = 3915;
  return t.Rangements.size() == NombreRangements + 1;
}

void PrépareDonne(TroisNiveaux &t, const std::array<uint8_t, 52> &cartes) {
  for (int s = 0; s < 4; ++s)
    for (int k = 0; k < 13; ++k)
      t.Mains[s][k] = cartes[13 * s + k];
  std::copy(t.Mains[3], t.Mains[3] + 13, t.Mains[4]);
  for (int s = 0; s < 4; ++s) {
    t.MeilleurRangement[s] = 0;
    t.ToutQuinte[s] = t.ToutFlush[s] = t.SixPaires[s] = t.MégaQuinte[s] = false;
  }
  t.Fenêtre.Arrêt.Enabled = true;
  t.Fenêtre.TempsShape.Left = -3900;
  t.Fenêtre.TempsShape.BackColor = CouleurSiège[0];
}

SignatureBalayage CalculeSignature(TroisNiveaux &t, bool compare) {
  SignatureBalayage s;
  s.empreinte = 1469598103934665603ull; // FNV-1a over the kept rows
  for (int d = 0; d < NombreDonnesFixes; ++d) {
    const auto cartes = DonneFixe(static_cast<uint64_t>(d));
    int32_t référence[4] = {};
    if (compare) {
      PrépareDonne(t, cartes);
      t.OrdiJoueLittéral();
      std::copy(t.MeilleurRangement, t.MeilleurRangement + 4, référence);
    }
    PrépareDonne(t, cartes);
    t.OrdiJoue();
    for (int j = 0; j < 4; ++j) {
      s.pareil = s.pareil && (!compare || référence[j] == t.MeilleurRangement[j]);
      s.rangées[d][j] = t.MeilleurRangement[j];
      s.toutFlush[d][j] = t.ToutFlush[j];
      s.toutQuinte[d][j] = t.ToutQuinte[j];
      s.sixPaires[d][j] = t.SixPaires[j];
      s.mégaQuinte[d][j] = t.MégaQuinte[j];
      s.empreinte =
          (s.empreinte ^ static_cast<uint32_t>(t.MeilleurRangement[j])) * 1099511628211ull;
    }
  }
  return s;
}

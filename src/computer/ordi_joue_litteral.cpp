// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The sweep row by row, the three valuations called at every row. Slow but
// plain: the game's sweep must give exactly what this one gives.
#include <cmath>

#include "computer/balayage.h"

namespace balayage {

int16_t PasDeProgrès(const TroisNiveaux &t) {
  const double largeur = t.Fenêtre.TempsFondSS.Width / 15.0;
  const double rangs = (DernierSiège(t) + 1.0) * NombreRangements;
  const double pas = std::nearbyint(rangs / largeur); // ties to even
  return pas >= 1 && pas <= INT16_MAX ? static_cast<int16_t>(pas) : 0;
}

void LigneLittérale(TroisNiveaux &t, int i, bool tour) {
  const auto &rangée = t.Rangements[i];
  const uint8_t(&main)[13] = t.Mains[t.Joueur];
  if (i % TailleGroupe == 1) {
    if (tour)
      t.plateforme.TourDeBalayage(t.Joueur, (i - 1) / TailleGroupe);
    for (int j = 0; j < 5; ++j)
      t.Niveau1[j] = main[rangée[j]];
    t.Résultat1();
  }
  for (int j = 0; j < 5; ++j)
    t.Niveau2[j] = main[rangée[5 + j]];
  t.Résultat2();
  for (int j = 0; j < 3; ++j)
    t.Niveau3[j] = main[rangée[10 + j]];
  t.Résultat3();

  if (t.Valeur2 < t.Valeur1 && t.Valeur3 < t.Valeur2) {
    t.Somme = (t.Valeur1 + t.Valeur2) + t.Valeur3;
    const float somme = static_cast<float>(t.Somme);
    if (somme > t.MeilleureValeur) {
      t.MeilleureValeur = somme;
      t.MeilleurRangement[t.Joueur] = i;
    }
  }
  // The marks overwrite without comparing: the last special row stays.
  if (t.ToutFlushVu) {
    t.MeilleurRangement[t.Joueur] = i;
    t.MeilleureValeur = 6900.0f;
  }
  if (t.ToutQuinteVu) {
    t.MeilleurRangement[t.Joueur] = i;
    t.MeilleureValeur = 6600.0f;
  }
}

} // namespace balayage

using namespace balayage;

void TroisNiveaux::OrdiJoueLittéral() {
  Garde garde(*this);
  if (Rangements.size() != NombreRangements + 1)
    return;
  PasProgrès = PasDeProgrès(*this);
  const int dernier = DernierSiège(*this);
  for (int siège = 0; siège <= dernier; ++siège) {
    Joueur = static_cast<uint8_t>(siège);
    if (siège > 0)
      Fenêtre.TempsShape.BackColor = CouleurSiège[siège];
    MeilleureValeur = 0;
    for (int i = 1; i <= NombreRangements; ++i) {
      if (SessionTerminée)
        return;
      if (!Fenêtre.Arrêt.Enabled) {
        Init();
        return;
      }
      LigneLittérale(*this, i, true);
      if (PasDuRang(*this, siège, i))
        Fenêtre.TempsShape.Left += 15;
    }
    ComptePaires(Joueur);
  }
  if (Fenêtre.TempsShape.Left < 0)
    Fenêtre.TempsShape.Left = 0;
}

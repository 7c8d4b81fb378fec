// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "showdown/abattage.h"

namespace abattage {

namespace {

struct Gains {
  double Gain1[4], Gain2[4];
  uint8_t Gain3[4];
};

// What a won level pays depends on the winner's own hand alone.
Gains CalculeGains(const TroisNiveaux &t, const ValeursJoueurs &v) {
  const int16_t *base = t.BaseMain;
  Gains g;
  for (int s = 0; s <= 3; ++s) {
    const double v1 = v.ValeurJoueur1[s], v2 = v.ValeurJoueur2[s];
    const float v3 = v.ValeurJoueur3[s];
    g.Gain1[s] = g.Gain2[s] = 1;
    g.Gain3[s] = 1;
    if (v1 > base[7] && v1 < ValeurToutQuinte)
      g.Gain1[s] = 5;
    else if (v1 >= base[6] && v1 < ValeurToutQuinte)
      g.Gain1[s] = 4;
    // Level 2 pays double for its strongest classes.
    if (v2 > base[7] && v2 < ValeurToutQuinte)
      g.Gain2[s] = 10;
    else if (v2 >= base[6] && v2 < ValeurToutQuinte)
      g.Gain2[s] = 8;
    else if (v2 >= base[5] && v2 < ValeurToutQuinte)
      g.Gain2[s] = 2;
    if (v3 >= base[2] && v3 < ValeurToutQuinte)
      g.Gain3[s] = 3;
    if (v1 == ValeurMégaQuinte)
      g.Gain1[s] = g.Gain2[s] = g.Gain3[s] = 5;
    if (v1 >= ValeurToutQuinte && v1 < ValeurMégaQuinte)
      g.Gain1[s] = g.Gain2[s] = g.Gain3[s] = 2;
  }
  return g;
}

// Every pair of seats once: the winner takes its own gain from the loser,
// and equal values pay nothing, with no further look at the cards.
template <typename Valeur, typename Case, typename Gain>
void Compare(const Valeur (&valeur)[4], Case (&grille)[4][4], const Gain (&gain)[4]) {
  for (int a = 0; a <= 2; ++a)
    for (int b = a + 1; b <= 3; ++b) {
      if (valeur[a] < valeur[b]) {
        grille[a][b] = static_cast<Case>(-gain[b]);
        grille[b][a] = static_cast<Case>(gain[b]);
      } else if (valeur[a] > valeur[b]) {
        grille[a][b] = static_cast<Case>(gain[a]);
        grille[b][a] = static_cast<Case>(-gain[a]);
      } else {
        grille[a][b] = grille[b][a] = 0;
      }
    }
}

} // namespace

int Paiement(const TroisNiveaux &t, int i) {
  const int s = i / 9, niveau = (i % 9) / 3, adversaire = Adversaire(s, i % 3);
  if (niveau == 0)
    return static_cast<int>(t.PaieNiveau1[s][adversaire]);
  if (niveau == 1)
    return static_cast<int>(t.PaieNiveau2[s][adversaire]);
  return t.PaieNiveau3[s][adversaire];
}

void Paie(TroisNiveaux &t, const ValeursJoueurs &v) {
  for (int a = 0; a <= 3; ++a)
    for (int b = 0; b <= 3; ++b)
      if (a != b) {
        t.PaieNiveau1[a][b] = t.PaieNiveau2[a][b] = 0;
        t.PaieNiveau3[a][b] = 0;
      }
  const Gains g = CalculeGains(t, v);
  Compare(v.ValeurJoueur1, t.PaieNiveau1, g.Gain1);
  Compare(v.ValeurJoueur2, t.PaieNiveau2, g.Gain2);
  Compare(v.ValeurJoueur3, t.PaieNiveau3, g.Gain3);

  // Each label wears a light shade of the opponent it is played against.
  auto &labels = t.Fenêtre.LabelPaie;
  for (int i = 0; i <= 35; ++i)
    labels[i].BackColor = CouleurSiègeClaire[Adversaire(i / 9, i % 3)];
  for (int i = 0; i <= 35; ++i)
    labels[i].Caption = std::to_string(Paiement(t, i));
  for (int i = 0; i <= 35; ++i)
    labels[i].ForeColor = Paiement(t, i) < 0 ? 0x0000FF : 0;
}

} // namespace abattage

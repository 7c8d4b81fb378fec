// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <cmath>

#include "core/table_state.h"

// Clears the table for a new deal or replay. Mains, MeilleurRangement, the
// scores, the clock, the buttons and the solution view are left as they are.
void TroisNiveaux::Init() {
  ScoresRemisà0 = false;
  ScoresÉcrits = false;
  CarteLevée = 0;
  for (int c = 0; c <= 51; ++c) {
    MontreCarte(c, PasDeCarte);
    CartesTirées[c] = PasDeCarte;
  }
  Fenêtre.TempsShape.Left = -(Fenêtre.TempsShape.Width - 15);
  Fenêtre.TempsShape.BackColor = CouleurSiège[0];
  for (int siège = 0; siège <= 3; ++siège) {
    ToutQuinte[siège] = false;
    ToutFlush[siège] = false;
    SixPaires[siège] = false;
    MégaQuinte[siège] = false;
    Fenêtre.ExtraLabel[siège].Caption = "";
    Fenêtre.TotalLabel[siège].Caption = "";
    TotauxDonne[siège] = 0;
  }
  // Each payment label wears the colour of the opponent it stands for.
  for (int i = 0; i <= 35; ++i) {
    const int siège = i / 9, position = i % 3;
    const int adversaire = position < siège ? position : position + 1;
    Fenêtre.LabelPaie[i].BackColor = CouleurSiège[adversaire];
  }
  for (int i = 0; i <= 35; ++i) {
    Fenêtre.LabelPaie[i].Caption = "";
    Fenêtre.LabelPaie[i].ForeColor = 0;
  }
  for (int i = 0; i <= 11; ++i)
    Fenêtre.EnchèreLabel[i].Visible = false;
  for (int i = 39; i <= 51; ++i)
    Fenêtre.CartesJeu[i].Enabled = true;
  LitTempsDuMode();
}

// Thirteen cards to each seat in turn, the generator reseeded from the clock
// before every draw; a card already out is drawn again until a new one comes.
void TroisNiveaux::Distribue() {
  int tirées = 0;
  for (int siège = 0; siège <= 3; ++siège) {
    for (int k = 0; k <= 12; ++k) {
      int r = 0;
      for (;;) {
        Générateur.Réensemence(plateforme.SecondesDepuisMinuit());
        r = static_cast<int>(std::floor(Générateur.Tire() * 52));
        bool déjàTirée = false;
        for (int n = 0; n <= 50 && !déjàTirée; ++n)
          déjàTirée = CartesTirées[n] == r;
        if (!déjàTirée)
          break;
      }
      CartesTirées[tirées++] = static_cast<uint8_t>(r);
      if (siège == 3)
        MontreCarte(39 + k, r);
      Mains[siège][k] = static_cast<uint8_t>(r);
      if (siège == 3)
        Mains[4][k] = static_cast<uint8_t>(r);
    }
  }
  ÉcritTirage();
}

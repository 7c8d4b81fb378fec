// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <cmath>
#include <filesystem>
#include <system_error>

#include "core/table_state.h"

const char *const NomsParDéfaut[4] = {"MicroProc", "GigaOctets", "MégaBytes", "Bibi"};

TroisNiveaux::TroisNiveaux(Plateforme &plateforme) : plateforme(plateforme) {}

// The session's start, before the window is first painted. The steps keep
// their order: the data files are opened by bare name once their folder is
// the current one.
void TroisNiveaux::Form_Load() {
  VérifieRésolution();
  if (DémarrageRefusé)
    return;

  Fenêtre.Form.Width = 15360;
  Fenêtre.Form.Height = 11520;

  Fenêtre.Pub0Pic.Top = 8700;
  Fenêtre.Pub1Pic.Left = 11940;
  plateforme.Navigue(VueWeb::Pub0Web, "pub0.htm");
  plateforme.Navigue(VueWeb::Pub1Web, "pub1.htm");

  Fenêtre.NonConnectéPic.Left = (Fenêtre.Form.Width - Fenêtre.NonConnectéPic.Width) / 2;
  Fenêtre.NonConnectéPic.Top = (Fenêtre.Form.Height - Fenêtre.NonConnectéPic.Height) / 2;

  std::error_code erreur;
  std::filesystem::current_path(plateforme.DossierDesDonnées(), erreur);

  const int16_t bases[8] = {100, 200, 350, 380, 500, 600, 1000, 1500};
  for (int i = 0; i < 8; ++i)
    BaseMain[i] = bases[i];

  if (!erreur)
    NettoieFichiersTemporaires();
  if (!LitNoms() || !LitScores()) {
    DémarrageRefusé = true;
    // The display mode may have been changed already: the session ends here.
    RestaureRésolution();
    plateforme.SignaleErreur(ErreurDémarrage);
    return;
  }

  Mode = 1;
  ConstruitRangements();
  Fenêtre.NomsJoueursSS.Left = 4755;
  Fenêtre.NomsJoueursSS.Top = 3360;
  Générateur.Réensemence(plateforme.SecondesDepuisMinuit());
  PlaceLesÉtoiles();
  ComposeTextesRègles();
}

// QUITTER and any closing of the window: the display mode goes back, and the
// session ends on the spot. Every file was written when its content changed.
void TroisNiveaux::Fin_MouseUp() {
  RestaureRésolution();
  SessionTerminée = true;
  plateforme.Quitte();
}

void TroisNiveaux::Form_QueryUnload() { Fin_MouseUp(); }

// Whole parts are taken before the values become floats: a draw just under
// 1 would otherwise round up to the window's edge.
void TroisNiveaux::PlaceLesÉtoiles() {
  for (int i = 1; i <= 50; ++i) {
    EtoileX[i] = static_cast<float>(std::floor(Générateur.Tire() * Fenêtre.Form.Width));
    EtoileY[i] = static_cast<float>(std::floor(Générateur.Tire() * Fenêtre.Form.Height));
    EtoileVitesse[i] = static_cast<float>(500 - std::floor(Générateur.Tire() * 499));
    EtoileRayon[i] = static_cast<int16_t>(std::nearbyint(Générateur.Tire() * 16));
  }
}

// A picture index outside the 55 card pictures (a damaged Tirage) is passed
// over, as any failing statement of a replay is.
void TroisNiveaux::MontreCarte(int slot, int code) {
  if (slot < 0 || slot > 52 || code < 0 || code > 54)
    return;
  Fenêtre.CartesJeu[slot].Picture = code;
}

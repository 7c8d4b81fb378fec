// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "core/table_state.h"

// REJOUE: the last deal again, from the file Tirage. There is no GO: when the
// sweep ends, the human's cards are frozen as they lie and the showdown
// follows at once. A damaged or missing file is played as it reads.
void TroisNiveaux::Rejoue_MouseUp() {
  if (BalayageEnCours)
    return;
  OuvreLaDonne();
  LitTirage();
  DémarreHorloge();
  ModeDuBalayage = Mode;
  OrdiJoue();
  if (SessionTerminée)
    return;
  for (int i = 39; i <= 51; ++i)
    Fenêtre.CartesJeu[i].Enabled = false;
  if (!Fenêtre.Arrêt.Enabled) {
    Fenêtre.TempsLabel.Caption = "";
    Fenêtre.TempsTimer.Enabled = false;
    return;
  }
  Abattage(false);
}

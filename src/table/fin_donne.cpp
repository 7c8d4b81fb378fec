// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "core/table_state.h"

// GO: the human's layout is frozen, then the showdown.
void TroisNiveaux::Joue_Click() {
  for (int i = 39; i <= 51; ++i)
    Fenêtre.CartesJeu[i].Enabled = false;
  // Turned to DEBUTANT after an EXPERT sweep: the human's cards were never
  // searched, so the solution is found now, before anything is valued.
  if (Mode == 1 && ModeDuBalayage == 0) {
    ChercheSiège(3);
    ModeDuBalayage = 1;
  }
  Abattage();
  Fenêtre.Joue.Visible = false;
}

// The end of a deal, after GO or a replay's sweep: every layout valued, the
// human's pairs counted, the showdown paid, the clock's time kept for the
// next deal of this mode, and the table given back to the buttons. A replay
// writes the time as it reads Tirage: a failure goes untold.
void TroisNiveaux::Abattage(bool signaleÉchecTemps) {
  Décompte1();
  Décompte2();
  Décompte3();
  Fenêtre.VoirOrdi[0].Enabled = true;
  Fenêtre.VoirOrdi[1].Enabled = true;
  if (Mode == 1)
    Fenêtre.VoirOrdi[0].Visible = true;
  ComptePaires(3);
  AfficheRésultat();
  Fenêtre.TempsLabel.Caption = "";
  Fenêtre.TempsTimer.Enabled = false;
  ÉcritTempsDuMode(signaleÉchecTemps);
  for (Contrôle *c : {&Fenêtre.NouveauJeu, &Fenêtre.Rejoue, &Fenêtre.NomsJoueurs, &Fenêtre.Scoresà0,
                      &Fenêtre.Mode})
    c->Enabled = true;
  Fenêtre.Arrêt.Enabled = false;
}

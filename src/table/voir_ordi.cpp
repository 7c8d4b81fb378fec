// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "core/table_state.h"

// The computer's solution for the human's cards, and back. The view works on
// the scores in memory only: the file keeps what the human really scored.
void TroisNiveaux::VoirOrdi_Click(int index) {
  auto &f = Fenêtre;
  const bool ouvre = index == 0;
  f.VoirOrdi[1].Visible = ouvre;
  f.VoirOrdi[0].Visible = !ouvre;
  for (Contrôle *c : {&f.NouveauJeu, &f.Rejoue, &f.NomsJoueurs, &f.Scoresà0, &f.Mode})
    c->Enabled = !ouvre;
  // STOP would give the table back with the view still on it.
  if (ouvre)
    f.Arrêt.Enabled = false;
  for (int siège = 0; siège <= 3; ++siège) {
    if (!ScoresRemisà0) {
      Scores[siège] -= AjoutéAuxScores[siège];
      f.ScoreLabel[siège].ForeColor = Scores[siège] < 0 ? 255 : 0;
      f.ScoreLabel[siège].Caption = std::to_string(Scores[siège]);
    }
    TotauxDonne[siège] = 0;
  }
  AfficheRésultat();
}

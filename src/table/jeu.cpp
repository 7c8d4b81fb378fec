// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <QtGlobal>

#include "core/table_state.h"
#include "files/historique.h"

void TroisNiveaux::ActiveMenu(bool actif) {
  auto &f = Fenêtre;
  for (Contrôle *c : {&f.NouveauJeu, &f.Rejoue, &f.NomsJoueurs, &f.Scoresà0, &f.Mode,
                      &f.VoirOrdi[0], &f.VoirOrdi[1]})
    c->Enabled = actif;
}

// The table as a deal or replay begins: the menu off, STOP on, the table reset.
void TroisNiveaux::OuvreLaDonne() {
  Fenêtre.Joue.Visible = false;
  Fenêtre.VoirOrdi[0].Visible = false;
  ActiveMenu(false);
  Fenêtre.Arrêt.Enabled = true;
  Init();
}

// JOUER: a new deal, then the computer's sweep, during which the human lays
// out cards. A release that arrives while a sweep is still on the stack (STOP
// pressed, the sweep not yet returned) is ignored.
void TroisNiveaux::NouveauJeu_MouseUp() {
  if (Fenêtre.NomsJoueursSS.Visible || BalayageEnCours)
    return;
  OuvreLaDonne();
  Distribue();
  DémarreHorloge();
  ModeDuBalayage = Mode;
  OrdiJoue();
  if (SessionTerminée)
    return;
  if (!Fenêtre.Arrêt.Enabled) {
    Fenêtre.TempsLabel.Caption = "";
    Fenêtre.TempsTimer.Enabled = false;
  } else {
    Fenêtre.Joue.Visible = true;
  }
}

// STOP stops nothing by itself: the sweep sees the disabled button before
// its next row.
void TroisNiveaux::Arrêt_MouseUp() {
  Fenêtre.TempsShape.Left = -(Fenêtre.TempsShape.Width - 15);
  Fenêtre.Arrêt.Enabled = false;
  ActiveMenu(true);
}

void TroisNiveaux::Mode_MouseUp() {
  auto &f = Fenêtre;
  Mode = Mode == 1 ? 0 : 1;
  const bool expert = Mode == 0;
  f.Mode.BackColor = f.TempsFondSS.BackColor = expert ? 0x0080FF : 0x80C0FF;
  f.Mode.Caption =
      expert ? QT_TRANSLATE_NOOP("Table", "EXPERT") : QT_TRANSLATE_NOOP("Table", "DEBUTANT");
  f.TempsSS.Left = expert ? 4470 : 4020;
  f.TempsSS.Width = expert ? 3075 : 3975;
  f.TempsFondSS.Width = expert ? 3000 : 3900;
  f.TempsShape.Width = expert ? 3015 : 3915;
  f.TempsLabel.Left = f.TempsFondSS.Width - 240;
  f.TempsShape.Left = -(f.TempsShape.Width - 15);
}

void TroisNiveaux::Scoresà0_MouseUp() {
  for (int siège = 0; siège <= 3; ++siège) {
    Fenêtre.ScoreLabel[siège].ForeColor = 0;
    Scores[siège] = 0;
    Fenêtre.ScoreLabel[siège].Caption = "0";
  }
  ÉcritScores();
  historique::NoteRemise(*this);
  ScoresRemisà0 = true;
}

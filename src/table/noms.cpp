// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "core/table_state.h"

namespace {
void ActiveAprèsNoms(Contrôles &f, bool actif) {
  for (Contrôle *c : {&f.NouveauJeu, &f.Arrêt, &f.Scoresà0, &f.NomsJoueurs, &f.Rejoue, &f.Mode,
                      &f.VoirOrdi[0], &f.VoirOrdi[1]})
    c->Enabled = actif;
}
} // namespace

void TroisNiveaux::NomsJoueurs_MouseUp() {
  Fenêtre.NomsJoueursSS.Visible = true;
  ActiveAprèsNoms(Fenêtre, false);
}

// An emptied box takes the seat's fallback name in the file and on the
// table, but stays empty itself until the next start.
void TroisNiveaux::EnregistreNoms_MouseUp() {
  std::string noms[4];
  for (int siège = 0; siège <= 3; ++siège) {
    noms[siège] = Fenêtre.NomsJoueursText[siège].Text;
    if (noms[siège].empty())
      noms[siège] = NomsParDéfaut[siège];
  }
  ÉcritNoms(noms);
  for (int siège = 0; siège <= 3; ++siège)
    Fenêtre.JoueursLabel[siège].Caption = noms[siège];
  ActiveAprèsNoms(Fenêtre, true);
  Fenêtre.NomsJoueursSS.Visible = false;
}

// What was typed stays in the boxes; the names on the table stay as they were.
void TroisNiveaux::AnnuleNoms_MouseUp() {
  ActiveAprèsNoms(Fenêtre, true);
  Fenêtre.NomsJoueursSS.Visible = false;
}

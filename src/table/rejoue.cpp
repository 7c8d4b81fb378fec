#include "core/table_state.h"

// REJOUE: the last deal again, from the file Tirage. There is no GO: when the
// sweep ends, the human's cards are frozen as they lie and the showdown
// follows at once. A damaged or missing file is played as it reads.
void TroisNiveaux::Rejoue_MouseUp() {
  if (BalayageEnCours)
    return;
  Fenêtre.Joue.Visible = false;
  Fenêtre.VoirOrdi[0].Visible = false;
  ActiveMenu(false);
  Fenêtre.Arrêt.Enabled = true;
  Init();
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
  ÉcritTempsDuMode();
  for (Contrôle *c : {&Fenêtre.NouveauJeu, &Fenêtre.Rejoue, &Fenêtre.NomsJoueurs,
                      &Fenêtre.Scoresà0, &Fenêtre.Mode})
    c->Enabled = true;
  Fenêtre.Arrêt.Enabled = false;
}

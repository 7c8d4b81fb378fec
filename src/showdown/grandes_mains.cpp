// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <QtGlobal>

#include "showdown/abattage.h"

namespace abattage {

ValeursJoueurs CopieDeTravail(TroisNiveaux &t) {
  ValeursJoueurs v;
  for (int s = 0; s <= 3; ++s) {
    v.ValeurJoueur1[s] = t.ValeursNiveau1[s];
    v.ValeurJoueur2[s] = t.ValeursNiveau2[s];
    v.ValeurJoueur3[s] = t.ValeursNiveau3[s];
  }

  // In DEBUTANT a special hand that some layout of the human's cards holds is
  // played for him: his layout gives way to the computer's, for good. The
  // flags are read here, before the special hands below can clear them.
  if (t.Mode == 1 && !t.ScoresÉcrits && (t.ToutQuinte[3] || t.ToutFlush[3])) {
    const auto &rangée = t.Rangements[t.MeilleurRangement[3]];
    for (int k = 0; k <= 12; ++k)
      t.Mains[4][k] = t.Mains[3][rangée[k]];
  }

  // With the real showdown on the table in DEBUTANT, index 3 holds the
  // computer's solution and the human's own layout is at index 4.
  if (t.Fenêtre.VoirOrdi[0].Visible) {
    v.ValeurJoueur1[3] = t.ValeursNiveau1[4];
    v.ValeurJoueur2[3] = t.ValeursNiveau2[4];
    v.ValeurJoueur3[3] = t.ValeursNiveau3[4];
  }
  return v;
}

void MainsSpéciales(TroisNiveaux &t, ValeursJoueurs &v) {
  for (int s = 0; s <= 3; ++s) {
    Contrôle &extra = t.Fenêtre.ExtraLabel[s];
    extra.Caption = "";
    const auto tient = [&](const char *texte, int valeur) {
      extra.Caption = texte;
      v.ValeurJoueur1[s] = v.ValeurJoueur2[s] = valeur;
      v.ValeurJoueur3[s] = static_cast<float>(valeur);
    };
    // Four separate tests, not a chain: a later one that holds overwrites
    // what an earlier one wrote, even with a lower value.
    if (t.MégaQuinte[s]) {
      tient(QT_TRANSLATE_NOOP("Table", "MEGA QUINTE"), ValeurMégaQuinte);
      t.ToutFlush[s] = t.ToutQuinte[s] = false;
    }
    if (t.SixPaires[s])
      tient(QT_TRANSLATE_NOOP("Table", "6 PAIRES"), ValeurSixPaires);
    if (t.ToutFlush[s]) {
      tient(QT_TRANSLATE_NOOP("Table", "TOUT FLUSH"), ValeurToutFlush);
      t.ToutQuinte[s] = false;
    }
    if (t.ToutQuinte[s])
      tient(QT_TRANSLATE_NOOP("Table", "TOUT QUINTE"), ValeurToutQuinte);
  }
}

// Only the human can lay levels out of order. Such a layout is not removed
// from the game: with 0 on every level it loses all nine comparisons.
void Validité(TroisNiveaux &t, ValeursJoueurs &v) {
  // Level 3 is a float; the others meet it rounded to float.
  const float niveau1 = static_cast<float>(v.ValeurJoueur1[3]);
  const float niveau2 = static_cast<float>(v.ValeurJoueur2[3]);
  const bool enDésordre = v.ValeurJoueur3[3] > niveau2 || v.ValeurJoueur3[3] > niveau1 ||
                          v.ValeurJoueur2[3] > v.ValeurJoueur1[3];
  if (!enDésordre || t.MégaQuinte[3] || t.SixPaires[3] || t.ToutQuinte[3] || t.ToutFlush[3])
    return;
  t.Fenêtre.ExtraLabel[3].Caption = QT_TRANSLATE_NOOP("Table", "ERREUR !");
  v.ValeurJoueur1[3] = v.ValeurJoueur2[3] = 0;
  v.ValeurJoueur3[3] = 0;
}

} // namespace abattage

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// What screen readers learn of the table: every control the game paints
// gives a role and a name through Qt's accessibility interfaces, in the
// order a player reads the table, and the moments of a deal (GO, the
// result) move the focus so that a reader says them.

#include <QString>

#include "table/controles.h"

class FenêtreTable;
class TroisNiveaux;
class VueContrôle;
class QWidget;

// Installs the interfaces for the table's controls (once per program).
void InstalleAccessibilité();

// The name a control goes by: a button by its caption (or what its picture
// means), a label by its text, a card slot by its card and level ("dix de
// cœur, niveau 1") or "carte cachée".
QString NomAccessible(const Contrôle &c);
// The same with the table around it: a number says whose it is and what it
// counts ("score de MicroProc : -5"), a seat's panel is its player's name.
QString NomAccessible(const Contrôle &c, const Contrôles &f);

// A card in words: "as de pique".
QString NomDeCarte(int code);

// A finished deal in one sentence: special hands, each seat's total and score.
QString RésuméDeLaDonne(const Contrôles &f);

// The search's progress as the bar shows it, 0 to 100.
int ProgrèsDeLaRecherche(const Contrôle &barre);

// Tells a reader what changed on a control since `avant`: its name (the
// clock's aside, which would be read out every second) or the bar's value.
void SignaleAuLecteur(VueContrôle *vue, const Contrôle &avant);

// Moves the focus where a reader should be at each moment of a deal: GO as
// it appears, the result's sentence when a showdown ends, the solution and
// the rules as they open; and tells of a card picked up or put back.
class SuiviLecteur {
public:
  SuiviLecteur(FenêtreTable &fenêtre, TroisNiveaux &t);
  // Around the widgets' update: what hides must give the focus away before,
  // what shows can only take it after.
  void AvantSynchronisation();
  void AprèsSynchronisation();
  // The object that says the result; for tests.
  QWidget *Résumé() const { return résumé; }

private:
  void Annonce(const QString &phrase);

  FenêtreTable &fenêtre;
  TroisNiveaux &t;
  QWidget *résumé;
  bool go = false, résultat = false, solution = false, règles = false;
  int levée = -1;
};

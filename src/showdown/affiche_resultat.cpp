// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "files/historique.h"
#include "showdown/abattage.h"

// The showdown, in one go and without a turn of the event loop. The first
// run of a deal pays, shows the whole table and writes Scores; a later run,
// which only the solution view makes, pays again in memory and shows seat 3.
void TroisNiveaux::AfficheRésultat() {
  abattage::ValeursJoueurs valeurs = abattage::CopieDeTravail(*this);
  abattage::MainsSpéciales(*this, valeurs);
  abattage::Validité(*this, valeurs);
  abattage::Paie(*this, valeurs);
  abattage::Totalise(*this);
  if (ScoresÉcrits) {
    abattage::MontreSiège3(*this, valeurs);
    return;
  }
  abattage::MontreTable(*this, valeurs);
  ÉcritScores();
  historique::NoteDonne(*this);
  ScoresÉcrits = true;
}

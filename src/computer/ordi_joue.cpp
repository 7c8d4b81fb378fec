// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The computer's play: every arrangement of a seat's cards is valued and the
// best kept, while the human lays out cards during the sweep's turns.
#include "computer/balayage.h"
#include "computer/balayage_rapide.h"

using namespace balayage;

namespace {

const IndexBalayage *Index(TroisNiveaux &t) {
  // Built at the first sweep and kept: Rangements never changes afterwards.
  // A table not yet built is tried again at the next sweep.
  if (!t.IndexDuBalayage)
    t.IndexDuBalayage = ConstruitIndexBalayage(t.Rangements);
  return t.IndexDuBalayage.get();
}

SuiviBalayage DébutDeSiège(const TroisNiveaux &t, int siège) {
  SuiviBalayage suivi;
  suivi.rangée = t.MeilleurRangement[siège];
  suivi.valeur3 = t.Valeur3;
  suivi.somme = t.Somme;
  return suivi;
}

// Puts into the record what the sweep has kept so far.
void Reporte(TroisNiveaux &t, int siège, const SuiviBalayage &suivi) {
  t.MeilleureValeur = suivi.meilleure;
  t.MeilleurRangement[siège] = suivi.rangée;
  if (suivi.quinteVue)
    t.ToutQuinte[siège] = true;
  if (suivi.flushVu)
    t.ToutFlush[siège] = true;
}

// Leaves the working fields as the row-by-row sweep leaves them after row
// `dernière` of the seat: its levels valued again, Valeur3 and Somme as the
// rows before left them.
void RétablitChamps(TroisNiveaux &t, int siège, int dernière, const SuiviBalayage &suivi) {
  Reporte(t, siège, suivi);
  if (dernière < 1)
    return;
  t.Joueur = static_cast<uint8_t>(siège);
  const int tête = dernière - (dernière - 1) % TailleGroupe;
  const uint8_t(&main)[13] = t.Mains[siège];
  for (int j = 0; j < 5; ++j)
    t.Niveau1[j] = main[t.Rangements[tête][j]];
  t.Résultat1();
  for (int j = 0; j < 5; ++j)
    t.Niveau2[j] = main[t.Rangements[dernière][5 + j]];
  t.Résultat2();
  for (int j = 0; j < 3; ++j)
    t.Niveau3[j] = main[t.Rangements[dernière][10 + j]];
  t.Valeur3 = suivi.valeur3;
  t.Résultat3();
  t.Somme = suivi.somme;
}

// The bar's steps over rows première..dernière of the seat.
int PasEntre(const TroisNiveaux &t, int siège, int première, int dernière) {
  if (t.PasProgrès <= 0)
    return 0;
  const int base = siège * NombreRangements;
  return (base + dernière) / t.PasProgrès - (base + première - 1) / t.PasProgrès;
}

} // namespace

void TroisNiveaux::OrdiJoue() {
  Garde garde(*this);
  const IndexBalayage *index = Index(*this);
  if (!index) {
    OrdiJoueLittéral();
    return;
  }
  PasProgrès = PasDeProgrès(*this);
  const int dernier = DernierSiège(*this);
  for (int siège = 0; siège <= dernier; ++siège) {
    Joueur = static_cast<uint8_t>(siège);
    if (siège > 0)
      Fenêtre.TempsShape.BackColor = CouleurSiège[siège];
    MeilleureValeur = 0;
    SuiviBalayage suivi = DébutDeSiège(*this, siège);
    const ValeursDuSiège valeurs(*this, *index, siège);

    // STOP and the end of the session can only come in a turn, at a group's
    // first row: a test there and one after that row see all that the
    // row-by-row sweep's test at every row would see.
    auto interrompu = [&](int dernièreFaite) {
      if (!SessionTerminée && Fenêtre.Arrêt.Enabled)
        return false;
      RétablitChamps(*this, siège, dernièreFaite, suivi);
      if (!SessionTerminée)
        Init();
      return true;
    };
    for (int groupe = 0; groupe < NombreGroupes; ++groupe) {
      const int tête = groupe * TailleGroupe + 1;
      if (interrompu(tête - 1))
        return;
      Reporte(*this, siège, suivi);
      plateforme.TourDeBalayage(siège, groupe);
      valeurs.Balaye(tête, tête, suivi);
      Fenêtre.TempsShape.Left += 15 * PasEntre(*this, siège, tête, tête);
      if (interrompu(tête))
        return;
      valeurs.Balaye(tête + 1, tête + TailleGroupe - 1, suivi);
      Fenêtre.TempsShape.Left += 15 * PasEntre(*this, siège, tête + 1, tête + TailleGroupe - 1);
    }
    RétablitChamps(*this, siège, NombreRangements, suivi);
    ComptePaires(Joueur);
  }
  if (Fenêtre.TempsShape.Left < 0)
    Fenêtre.TempsShape.Left = 0;
}

void TroisNiveaux::ChercheSiège(uint8_t siège) {
  if (siège > 3)
    return;
  Joueur = siège;
  MeilleureValeur = 0;
  const IndexBalayage *index = Index(*this);
  if (index) {
    SuiviBalayage suivi = DébutDeSiège(*this, siège);
    const ValeursDuSiège valeurs(*this, *index, siège);
    for (int groupe = 0; groupe < NombreGroupes; ++groupe)
      valeurs.Balaye(groupe * TailleGroupe + 1, (groupe + 1) * TailleGroupe, suivi);
    RétablitChamps(*this, siège, NombreRangements, suivi);
  } else if (Rangements.size() == NombreRangements + 1) {
    for (int i = 1; i <= NombreRangements; ++i)
      LigneLittérale(*this, i, false);
  } else {
    return;
  }
  ComptePaires(siège);
}

void TroisNiveaux::ComptePaires(uint8_t siège) {
  if (siège > 3)
    return;
  const uint8_t(&main)[13] = Mains[siège];
  bool appariée[13] = {};
  int paires = 0;
  // Cards 11 and 12 first: the loop below stops at card 10 and never meets
  // them together.
  if (main[11] % 13 == main[12] % 13) {
    ++paires;
    appariée[11] = appariée[12] = true;
  }
  for (int k = 0; k <= 10; ++k)
    for (int l = k + 1; l <= 12; ++l)
      if (main[k] % 13 == main[l] % 13 && !appariée[k] && !appariée[l]) {
        ++paires;
        appariée[k] = appariée[l] = true;
      }
  if (paires == 6)
    SixPaires[siège] = true;
  if (paires == 0)
    MégaQuinte[siège] = true;
}

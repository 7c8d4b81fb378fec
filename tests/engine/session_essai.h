// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// A session ready to value and sweep hands without Form_Load and its files:
// the table of arrangements, the class bases, and the bar's controls as the
// mode button and Init leave them.

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "core/table_state.h"
#include "platform/sans_fenetre.h"

// Records every turn the sweep gives, with what the bar shows at that moment.
class PlateformeEspionne : public PlateformeSansFenêtre {
public:
  PlateformeEspionne() : PlateformeSansFenêtre("/nonexistent/troisniveaux-essai") {}
  struct Tour {
    int siège, groupe, gauche;
    uint32_t couleur;
    int32_t rangée; // MeilleurRangement of the seat being swept
    bool operator==(const Tour &) const = default;
  };
  std::vector<Tour> relevé;
  TroisNiveaux *table = nullptr;

  void TourDeBalayage(int siège, int groupe) override {
    if (table)
      relevé.push_back({siège, groupe, table->Fenêtre.TempsShape.Left,
                        table->Fenêtre.TempsShape.BackColor, table->MeilleurRangement[siège]});
    TourDeBoucle();
  }
};

struct SessionEssai {
  PlateformeEspionne plateforme;
  TroisNiveaux t{plateforme};

  // Valuing a level needs no table of arrangements; sweeping does.
  explicit SessionEssai(uint8_t mode = 1, bool avecTable = true) {
    plateforme.table = &t;
    if (avecTable) {
      static const std::vector<std::array<uint8_t, 13>> table = Table();
      t.Rangements = table;
    }
    const int16_t bases[8] = {100, 200, 350, 380, 500, 600, 1000, 1500};
    std::copy(bases, bases + 8, t.BaseMain);
    // The bar as the mode button sizes it and Init places it.
    t.Mode = mode ? 0 : 1;
    t.Mode_MouseUp();
    t.Fenêtre.Arrêt.Enabled = true;
    t.Fenêtre.TempsShape.BackColor = CouleurSiège[0];
  }

  void Main(int siège, const std::vector<int> &cartes) {
    for (int k = 0; k < 13; ++k)
      t.Mains[siège][k] = static_cast<uint8_t>(cartes.at(k));
  }

private:
  static std::vector<std::array<uint8_t, 13>> Table() {
    PlateformeSansFenêtre p;
    TroisNiveaux s(p);
    s.ConstruitRangements();
    // Every test here needs the table: without it, stop the test at once.
    if (s.Rangements.size() != 72073u)
      throw std::runtime_error("ConstruitRangements n'a pas construit la table des rangements");
    return s.Rangements;
  }
};

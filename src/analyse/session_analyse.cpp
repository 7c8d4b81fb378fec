// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "analyse/session_analyse.h"

#include <stdlib.h>

#include <string>
#include <system_error>

namespace {

std::filesystem::path DossierNeuf() {
  std::error_code erreur;
  std::filesystem::path base = std::filesystem::temp_directory_path(erreur);
  if (erreur)
    base = "/tmp";
  std::string modèle = (base / "troisniveaux-XXXXXX").string();
  if (mkdtemp(modèle.data()) == nullptr)
    return {};
  return modèle;
}

} // namespace

SessionAnalyse::SessionAnalyse()
    : dossierTemporaire(DossierNeuf()),
      // Without a folder of its own the session points at one that does not
      // exist: its files then fail to open, which the engine passes over.
      plateforme(std::make_unique<PlateformeSansFenêtre>(
          dossierTemporaire.empty() ? "/nonexistent/troisniveaux" : dossierTemporaire.string())),
      t(std::make_unique<TroisNiveaux>(*plateforme)) {
  const int16_t bases[8] = {100, 200, 350, 380, 500, 600, 1000, 1500};
  std::copy(bases, bases + 8, t->BaseMain);
  t->ConstruitRangements();
  t->Mode = 1;
  t->Fenêtre.Arrêt.Enabled = true;
  t->Fenêtre.TempsFondSS.Width = 3900;
  t->Fenêtre.TempsShape.Width = 3915;
  t->Fenêtre.TempsShape.Left = -3900;
  t->Fenêtre.TempsShape.BackColor = CouleurSiège[0];
}

SessionAnalyse::~SessionAnalyse() {
  t.reset();
  plateforme.reset();
  if (!dossierTemporaire.empty()) {
    std::error_code erreur;
    std::filesystem::remove_all(dossierTemporaire, erreur);
  }
}

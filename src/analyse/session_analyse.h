// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// A session of the engine for the command line: no window, no pacing, and
// its data files in a fresh temporary folder, removed at the end, so that
// nothing is read from or written to the current directory.

#include <filesystem>
#include <memory>

#include "core/table_state.h"
#include "platform/sans_fenetre.h"

class SessionAnalyse {
public:
  // The table of arrangements, the class bases, DEBUTANT, and the bar and
  // STOP as they stand when a sweep begins.
  SessionAnalyse();
  ~SessionAnalyse();
  SessionAnalyse(const SessionAnalyse &) = delete;
  SessionAnalyse &operator=(const SessionAnalyse &) = delete;

  TroisNiveaux &table() { return *t; }
  const std::filesystem::path &dossier() const { return dossierTemporaire; }

private:
  std::filesystem::path dossierTemporaire;
  std::unique_ptr<PlateformeSansFenêtre> plateforme;
  std::unique_ptr<TroisNiveaux> t;
};

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// A session of the game cut down to what the display mode needs, for the
// tests on a virtual X screen: the real platform, the dialog answered yes,
// the ways out guarded as in the game. Prints its window's id, then waits.
// Usage: troisniveaux-pilote-affichage FOLDER (where Noms and Scores lie).
#include <QApplication>
#include <QWidget>
#include <cstdio>

#include "core/table_state.h"
#include "platform/qt/bureau/sortie.h"
#include "platform/qt/fenetre/plateforme_qt.h"

namespace {
struct PlateformePilote : PlateformeQt {
  std::string dossier;
  std::string DossierDesDonnées() override { return dossier; }
  bool DemandeChangementRésolution() override { return true; }
};
} // namespace

int main(int argc, char *argv[]) {
  QApplication application(argc, argv);
  if (argc < 2)
    return 2;
  PlateformePilote plateforme;
  plateforme.dossier = argv[1];
  plateforme.dialogues = false;
  TroisNiveaux table(plateforme);
  GardeLesSorties(table);
  table.Form_Load();
  if (table.DémarrageRefusé)
    return 1;
  QWidget fenêtre;
  fenêtre.resize(200, 100);
  fenêtre.show();
  std::printf("%llu\n", static_cast<unsigned long long>(fenêtre.winId()));
  std::fflush(stdout);
  return application.exec();
}

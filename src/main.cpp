// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The game: the table in its window, over the engine.
#include <QApplication>

#include "platform/qt/bureau/ligne_de_commande.h"
#include "platform/qt/fenetre/partie.h"
#include "platform/qt/jeux/jeux_de_cartes.h"
#include "platform/qt/panneaux/pages_web.h"

int main(int argc, char *argv[]) {
  if (const auto fin = TraiteLigneDeCommande(argc, argv))
    return *fin;
  PrépareWebEngine();
  QApplication application(argc, argv);
  if (!PrépareLaPartie())
    return 1;
  Partie partie;
  if (const auto fin = partie.Démarre())
    return *fin;
  partie.fenêtre.show();
  // A deck still being drawn is given up rather than waited for.
  return jeux::FinDuRendu(application.exec());
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/fenetre/partie.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <memory>

#include "platform/qt/bureau/dossier_donnees.h"
#include "platform/qt/bureau/identite.h"
#include "platform/qt/bureau/langue.h"
#include "platform/qt/bureau/ligne_de_commande.h"
#include "platform/qt/bureau/messages.h"
#include "platform/qt/bureau/sortie.h"
#include "platform/qt/panneaux/pages_web.h"

bool PrépareLaPartie() {
  ParleLangue(LangueDeDépart(LangueDeLaLigneDeCommande()));
  if (!PrépareDémarrage())
    return false;
  PagesWeb::DéfinitDossierLocal(DossierDeCetteSession().pages);
  return true;
}

Partie::Partie() : table(plateforme), fenêtre(table, plateforme) {
  GardeLesSorties(table);
  plateforme.pages = std::make_unique<PagesWeb>(fenêtre.Vue(table.Fenêtre.Pub0Pic),
                                                fenêtre.Vue(table.Fenêtre.Pub1Pic),
                                                fenêtre.Vue(table.Fenêtre.LogoFondPic));
}

std::optional<int> Partie::Démarre() {
  // A failed start is told by one modal message, after which the game ends.
  plateforme.dialogues = false;
  table.Form_Load();
  plateforme.dialogues = true;
  if (table.DémarrageRefusé) {
    if (table.ErreurDémarrage.empty())
      return 0; // the player refused the change of display mode
    if (QGuiApplication::platformName() != "offscreen")
      QMessageBox::critical(nullptr, "TroisNiveaux",
                            TraduitMessage(QString::fromStdString(table.ErreurDémarrage)));
    return 1;
  }
  fenêtre.Synchronise();
  fenêtre.RetrouveTaille();
  return std::nullopt;
}

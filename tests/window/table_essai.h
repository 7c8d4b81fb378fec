// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The game in its real window, over a folder of its own, the sweep flat out
// unless a test paces it.

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <QWindow>

#include "core/table_state.h"
#include "dossier_essai.h"
#include "platform/qt/fenetre/fenetre_table.h"
#include "platform/qt/fenetre/plateforme_qt.h"
#include "platform/qt/panneaux/pages_web.h"

struct Table {
  DossierEssai dossier;
  struct Plateforme : PlateformeQt {
    std::string dossier;
    std::string DossierDesDonnées() override { return dossier; }
  } plateforme;
  TroisNiveaux t{plateforme};
  FenêtreTable fenêtre{t, plateforme};

  // `pages`: the game's own pages in their panels, as the game shows them.
  explicit Table(bool pages = false) {
    plateforme.dossier = dossier.Chemin();
    plateforme.dialogues = false;
    plateforme.duréeParSiège = 0;
    if (pages) {
      PagesWeb::DéfinitDossierLocal(TN_DOSSIER_DONNEES);
      plateforme.pages = std::make_unique<PagesWeb>(Vue(t.Fenêtre.Pub0Pic), Vue(t.Fenêtre.Pub1Pic),
                                                    Vue(t.Fenêtre.LogoFondPic));
    }
    t.Form_Load();
    fenêtre.Synchronise();
    fenêtre.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&fenêtre));
  }
  ~Table() { PagesWeb::DéfinitDossierLocal(""); }
  QWidget *Vue(const Contrôle &c) { return fenêtre.Vue(c); }
  void Clic(const Contrôle &c) { QTest::mouseClick(Vue(c), Qt::LeftButton); }
  QColor Pixel(const Contrôle &c, QPoint où) {
    return Vue(c)->grab().toImage().pixelColor(où * Vue(c)->devicePixelRatioF());
  }
  // A key as the window gets it, whatever holds the keyboard.
  void Touche(Qt::Key touche, Qt::KeyboardModifiers modifs = Qt::NoModifier) {
    QTest::keyClick(&fenêtre, touche, modifs);
  }
  // As the window system does it: the window's own surface is resized.
  void Redimensionne(QSize taille) {
    fenêtre.windowHandle()->resize(taille);
    ASSERT_TRUE(QTest::qWaitFor([&] { return fenêtre.size() == taille; }, 1000));
  }
};

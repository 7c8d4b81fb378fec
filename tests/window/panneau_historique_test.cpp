// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The history panel: the figures it shows are those of the file, it opens
// and closes, and it follows the window's size.

#include <QAccessible>
#include <QPushButton>

#include "files/historique.h"
#include "platform/qt/panneaux/panneau_historique.h"
#include "table_essai.h"

// Without a file it shows dashes, and no key of the table acts behind it.
// Then its figures are those of the file, which the deal played has
// joined; in a window of another shape it keeps the middle.
TEST(PanneauHistorique, SesChiffresSontCeuxDuFichierEtRienDeLaTableNAgitDerrièreLui) {
  Table table;
  auto *panneau = table.fenêtre.findChild<PanneauHistorique *>("panneauHistorique");
  auto &f = table.t.Fenêtre;
  table.Touche(Qt::Key_F9);
  ASSERT_TRUE(panneau->isVisible());
  EXPECT_EQ(panneau->Figures().donnes, 0);
  EXPECT_EQ(panneau->Tableau()[1][2], "—");
  // JOUER's key does not deal behind the panel, nor Entrée press GO.
  table.Touche(Qt::Key_F2);
  table.Touche(Qt::Key_F6);
  EXPECT_TRUE(f.NouveauJeu.Enabled);
  EXPECT_TRUE(f.CartesJeu[39].Picture == f.CartesJeu[0].Picture) << "no deal was made";
  EXPECT_FALSE(table.dossier.Existe("Tirage"));
  EXPECT_TRUE(panneau->isVisible());
  // Nor can Tab reach a button behind it, or Espace press the one that had
  // the keyboard as it opened.
  table.Touche(Qt::Key_Tab);
  QTest::keyClick(table.fenêtre.focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(f.NouveauJeu.Enabled);
  table.Touche(Qt::Key_Escape);
  EXPECT_FALSE(panneau->isVisible());
  table.Touche(Qt::Key_Tab);
  ASSERT_EQ(table.fenêtre.focusWidget(), table.Vue(f.NouveauJeu));
  QTest::keyClick(table.fenêtre.focusWidget(), Qt::Key_F9);
  ASSERT_TRUE(panneau->isVisible());
  QTest::keyClick(table.fenêtre.focusWidget(), Qt::Key_Space);
  EXPECT_FALSE(table.dossier.Existe("Tirage")) << "JOUER was not pressed";
  QTest::keyClick(table.fenêtre.focusWidget(), Qt::Key_F9);
  EXPECT_FALSE(panneau->isVisible());
  // Closed, the table has its keys again.
  table.Touche(Qt::Key_F2);
  EXPECT_TRUE(table.dossier.Existe("Tirage"));
  table.dossier.Écrit("Historique", "2026-11-23 21:00:00;DEBUTANT;-5;21;-7;-9;-5;21;-7;-9\r\n"
                                    "ligne abîmée\r\n"
                                    "2026-11-23 21:05:00;EXPERT;18;-6;-6;-6;13;15;-13;-15\r\n"
                                    "2026-11-23 21:06:00;SCORES A 0\r\n"
                                    "2026-11-23 21:09:00;EXPERT;2;0;1;-3;2;0;1;-3\r\n");
  table.Touche(Qt::Key_Return);
  table.Touche(Qt::Key_F9);
  ASSERT_TRUE(panneau->isVisible());
  const historique::Figures chiffres = historique::Calcule(historique::Lit().entrées);
  const auto &tableau = panneau->Tableau();
  ASSERT_EQ(tableau.size(), 5u);
  for (int s = 0; s <= 3; ++s) {
    const auto &siège = chiffres.sièges[s];
    const auto &rangée = tableau[s + 1];
    EXPECT_EQ(rangée[0].toStdString(), f.JoueursLabel[s].Caption);
    EXPECT_EQ(QStringList({rangée[1], rangée[3], rangée[4], rangée[5]}),
              QStringList({QString::number(siège.donnes), QString::number(siège.meilleure),
                           QString::number(siège.pire), QString::number(table.t.Scores[s])}))
        << "seat " << s << ": the history ends on the table's score";
    EXPECT_DOUBLE_EQ(QString(rangée[2]).replace(',', '.').toDouble(),
                     std::round(siège.moyenne * 100) / 100)
        << s;
  }
  // A screen reader reads the same figures in words.
  QAccessibleInterface *lu = QAccessible::queryAccessibleInterface(panneau);
  EXPECT_EQ(lu->text(QAccessible::Name), "Historique des scores");
  EXPECT_TRUE(lu->text(QAccessible::Description)
                  .contains(tableau[4][0].trimmed() + " : donnes " + tableau[4][1] + ", moyenne " +
                            tableau[4][2]))
      << lu->text(QAccessible::Description).toStdString();

  table.fenêtre.setMinimumSize(0, 0);
  table.fenêtre.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  for (const QSize taille : {QSize(1600, 900), QSize(640, 600)}) {
    table.fenêtre.resize(taille);
    QCoreApplication::processEvents();
    const QRect r = panneau->geometry();
    EXPECT_TRUE(QRect(QPoint(0, 0), taille).contains(r)) << taille.width();
    EXPECT_LE((r.center() - QRect(QPoint(0, 0), taille).center()).manhattanLength(), 2);
    EXPECT_NEAR(double(r.width()) / r.height(), 4.0 / 3, 0.02);
    EXPECT_LT(panneau->BoutonFermer()->geometry().bottom(), r.height());
  }
  EXPECT_FALSE(panneau->grab().isNull());
  QTest::mouseClick(panneau->BoutonFermer(), Qt::LeftButton);
  EXPECT_FALSE(panneau->isVisible());
}

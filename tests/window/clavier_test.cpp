// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers

#include <QLineEdit>
#include <array>
#include <set>

#include "platform/qt/fenetre/clavier.h"
#include "table_essai.h"

// The frame shows at the first arrow, walks the rows, marks nothing picked
// up, and two Espace swap two places as two clicks would.
TEST(Clavier, UnÉchangeAuClavierVautUnÉchangeÀLaSouris) {
  Table table;
  auto &f = table.t.Fenêtre;
  Clavier &clavier = table.fenêtre.Touches();
  table.Touche(Qt::Key_Right);
  EXPECT_FALSE(clavier.CadreVisible()) << "no frame on cards face down";
  table.Touche(Qt::Key_F2);
  ASSERT_TRUE(f.Joue.Visible);
  // Each arrow and where the frame then stands: the first only shows it, Up
  // keeps the column into levels 2 and 3, the edges hold.
  const std::pair<Qt::Key, int> pas[] = {
      {Qt::Key_Right, 0}, {Qt::Key_Right, 1}, {Qt::Key_Right, 2},  {Qt::Key_Up, 7},
      {Qt::Key_Up, 11},   {Qt::Key_Up, 11},   {Qt::Key_Right, 12}, {Qt::Key_Right, 12}};
  for (const auto &[touche, place] : pas) {
    table.Touche(touche);
    EXPECT_EQ(clavier.PlaceDuCadre(), place) << touche;
  }
  const auto avant = std::to_array(table.t.Mains[4]);
  table.Touche(Qt::Key_Space);
  EXPECT_EQ(table.t.CarteLevée, 1);
  for (const Qt::Key touche :
       {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left})
    table.Touche(touche);
  // The frame goes round the strip of the card that shows, not under the
  // next card where it would seem to mark that one, and its foot stays in
  // the panel that cuts the front row.
  QWidget *cadre = nullptr;
  for (QWidget *w : table.Vue(f.SSJoueurFond[3])->findChildren<QWidget *>())
    if (w->property("tnHorsEchelle").toBool())
      cadre = w;
  ASSERT_NE(cadre, nullptr);
  EXPECT_EQ(cadre->geometry(), QRect(48, 152, 24, 76));
  table.Touche(Qt::Key_Space);
  EXPECT_EQ(table.t.CarteLevée, 0);

  // The exchange is the one two clicks make.
  auto attendu = avant;
  std::swap(attendu[2], attendu[12]);
  EXPECT_EQ(std::to_array(table.t.Mains[4]), attendu);
  table.Clic(f.CartesJeu[39 + 12]);
  table.Clic(f.CartesJeu[39 + 2]);
  EXPECT_EQ(std::to_array(table.t.Mains[4]), avant) << "and the mouse swaps them back";
  EXPECT_FALSE(clavier.CadreVisible()) << "a click hides the frame";

  // Once the deal is over Espace does nothing, as a click would.
  table.Touche(Qt::Key_Return);
  ASSERT_TRUE(f.VoirOrdi[0].Visible);
  table.Touche(Qt::Key_Space);
  table.Touche(Qt::Key_Space);
  EXPECT_EQ(table.t.CarteLevée, 0);
  EXPECT_FALSE(clavier.CadreVisible()) << "no frame on cards that are not live";
}

// Tab and Maj+Tab walk the live buttons as the menu reads, top to bottom and
// then the pictures, skipping what is hidden or off; Espace presses the one
// reached. The keys are named as on a French keyboard and as the README
// names them; F11 puts the table full screen and back, and Échap keeps its
// one meaning there.
TEST(Clavier, TabParcourtLesBoutonsActifs) {
  Table table;
  auto &f = table.t.Fenêtre;
  EXPECT_EQ(table.Vue(f.Arrêt)->toolTip(), "STOP — touche Échap");
  EXPECT_EQ(table.Vue(f.Fin)->toolTip(), "QUITTER — touche Ctrl+Q");
  EXPECT_TRUE(table.Vue(f.TempsShape)->toolTip().contains("Entrée"));
  const Contrôle *ordre[] = {&f.NouveauJeu, &f.Scoresà0, &f.NomsJoueurs, &f.Mode,
                             &f.Rejoue,     &f.Arrêt,    &f.Fin,         &f.VoirRègles[0]};
  for (const Contrôle *c : ordre) {
    table.Touche(Qt::Key_Tab);
    EXPECT_EQ(table.fenêtre.focusWidget(), table.Vue(*c)) << c->Nom;
  }
  for (int i = 6; i >= 0; --i) {
    table.Touche(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(table.fenêtre.focusWidget(), table.Vue(*ordre[i])) << ordre[i]->Nom;
  }
  QTest::keyClick(table.fenêtre.focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(f.Joue.Visible) << "Espace pressed JOUER";
  std::set<QWidget *> atteints;
  for (int i = 0; i < 20; ++i) {
    table.Touche(Qt::Key_Tab);
    atteints.insert(table.fenêtre.focusWidget());
  }
  for (const Contrôle *live : {&f.Joue, &f.Arrêt, &f.VoirRègles[0], &f.Fin})
    EXPECT_TRUE(atteints.count(table.Vue(*live))) << live->Nom;
  for (const Contrôle *off : {&f.NouveauJeu, &f.Rejoue, &f.VoirOrdi[0], &f.EnregistreNoms})
    EXPECT_FALSE(atteints.count(table.Vue(*off))) << off->Nom;
  table.Touche(Qt::Key_F11);
  table.Touche(Qt::Key_Escape);
  EXPECT_TRUE(table.fenêtre.windowState() & Qt::WindowFullScreen);
  EXPECT_FALSE(f.Arrêt.Enabled) << "Échap pressed STOP";
  table.Touche(Qt::Key_F11);
  EXPECT_FALSE(table.fenêtre.windowState() & Qt::WindowFullScreen);
}

// Enter in a name box was GO: in the state Waiting, STOP pressed, it showed
// the deal down instead of keeping the name. In the panel Entrée keeps the
// names, Échap leaves them, and no key of the table acts behind it; the
// keyboard comes to the first box and goes back to the table.
TEST(Clavier, EntréeDansLePanneauDesNomsEnregistreSansJouer) {
  Table table;
  auto &f = table.t.Fenêtre;
  table.Touche(Qt::Key_F2);
  table.Touche(Qt::Key_Escape);
  ASSERT_TRUE(f.Joue.Visible && f.NouveauJeu.Enabled) << "Waiting, STOP pressed";
  const std::string scores = table.dossier.Lit("Scores");
  table.Clic(f.NomsJoueurs);
  auto *saisie = table.Vue(f.NomsJoueursText[3])->findChild<QLineEdit *>();
  QTest::mouseClick(saisie, Qt::LeftButton);
  saisie->selectAll();
  // A quote, a letter the file cannot carry and a pasted line break would
  // break the file's line: the box refuses them.
  QTest::keyClicks(saisie, "Zo");
  for (const QString lettre : {"é", "\"", "\u0416"})
    QTest::sendKeyEvent(QTest::KeyAction::Click, saisie, Qt::Key_unknown, lettre, Qt::NoModifier);
  saisie->insert("\r\n");
  saisie->insert("a\tb");
  for (const Qt::Key touche : {Qt::Key_F2, Qt::Key_F6, Qt::Key_F1, Qt::Key_Space})
    QTest::keyClick(saisie, touche);
  EXPECT_EQ(f.NomsJoueursText[3].Text, "Zoé ");
  EXPECT_TRUE(f.NomsJoueursSS.Visible && !f.RèglesText.Visible) << "F1 waits for the panel";
  // Tab from the last box reaches ENREGISTRE, where Entrée still keeps.
  QTest::keyClick(saisie, Qt::Key_Tab);
  ASSERT_EQ(table.fenêtre.focusWidget(), table.Vue(f.EnregistreNoms));
  table.Touche(Qt::Key_F1);
  table.Touche(Qt::Key_Return);
  EXPECT_FALSE(f.NomsJoueursSS.Visible || f.RèglesText.Visible);
  EXPECT_EQ(f.JoueursLabel[3].Caption, "Zoé ");
  EXPECT_NE(table.dossier.Lit("Noms").find("\"Zo\xE9 \"\r\n"), std::string::npos);
  EXPECT_TRUE(f.Joue.Visible) << "GO was not pressed";
  EXPECT_EQ(table.dossier.Lit("Scores"), scores);

  // F5 opens the panel with the keyboard in the first box; Échap gives it back.
  const std::string premier = f.JoueursLabel[0].Caption;
  table.Touche(Qt::Key_F5);
  saisie = table.Vue(f.NomsJoueursText[0])->findChild<QLineEdit *>();
  ASSERT_EQ(table.fenêtre.focusWidget(), saisie);
  QTest::keyClick(saisie, Qt::Key_Backspace);
  QTest::keyClick(saisie, Qt::Key_Escape);
  EXPECT_FALSE(f.NomsJoueursSS.Visible) << "Échap is ANNULE";
  EXPECT_EQ(f.JoueursLabel[0].Caption, premier);
  EXPECT_EQ(table.fenêtre.focusWidget(), &table.fenêtre);
  EXPECT_TRUE(f.Arrêt.Enabled) << "ANNULE gives STOP back, Échap did not press it";
  EXPECT_TRUE(f.Joue.Visible);
  // With the panel shut the table's keys work again.
  table.Touche(Qt::Key_Return);
  EXPECT_TRUE(f.VoirOrdi[0].Visible);
}

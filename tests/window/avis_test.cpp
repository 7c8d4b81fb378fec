// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The connection notice as it is drawn, and the display-mode dialog.

#include <QApplication>
#include <QImage>
#include <QPushButton>
#include <QTimer>

#include "platform/qt/bureau/affichage.h"
#include "platform/qt/panneaux/dialogue_resolution.h"
#include "table_essai.h"

namespace {

// The columns of an image where some pixel is bright: where text is drawn.
std::pair<int, int> ÉtendueDuTexte(const QImage &image) {
  int gauche = image.width(), droite = -1;
  for (int x = 0; x < image.width(); ++x)
    for (int y = 0; y < image.height(); ++y)
      if (qGray(image.pixel(x, y)) > 128) {
        gauche = std::min(gauche, x);
        droite = std::max(droite, x);
      }
  return {gauche, droite};
}

} // namespace

TEST(Avis, LeMessageHorsLigneTientEntierDansSonÉtiquette) {
  Table table;
  table.t.Fenêtre.NonConnectéPic.Visible = true;
  table.fenêtre.Synchronise();
  QWidget *étiquette = table.Vue(table.t.Fenêtre.NonConnectéLbl);
  const QImage image = étiquette->grab().toImage().scaled(étiquette->size());
  const auto [gauche, droite] = ÉtendueDuTexte(image);
  EXPECT_GE(gauche, 4) << "the first letters are cut off";
  EXPECT_LE(droite, étiquette->width() - 5) << "the last letters are cut off";
  EXPECT_GT(droite - gauche, 300) << "the notice is drawn";
}

// The display-mode dialog waits for its answer; agreeing lets the mode change.
TEST(Avis, LeDialogueDuModeDAffichageAttendLAccordDuJoueur) {
#ifdef TN_SANS_CHROMIUM
  GTEST_SKIP() << "the dialog's logo starts the browser, which is not ours to check here";
#endif
  QWidget *vu = nullptr;
  QTimer::singleShot(0, [&] {
    if ((vu = QApplication::activeModalWidget()))
      for (QPushButton *b : vu->findChildren<QPushButton *>())
        if (b->text() == "Je suis d'accord")
          QTest::mouseClick(b, Qt::LeftButton);
  });
  EXPECT_TRUE(DemandeAccordRésolution());
  EXPECT_NE(vu, nullptr) << "the dialog is modal";
}

// A screen too low where no 1024 x 768 mode can be set (not X11, or no such
// mode): no dialog promises a change, the session goes on.
TEST(Avis, SansModeÀRéglerAucunDialogue) {
  if (ModeRéglable(1024, 768))
    GTEST_SKIP() << "this screen can be set to 1024 x 768";
  bool dialogue = false;
  QTimer::singleShot(0, [&] {
    if (QWidget *vu = QApplication::activeModalWidget())
      dialogue = vu->close();
  });
  EXPECT_TRUE(PlateformeQt().DemandeChangementRésolution());
  EXPECT_FALSE(dialogue);
}

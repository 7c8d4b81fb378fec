// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers

#include <QImage>
#include <QScreen>
#include <QTextBrowser>
#include <cmath>
#include <tuple>

#include "platform/qt/bureau/reglages.h"
#include "platform/qt/fenetre/images.h"
#include "table_essai.h"

namespace {

// Where the middle of a control stands in the window at scale `s`, worked
// out from the design alone: the table is centred, every twip is s / 15 px.
QPoint Milieu(const Table &table, const Contrôle &c, double s) {
  double x = c.Width / 2.0, y = c.Height / 2.0;
  for (const Contrôle *p = &c; p; p = p->Parent) {
    x += p->Left;
    y += p->Top;
  }
  const QPoint coin = table.fenêtre.Fond()->pos();
  return coin + QPoint(static_cast<int>(x * s / 15), static_cast<int>(y * s / 15));
}

// The window brought to 1024 x 768 and averaged over blocks of 32 x 32.
QImage Blocs(QWidget &fenêtre) {
  return fenêtre.grab()
      .toImage()
      .convertToFormat(QImage::Format_RGB32)
      .scaled(1024, 768, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .scaled(32, 24, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

// Every control follows one factor, the advert pages and the notice's logo
// included (their text too): the table at 2048 x 1536 brought back to
// 1024 x 768 is the table at 1024 x 768, region by region.
TEST(Échelle, LaTableGrandiEnEntierAuMilieuDuNoir) {
  const int refusées = PagesWeb::Refusées();
  Table table(true);
  auto &f = table.t.Fenêtre;
  f.EtoilesTimer.Enabled = false; // the stars hold still between the shots
  f.NonConnectéPic.Visible = true;
  table.plateforme.Navigue(VueWeb::LogoWeb, "logomdc200.htm");
  table.fenêtre.Synchronise();
  ASSERT_TRUE(QTest::qWaitFor([&] { return table.plateforme.pages->Vue(VueWeb::LogoWeb); }, 9000));
  const QImage petit = Blocs(table.fenêtre);
  table.Redimensionne({2048, 1536});
  EXPECT_EQ(table.fenêtre.Échelle(), 2.0);
  // The game's pages, each in its panel, whole, taking no event, nothing of
  // theirs refused.
  const std::tuple<VueWeb, const Contrôle *, QRect, const char *> pages[] = {
      {VueWeb::Pub0Web, &f.Pub0Pic, QRect(0, 28, 1632, 314), "Bonne partie !"},
      {VueWeb::Pub1Web, &f.Pub1Pic, QRect(38, 0, 448, 1574), "MAINS SPÉCIALES"},
      {VueWeb::LogoWeb, &f.LogoFondPic, QRect(0, 0, 452, 120), "Trois Niveaux"}};
  for (const auto &[nom, panneau, géométrie, texte] : pages) {
    QWidget *vue = table.plateforme.pages->Vue(nom);
    ASSERT_NE(vue, nullptr) << texte;
    EXPECT_EQ(vue->parentWidget(), table.Vue(*panneau));
    EXPECT_EQ(vue->geometry(), géométrie);
    EXPECT_EQ(vue->property("zoomFactor"), 2.0);
    EXPECT_TRUE(vue->testAttribute(Qt::WA_TransparentForMouseEvents));
    if (auto *page = qobject_cast<QTextBrowser *>(vue)) { // the web engine's come later
      EXPECT_TRUE(page->toPlainText().contains(texte)) << texte;
      EXPECT_LE(page->document()->size().height(), géométrie.height() / 2 + 0.5) << texte;
    }
  }
  EXPECT_EQ(PagesWeb::Refusées(), refusées);
#ifndef TN_WEBENGINE
  const QImage grand = Blocs(table.fenêtre);
  for (int y = 0; y < 24; ++y)
    for (int x = 0; x < 32; ++x) {
      const QColor a = petit.pixelColor(x, y), b = grand.pixelColor(x, y);
      EXPECT_LE(std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                          std::abs(a.blue() - b.blue())}),
                24)
          << "block at " << 32 * x << ", " << 32 * y;
    }
#endif
  // Fonts grow with the rest: a label that fits its text is twice as wide.
  const int large = table.Vue(f.JoueursLabel[3])->width();

  // A wide screen: the table takes the full height and black bands the sides.
  table.Redimensionne({1920, 1080});
  const double s = 1080.0 / 768;
  EXPECT_DOUBLE_EQ(table.fenêtre.Échelle(), s);
  EXPECT_EQ(table.fenêtre.Fond()->geometry(), QRect(240, 0, 1440, 1080));
  // Every control stands at its design place to the nearest pixel.
  table.fenêtre.PourChaqueVue([&](const Contrôle &c, QWidget *vue) {
    const double écart =
        std::max(std::abs(vue->x() - c.Left * s / 15), std::abs(vue->y() - c.Top * s / 15));
    EXPECT_LE(c.AjusteAuTexte ? 0 : écart, 0.5) << c.Nom;
  });
  const QImage écran = table.fenêtre.grab().toImage();
  EXPECT_EQ(écran.pixelColor(QPoint(100, 540) * écran.devicePixelRatio()), QColor(Qt::black));
  EXPECT_EQ(écran.pixelColor(QPoint(1820, 540) * écran.devicePixelRatio()), QColor(Qt::black));

  table.Redimensionne({1024, 768});
  EXPECT_NEAR(large, 2 * table.Vue(f.JoueursLabel[3])->width(), 4);
}

// The clicks go through the window system to whatever lies under them, at
// places worked out from the design: JOUER deals, then two cards swap. At
// twice the size a card is the picture drawn at twice the size, not the
// small one stretched, and the stars fall at grown places, grown themselves;
// pictures that look alike (6 and 9, ♦ and ♥) differ.
TEST(Échelle, LesClicsEtLesDessinsSuiventLaTaille) {
  Table table;
  auto &f = table.t.Fenêtre;
  for (const QSize taille : {QSize(1600, 1000), QSize(800, 600)}) {
    table.Redimensionne(taille);
    const double s = table.fenêtre.Échelle();
    QWindow *fenêtre = table.fenêtre.windowHandle();
    QTest::mouseClick(fenêtre, Qt::LeftButton, {}, Milieu(table, f.NouveauJeu, s));
    ASSERT_TRUE(f.Joue.Visible) << "JOUER was pressed at " << taille.width();
    const uint8_t a = table.t.Mains[4][2], b = table.t.Mains[4][11];
    // Each card shows its left strip beside the next place, and a card of
    // level 3 its upper part above the row in front.
    const QPoint gauche(static_cast<int>(30 * s), 0);
    const QPoint haut3 = Milieu(table, f.CartesJeu[39 + 11], s) - gauche - QPoint(0, 40 * s);
    QTest::mouseClick(fenêtre, Qt::LeftButton, {}, Milieu(table, f.CartesJeu[39 + 2], s) - gauche);
    EXPECT_EQ(table.t.EmplacementLevé, 39 + 2);
    QTest::mouseClick(fenêtre, Qt::LeftButton, {}, haut3);
    EXPECT_EQ(table.t.Mains[4][2], b);
    EXPECT_EQ(table.t.Mains[4][11], a);
    QTest::mouseClick(fenêtre, Qt::LeftButton, {}, Milieu(table, f.Joue, s));
    EXPECT_FALSE(f.Joue.Visible) << "GO was pressed at " << taille.width();
  }
  table.Redimensionne({2048, 1536});
  QWidget *fond = table.fenêtre.Fond();
  const qreal ratio = fond->devicePixelRatioF();
  // The stars are drawn at random: wait for a large one clear of the panels.
  EXPECT_TRUE(QTest::qWaitFor([&] {
    const QImage image = fond->grab().toImage();
    int vues = 0;
    for (int i = 1; i <= 50; ++i) {
      const QPoint centre(static_cast<int>(table.t.EtoileX[i] * 2 / 15),
                          static_cast<int>(table.t.EtoileY[i] * 2 / 15));
      if (table.t.EtoileRayon[i] < 8 || fond->childAt(centre))
        continue; // too small to hit one pixel for sure, or under a panel
      ++vues;
      EXPECT_GT(image.pixelColor(centre * ratio).lightness(), 128) << "star " << i;
    }
    return vues > 0;
  }));

  table.Clic(f.NouveauJeu);
  QWidget *vue = table.Vue(f.CartesJeu[39]);
  ASSERT_EQ(vue->size(), QSize(180, 270));
  const QRect dedans(16 * ratio, 16 * ratio, 148 * ratio, 238 * ratio);
  const QImage montré = vue->grab().toImage().convertToFormat(QImage::Format_RGB32);
  const QImage attendu =
      ImageBrute(table.t.Mains[4][0], QSize(180, 270), ratio).convertToFormat(QImage::Format_RGB32);
  EXPECT_TRUE(montré.copy(dedans) == attendu.copy(dedans));
  EXPECT_NE(ImageBrute(4, QSize(90, 135), 1), ImageBrute(7, QSize(90, 135), 1)) << "6 and 9";
  EXPECT_NE(ImageBrute(13, QSize(90, 135), 1), ImageBrute(26, QSize(90, 135), 1)) << "♦ and ♥";
}

// The player's size comes back; a saved size cut short, or too small to
// play in, gives the table's own size, fitted to the screen's free area.
TEST(Échelle, LaFenêtreRouvreÀLaTailleOùLeJoueurLAQuittéeSiElleTient) {
  {
    Table table;
    table.fenêtre.RetrouveTaille();
    table.Redimensionne(QSize(700, 525));
  } // the window goes as at the end of a session, and keeps its size
  Table table;
  EXPECT_EQ(table.fenêtre.size(), QSize(1024, 768)) << "the design until the player's size is read";
  table.fenêtre.RetrouveTaille();
  EXPECT_EQ(table.fenêtre.size(), QSize(700, 525));
  EXPECT_DOUBLE_EQ(table.fenêtre.Échelle(), 525 / 768.0);

  RéglagesDuJoueur()->remove("fenetre/geometrie");
  table.fenêtre.RetrouveTaille();
  const QSize dessin = table.fenêtre.size();
  EXPECT_TRUE(table.fenêtre.screen()->availableGeometry().contains(table.fenêtre.frameGeometry()));
  for (const QByteArray &géométrie :
       {table.fenêtre.saveGeometry(), table.fenêtre.saveGeometry().left(10)}) {
    RéglagesDuJoueur()->setValue("fenetre/geometrie", géométrie);
    table.fenêtre.resize(table.fenêtre.minimumSize());
    table.fenêtre.RetrouveTaille();
    EXPECT_EQ(table.fenêtre.size(), dessin);
  }
  RéglagesDuJoueur()->remove("fenetre/geometrie");
}

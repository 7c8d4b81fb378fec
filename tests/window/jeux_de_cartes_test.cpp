// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// Card decks: every installed deck draws, a broken one leaves the game's own,
// F8 puts the chosen deck on the table and the choice outlives the session.

#include <QDir>
#include <QLabel>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>

#include "platform/qt/bureau/reglages.h"
#include "platform/qt/fenetre/images.h"
#include "platform/qt/fenetre/vue_controle.h"
#include "platform/qt/jeux/choix_du_jeu.h"
#include "platform/qt/jeux/jeux_de_cartes.h"
#include "table_essai.h"

namespace {

QStringList RacinesDuBureau() {
  return QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, "carddecks",
                                   QStandardPaths::LocateDirectory);
}

// Settings of the tests' own, in a folder of their own: a player's chosen
// deck must not change what the window tests see.
class RéglagesDEssai : public ::testing::Environment {
public:
  void SetUp() override {
    QCoreApplication::setOrganizationName("TroisNiveauxEssais");
    qputenv("XDG_CONFIG_HOME", dossier.path().toUtf8());
    RéglagesDuJoueur()->clear();
  }
  QTemporaryDir dossier;
};
[[maybe_unused]] auto *const réglages = ::testing::AddGlobalTestEnvironment(new RéglagesDEssai);

// The colour that the test decks give a card: one per code.
QColor Teinte(int code) { return QColor::fromHsv((code * 37) % 360, 200, 60 + code * 3); }

// A deck folder: its index, naming `fichier`, and that file when given.
void ÉcritJeu(const QDir &racine, const QString &dossier, const QString &nomFr,
              const QByteArray &svg, const QString &fichier = "jeu.svg") {
  racine.mkpath(dossier);
  const QDir d(racine.filePath(dossier));
  QFile index(d.filePath("index.desktop"));
  EXPECT_TRUE(index.open(QIODevice::WriteOnly));
  index.write("[KDE Backdeck]\nName=Test " + dossier.toUtf8() + "\nName[fr]=" + nomFr.toUtf8() +
              "\nSVG=" + fichier.toUtf8() + "\n\n[Autre]\nName=ignored\n");
  QFile contenu(d.filePath(fichier));
  if (!svg.isEmpty() && contenu.open(QIODevice::WriteOnly))
    contenu.write(svg);
}

// A deck with one plain rectangle per element, of the card's own colour,
// narrower than the game's slots; no jokers, and no aces when asked.
QByteArray Svg(bool sansAs = false) {
  QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='6000' height='150'>";
  for (int code = 0; code <= 54; ++code)
    if (code != 52 && code != 53 && !(sansAs && code % 13 == 12))
      svg += QString("<rect id='%1' x='%2' y='0' width='60' height='150' fill='%3'/>")
                 .arg(ÉlémentDeCarte(code))
                 .arg(code * 110)
                 .arg(Teinte(code).name())
                 .toUtf8();
  return svg + "</svg>";
}

// Three decks: a whole one, one that is not SVG, one without its aces; and
// a deck file outside its folder, which is no deck.
struct JeuxDEssai {
  QTemporaryDir racine;
  JeuxDEssai() {
    const QDir d(racine.path());
    ÉcritJeu(d, "svg-bon", "Bon jeu", Svg());
    ÉcritJeu(d, "svg-casse", "Jeu cassé", "pas du SVG");
    ÉcritJeu(d, "svg-incomplet", "Incomplet", Svg(true));
    ÉcritJeu(d, "svg-dehors", "Dehors", {}, "../svg-bon/jeu.svg");
    jeux::DéfinitRacines({racine.path()});
    jeux::Choisit(0);
  }
  ~JeuxDEssai() {
    jeux::Choisit(0);
    jeux::AttendsLeRendu();
    jeux::DéfinitRacines(RacinesDuBureau());
    RéglagesDuJoueur()->clear();
  }
  int Numéro(const QString &id) const {
    for (std::size_t n = 0; n < jeux::Installés().size(); ++n)
      if (jeux::Installés()[n].id == id)
        return static_cast<int>(n) + 1;
    return 0;
  }
};

QColor MilieuDe(Table &table, const Contrôle &c) { return table.Pixel(c, QPoint(45, 67)); }

bool Proches(const QColor &a, const QColor &b) {
  return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                   std::abs(a.blue() - b.blue())}) <= 2;
}

} // namespace

TEST(JeuxDeCartes, ChaqueJeuInstalléDessineSesCinquanteDeuxCartesEtSonDos) {
  jeux::DéfinitRacines(RacinesDuBureau());
  const auto &installés = jeux::Installés();
  if (installés.empty())
    GTEST_SKIP() << "no SVG card deck installed (Debian: kdegames-card-data-kf5)";
  for (const JeuDeCartes &jeu : installés) {
    SCOPED_TRACE(jeu.id.toStdString());
    EXPECT_FALSE(jeu.nom.isEmpty());
    const auto images = RendJeu(jeu.fichier, QSize(90, 135), 1);
    ASSERT_TRUE(images.has_value());
    QSet<QByteArray> différentes;
    for (int code = 0; code <= 54; ++code) {
      if (code == 52 || code == 53)
        continue; // the jokers are the game's own
      // Something is drawn, and not in one colour.
      const QImage &image = (*images)[code];
      QSet<QRgb> couleurs;
      for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3)
          couleurs.insert(image.pixel(x, y));
      EXPECT_GT(couleurs.size(), 2) << code;
      différentes.insert(
          QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(différentes.size(), 53) << "the faces and the back differ from one another";
  }
}

TEST(JeuxDeCartes, UnJeuIllisibleOuIncompletLaisseLeJeuDuProgramme) {
  JeuxDEssai essai;
  ASSERT_EQ(jeux::Installés().size(), 3u);
  for (const char *id : {"svg-casse", "svg-incomplet"}) {
    std::optional<bool> réponse;
    jeux::Choisit(essai.Numéro(id), [&](bool réussi) { réponse = réussi; });
    jeux::AttendsLeRendu();
    EXPECT_EQ(réponse, false) << id;
    EXPECT_EQ(jeux::Choisi(), 0) << id;
    EXPECT_TRUE(jeux::Image(0, QSize(90, 135), 1).isNull()) << id;
  }
  // The whole deck draws (on the table, below); its missing jokers are the game's own.
  jeux::Choisit(essai.Numéro("svg-bon"));
  jeux::AttendsLeRendu();
  EXPECT_TRUE(jeux::Image(52, QSize(90, 135), 1).isNull());
  // A new size shows the nearest one stretched at once, then its own.
  EXPECT_FALSE(jeux::Image(7, QSize(135, 203), 1).isNull());
  jeux::AttendsLeRendu();
  EXPECT_EQ(jeux::Image(7, QSize(135, 203), 2).size(), QSize(270, 406));
  jeux::AttendsLeRendu();
  // A window dragged through many sizes: those it passed by while the
  // thread was busy are not rendered, only the one it stops at.
  int rendus = 0;
  jeux::QuandNouvellesImages([&rendus] { ++rendus; });
  for (int n = 1; n <= 40; ++n)
    jeux::Image(7, QSize(90 + 2 * n, 135 + 3 * n), 1);
  jeux::AttendsLeRendu();
  EXPECT_LE(rendus, 2);
  EXPECT_TRUE(Proches(jeux::Image(7, QSize(170, 255), 1).toImage().pixelColor(85, 127), Teinte(7)));
  jeux::QuandNouvellesImages({});
  // The deck's file gone, the next size fails and the game's own deck returns.
  ASSERT_TRUE(QFile::remove(jeux::Installés()[essai.Numéro("svg-bon") - 1].fichier));
  jeux::Image(7, QSize(60, 90), 1);
  jeux::AttendsLeRendu();
  EXPECT_EQ(jeux::Choisi(), 0);
  EXPECT_TRUE(jeux::Image(7, QSize(90, 135), 1).isNull());
}

TEST(JeuxDeCartes, F8MetLeJeuSurLaTableEtLeChoixResteDUneSessionÀLAutre) {
  JeuxDEssai essai;
  const int bon = essai.Numéro("svg-bon");
  {
    Table table;
    auto &f = table.t.Fenêtre;
    table.t.MontreCarte(39, 30);
    table.fenêtre.Synchronise();
    // F8 as many times as it takes to reach the good deck; the broken ones
    // on the way fall back on the game's own deck.
    for (int n = 1; n <= bon; ++n) {
      JeuSuivant(&table.fenêtre);
      EXPECT_TRUE(ÉtiquetteDuJeu(&table.fenêtre)->isVisible());
      jeux::AttendsLeRendu();
    }
    EXPECT_EQ(ÉtiquetteDuJeu(&table.fenêtre)->text(), "Bon jeu");
    EXPECT_EQ(jeux::Choisi(), bon);
    EXPECT_TRUE(Proches(MilieuDe(table, f.CartesJeu[39]), Teinte(30)));
    EXPECT_TRUE(Proches(MilieuDe(table, f.CartesJeu[0]), Teinte(54)));
    // Beside the narrow cards shows the seat's colour, never what was on
    // screen there before (the history panel, just closed).
    for (int fois = 0; fois < 2; ++fois) {
      table.Touche(Qt::Key_F9);
      QTest::qWait(50);
    }
    const QImage écran = table.fenêtre.screen()->grabWindow(table.fenêtre.winId()).toImage();
    const QPoint marge = table.Vue(f.CartesJeu[10])->mapTo(&table.fenêtre, QPoint(4, 20));
    EXPECT_EQ(écran.pixelColor(marge * écran.devicePixelRatio()),
              Couleur(f.SSJoueurFond[0].BackColor, table.Vue(f.SSJoueurFond[0])->palette()));
  }
  EXPECT_EQ(RéglagesDuJoueur()->value("cartes/jeu").toString(), "svg-bon");
  jeux::Choisit(0);

  // The next session starts with it.
  Table table;
  jeux::AttendsLeRendu();
  EXPECT_EQ(jeux::Choisi(), bon);
  EXPECT_TRUE(Proches(MilieuDe(table, table.t.Fenêtre.CartesJeu[0]), Teinte(54)));
  // F8 past the last deck comes back to the game's own, which is remembered too.
  for (int n = bon; n <= static_cast<int>(jeux::Installés().size()); ++n) {
    JeuSuivant(&table.fenêtre);
    jeux::AttendsLeRendu();
  }
  EXPECT_EQ(jeux::Choisi(), 0);
  EXPECT_EQ(ÉtiquetteDuJeu(&table.fenêtre)->text(), "Jeu de TroisNiveaux");
  EXPECT_EQ(jeux::Retrouve(), 0);
  const QImage propre = ImageBrute(PasDeCarte, QSize(90, 135), 1);
  EXPECT_EQ(MilieuDe(table, table.t.Fenêtre.CartesJeu[0]), propre.pixelColor(45, 67));
}

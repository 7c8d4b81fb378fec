#include <gtest/gtest.h>

#include <QAccessible>

#include "platform/qt/fenetre/accessibilite.h"
#include "table_essai.h"

namespace {

QAccessibleInterface *Interface(Table &table, const Contrôle &c) {
  return QAccessible::queryAccessibleInterface(table.Vue(c));
}

QString Nom(Table &table, const Contrôle &c) {
  QAccessibleInterface *i = Interface(table, c);
  return i ? i->text(QAccessible::Name) : QString("(aucune interface)");
}

} // namespace

TEST(Accessibilité, LesCartesSeNommentEnFrançais) {
  EXPECT_EQ(NomDeCarte(0), "deux de trèfle");
  EXPECT_EQ(NomDeCarte(24), "roi de carreau");
  EXPECT_EQ(NomDeCarte(34), "dix de cœur");
  EXPECT_EQ(NomDeCarte(51), "as de pique");
  EXPECT_EQ(NomDeCarte(54), "");
}

// What a screen reader finds on the table, read back through QAccessible.
TEST(Accessibilité, LesContrôlesDonnentRôleEtNom) {
  Table table;
  auto &f = table.t.Fenêtre;
  QAccessibleInterface *jouer = Interface(table, f.NouveauJeu);
  ASSERT_NE(jouer, nullptr);
  EXPECT_EQ(jouer->role(), QAccessible::Button);
  EXPECT_EQ(jouer->text(QAccessible::Name), "JOUER");
  EXPECT_EQ(Nom(table, f.Arrêt), "STOP");
  EXPECT_EQ(Nom(table, f.VoirRègles[0]), "Règles du jeu");
  EXPECT_TRUE(Interface(table, f.Joue)->state().invisible);
  EXPECT_EQ(Interface(table, f.NiveauLabel[0])->role(), QAccessible::StaticText);
  EXPECT_EQ(Nom(table, f.NiveauLabel[0]), "NIVEAU 3");
  EXPECT_EQ(Nom(table, f.JoueursLabel[3]), "Bibi");
  EXPECT_EQ(Interface(table, f.TempsShape)->role(), QAccessible::ProgressBar);
  EXPECT_EQ(Nom(table, f.CartesJeu[39]), "carte cachée");
  EXPECT_TRUE(Interface(table, f.CartesJeu[39])->state().disabled);

  // A press through the interface is a press on the button.
  ASSERT_TRUE(jouer->actionInterface());
  jouer->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  ASSERT_TRUE(f.Joue.Visible);
  for (int k = 0; k <= 12; ++k) {
    const int niveau = k < 5 ? 1 : k < 10 ? 2 : 3;
    EXPECT_EQ(Nom(table, f.CartesJeu[39 + k]),
              NomDeCarte(table.t.Mains[4][k]) + ", niveau " + QString::number(niveau));
  }
  EXPECT_EQ(Nom(table, f.CartesJeu[0]), "carte cachée") << "the computer's cards are backs";
  // The name follows the card when two places swap.
  const QString premier = Nom(table, f.CartesJeu[39]);
  table.Clic(f.CartesJeu[39]);
  table.Clic(f.CartesJeu[51]);
  EXPECT_TRUE(Nom(table, f.CartesJeu[51]).startsWith(premier.section(',', 0, 0) + ", niveau 3"));
  table.Clic(f.Joue);
  EXPECT_NE(Nom(table, f.CartesJeu[0]), "carte cachée") << "all cards up after the showdown";
  EXPECT_NE(Nom(table, f.ScoreLabel[0]), "");
}

// What a reader must not offer: the OK under the book, a press on cards that
// only show, and the window as a bare filler.
TEST(Accessibilité, LeLecteurNeProposeQueCeQuiSeVoitEtAgit) {
  Table table;
  auto &f = table.t.Fenêtre;
  EXPECT_EQ(QAccessible::queryAccessibleInterface(table.Vue(f.NouveauJeu)->window())->role(),
            QAccessible::Window);
  EXPECT_TRUE(Interface(table, f.VoirRègles[1])->state().invisible);
  EXPECT_FALSE(Interface(table, f.VoirRègles[0])->state().invisible);
  table.Clic(f.VoirRègles[0]);
  EXPECT_FALSE(Interface(table, f.VoirRègles[1])->state().invisible);
  table.Clic(f.VoirRègles[1]);

  Interface(table, f.NouveauJeu)
      ->actionInterface()
      ->doAction(QAccessibleActionInterface::pressAction());
  const auto presse = [&](const Contrôle &c) {
    return Interface(table, c)->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction());
  };
  EXPECT_TRUE(presse(f.CartesJeu[39]));
  EXPECT_FALSE(presse(f.CartesJeu[0])) << "a computer's card answers no release";
  EXPECT_FALSE(presse(f.CartesJeu[52]));
}

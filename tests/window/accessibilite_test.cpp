// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers

#include <QAccessible>
#include <QCoreApplication>

#include "platform/qt/fenetre/accessibilite.h"
#include "platform/qt/fenetre/clavier.h"
#include "platform/qt/fenetre/vue_controle.h"
#include "table_essai.h"

namespace {

QAccessibleInterface *Interface(Table &table, const Contrôle &c) {
  return QAccessible::queryAccessibleInterface(table.Vue(c));
}

QString Nom(Table &table, const Contrôle &c) {
  QAccessibleInterface *i = Interface(table, c);
  return i ? i->text(QAccessible::Name) : QString("(aucune interface)");
}

// A reader's press: posted, so it acts only once the event loop has a turn.
void Presse(Table &table, const Contrôle &c) {
  Interface(table, c)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

QStringList NomsDesEnfants(QAccessibleInterface *parent) {
  QStringList noms;
  for (int i = 0; i < parent->childCount(); ++i) {
    EXPECT_EQ(parent->indexOfChild(parent->child(i)), i);
    noms << parent->child(i)->text(QAccessible::Name);
  }
  return noms;
}

} // namespace

// A whole deal as a reader follows it: cards named in French, the press
// returns before the search runs, GO takes the focus, then the result's
// sentence does; every number says whose it is. The tree follows the table,
// not the stacking: in a seat its name, its levels from the top (cards,
// class, payments), then its total and score. The keyboard frame is no
// object: its card has the focus. Not offered: the OK under the book, a
// press on cards that only show.
TEST(Accessibilité, UneDonneSeSuitÀLOreille) {
  EXPECT_EQ(QStringList({NomDeCarte(0), NomDeCarte(24), NomDeCarte(34), NomDeCarte(51)}),
            QStringList({"deux de trèfle", "roi de carreau", "dix de cœur", "as de pique"}));
  Table table;
  auto &f = table.t.Fenêtre;
  EXPECT_EQ(Nom(table, f.CartesJeu[39]), "carte cachée");
  EXPECT_TRUE(Interface(table, f.CartesJeu[39])->state().disabled);

  EXPECT_TRUE(Interface(table, f.VoirRègles[1])->state().invisible);
  EXPECT_FALSE(Interface(table, f.VoirRègles[0])->state().invisible);
  // The book opens, no page before the first, and F1 closes it with its OK.
  table.Clic(f.VoirRègles[0]);
  EXPECT_FALSE(Interface(table, f.VoirRègles[1])->state().invisible);
  EXPECT_EQ(table.Vue(f.TextScroll[0])->cursor().shape(), Qt::ForbiddenCursor);
  table.Touche(Qt::Key_F1);
  EXPECT_FALSE(table.Vue(f.RèglesText)->isVisible());
  Presse(table, f.NouveauJeu);
  EXPECT_FALSE(f.Joue.Visible || table.t.BalayageEnCours) << "the press waits for the loop";
  QCoreApplication::processEvents();
  ASSERT_TRUE(f.Joue.Visible);
  EXPECT_EQ(table.fenêtre.focusWidget(), table.Vue(f.Joue)) << "GO takes the focus";
  EXPECT_EQ(Nom(table, f.CartesJeu[0]), "carte cachée") << "the computer's cards are backs";
  // A card picked up is checked until it is laid down; the name follows the card.
  const QString premier = NomDeCarte(table.t.Mains[4][0]) + ", niveau 1";
  EXPECT_EQ(Nom(table, f.CartesJeu[39]), premier);
  table.Clic(f.CartesJeu[39]);
  EXPECT_TRUE(Interface(table, f.CartesJeu[39])->state().checked);
  EXPECT_EQ(Nom(table, f.CartesJeu[39]), premier + ", levée");
  table.Clic(f.CartesJeu[51]);
  EXPECT_FALSE(Interface(table, f.CartesJeu[39])->state().checked);
  EXPECT_TRUE(Nom(table, f.CartesJeu[51]).startsWith(premier.section(',', 0, 0) + ", niveau 3"));

  table.Touche(Qt::Key_Right);
  EXPECT_EQ(NomsDesEnfants(Interface(table, f.SSJoueur[3])),
            QStringList({"Bibi", "", "jeu de Bibi", "", "score de Bibi : 0"}));
  const QStringList jeu = NomsDesEnfants(Interface(table, f.SSJoueurFond[3]));
  ASSERT_EQ(jeu.size(), 13 + 3 + 3 + 1) << "the frame is not read";
  EXPECT_TRUE(jeu[0].endsWith("niveau 3") && jeu[5].endsWith("niveau 2"));
  EXPECT_EQ(jeu[4], "paiements de Bibi au niveau 3");

  EXPECT_TRUE(Interface(table, f.CartesJeu[39])->state().focused);
  table.Touche(Qt::Key_Right);
  EXPECT_FALSE(Interface(table, f.CartesJeu[39])->state().focused);
  EXPECT_TRUE(Interface(table, f.CartesJeu[40])->state().focused);
  table.Touche(Qt::Key_Space);
  EXPECT_TRUE(Interface(table, f.CartesJeu[40])->state().checked);
  const auto presse = [&](const Contrôle &c) {
    return Interface(table, c)->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction());
  };
  EXPECT_TRUE(presse(f.CartesJeu[39]));
  EXPECT_FALSE(presse(f.CartesJeu[0])) << "a computer's card answers no release";
  EXPECT_FALSE(presse(f.CartesJeu[52]));
  table.Touche(Qt::Key_Space);
  Presse(table, f.Joue);
  QCoreApplication::processEvents();
  QWidget *résumé = table.fenêtre.Lecteur().Résumé();
  ASSERT_EQ(table.fenêtre.focusWidget(), résumé);
  const QString phrase = QAccessible::queryAccessibleInterface(résumé)->text(QAccessible::Name);
  EXPECT_EQ(phrase, RésuméDeLaDonne(f));
  EXPECT_TRUE(phrase.contains(", score " + Texte(f.ScoreLabel[3].Caption) + "."));
  const std::pair<const Contrôle *, QString> nommés[] = {
      {&f.SSJoueur[2], "MégaBytes"},
      {&f.ScoreLabel[0], "score de MicroProc : "},
      {&f.TotalLabel[3], "total de la donne de Bibi : "},
      {&f.LabelPaie[22], "MégaBytes, niveau 2 contre GigaOctets : "},
      {&f.LabelPaie[27], "Bibi, niveau 1 contre MicroProc : "},
      {&f.EnchèreLabel[4], "GigaOctets, niveau 2 : "}};
  // A label left empty by the deal (a level of no class) says nothing.
  for (const auto &[c, début] : nommés)
    EXPECT_EQ(Nom(table, *c), c->genre == Genre::Étiquette && c->Caption.empty()
                                  ? QString()
                                  : début + Texte(c->Caption).simplified())
        << c->Nom;

  table.Clic(f.VoirOrdi[0]);
  EXPECT_EQ(table.fenêtre.focusWidget(), résumé);
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(résumé)
                  ->text(QAccessible::Name)
                  .startsWith("Solution de l'ordinateur pour Bibi. Niveau 3 : "));
  table.Clic(f.VoirOrdi[1]);
  table.Clic(f.VoirRègles[0]);
  EXPECT_EQ(table.fenêtre.focusWidget(), table.Vue(f.AfficheRègles)) << "the book is read";
  EXPECT_EQ(Nom(table, f.TextCombien), "page 1 sur 14");
  table.Clic(f.Rejoue);
  EXPECT_EQ(table.fenêtre.focusWidget(), résumé) << "a replay's result is said too";
  f.TempsShape.Left = -(f.TempsShape.Width - 15) / 4;
  EXPECT_EQ(Interface(table, f.TempsShape)->valueInterface()->currentValue().toInt(), 75);
}

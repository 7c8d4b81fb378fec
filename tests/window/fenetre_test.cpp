// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTimer>

#include "platform/qt/bureau/langue.h"
#include "platform/qt/bureau/messages.h"
#include "platform/qt/fenetre/accessibilite.h"
#include "platform/qt/fenetre/vue_controle.h"
#include "table_essai.h"

// A session as a player makes it, every step through the widgets, each of
// which stands shown or hidden, live or off, as its control: deals in both
// modes, the solution view, a replay, the names panel and the book. Enter
// does nothing while GO is hidden.
TEST(Fenêtre, UneSessionAuComplet) {
  Table table;
  auto &f = table.t.Fenêtre;
  EXPECT_EQ(table.Pixel(f.TempsFondSS, {255, 20}), QColor(0xFF, 0xC0, 0x80));
  table.Touche(Qt::Key_Return);
  EXPECT_FALSE(f.VoirOrdi[0].Visible);
  for (const Contrôle *c :
       {&f.NouveauJeu, &f.Joue, &f.VoirOrdi[0], &f.VoirOrdi[1], &f.Mode, &f.NouveauJeu, &f.Joue,
        &f.Rejoue, &f.Mode, &f.NomsJoueurs, &f.AnnuleNoms, &f.VoirRègles[0], &f.TextScroll[1],
        &f.VoirRègles[1], &f.NouveauJeu, &f.Joue}) {
    ASSERT_TRUE(table.Vue(*c)->isVisible() && table.Vue(*c)->isEnabled()) << c->Nom;
    table.Clic(*c);
    table.fenêtre.PourChaqueVue([&](const Contrôle &m, QWidget *vue) {
      EXPECT_TRUE(vue->isHidden() != m.Visible &&
                  vue->testAttribute(Qt::WA_ForceDisabled) != m.Enabled)
          << m.Nom << " after " << c->Nom;
    });
  }
}

// A deal played flat out, then replayed at its pace (32 s in DEBUTANT); the
// bar and Entrée hurry nothing outside a search. In the middle of it STOP
// (clicked or by Échap) cuts it short and the table waits; Entrée, a click
// on the bar or a reader's action on it hurry it to the same rows and its
// showdown; QUITTER or the close box unwind the nested loops and the
// application's loop ends with status 0. The window answers all along.
TEST(Fenêtre, UnBalayageRythméSArrêteOuFinitAussitôt) {
  enum Façon { Stop, Échap, Entrée, Barre, Lecteur, Quitter, Croix };
  for (const Façon façon : {Stop, Échap, Entrée, Barre, Lecteur, Quitter, Croix}) {
    Table table;
    auto &f = table.t.Fenêtre;
    table.Clic(f.NouveauJeu);
    table.Clic(f.Joue);
    const auto rangements = std::to_array(table.t.MeilleurRangement);
    ASSERT_GT(rangements[3], 0) << "DEBUTANT searches the human's cards too";
    table.Clic(f.TempsFondSS);
    table.Touche(Qt::Key_Return);
    EXPECT_FALSE(table.plateforme.pressé);
    table.plateforme.duréeParSiège = 8;
    QTimer::singleShot(600, [&] {
      EXPECT_TRUE(table.t.BalayageEnCours) << "still paced after half a second";
      EXPECT_TRUE(f.Arrêt.Enabled && !f.NouveauJeu.Enabled);
      if (façon == Stop)
        table.Clic(f.Arrêt);
      else if (façon == Échap || façon == Entrée)
        table.Touche(façon == Échap ? Qt::Key_Escape : Qt::Key_Return);
      else if (façon == Barre)
        table.Clic(f.TempsFondSS);
      else if (façon == Lecteur)
        QAccessible::queryAccessibleInterface(table.Vue(f.TempsShape))
            ->actionInterface()
            ->doAction("hurry");
      else
        façon == Croix ? static_cast<void>(table.fenêtre.close()) : table.Clic(f.Fin);
    });
    QTimer::singleShot(0, [&] {
      table.Clic(f.Rejoue);
      if (façon < Quitter)
        QCoreApplication::quit();
    });
    QElapsedTimer chrono;
    chrono.start();
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_LT(chrono.elapsed(), 3000) << façon;
    EXPECT_LT(table.plateforme.plusLongSansÉvénements, 100);
    if (façon >= Quitter)
      EXPECT_TRUE(table.t.SessionTerminée && table.plateforme.quitté) << façon;
    else if (façon >= Entrée)
      EXPECT_TRUE(table.plateforme.pressé && f.VoirOrdi[0].Visible &&
                  std::to_array(table.t.MeilleurRangement) == rangements)
          << façon;
    else
      EXPECT_TRUE(!f.Arrêt.Enabled && !table.Vue(f.Joue)->isVisible() &&
                  table.Vue(f.NouveauJeu)->isEnabled())
          << façon;
  }
}

// Every text of the English file is translated, and keeps the place-holders
// (%1, %2) its French has: a missing one would drop a name or a number.
TEST(Langues, ChaqueTexteALaTraductionAnglaise) {
  QFile fichier(TN_DOSSIER_I18N "/troisniveaux_en.ts");
  ASSERT_TRUE(fichier.open(QIODevice::ReadOnly));
  const auto marques = [](const QString &texte) {
    QStringList liste;
    for (const auto &m : QRegularExpression("%\\d").globalMatch(texte))
      liste << m.captured();
    return liste.sort(), liste;
  };
  // Each message: its source, then its translation's attributes and text.
  const QRegularExpression message(
      "<source>(.*?)</source>.*?<translation([^>]*)>(.*?)</translation>",
      QRegularExpression::DotMatchesEverythingOption);
  int messages = 0;
  for (const auto &m : message.globalMatch(QString::fromUtf8(fichier.readAll()))) {
    ++messages;
    EXPECT_TRUE(m.captured(2).isEmpty() && !m.captured(3).trimmed().isEmpty())
        << m.captured(1).toStdString();
    EXPECT_EQ(marques(m.captured(3)), marques(m.captured(1))) << m.captured(1).toStdString();
  }
  EXPECT_GT(messages, 60);
}

// F12 changes the language at once, every text drawn again, and keeps the
// choice; the English fits its places. Back in French the table is as it
// was, pixel for pixel.
TEST(Langues, F12ChangeDeLangueEtRedessineTout) {
  Table table;
  auto &f = table.t.Fenêtre;
  table.Clic(f.NouveauJeu);
  table.Clic(f.Joue);
  // The panels only: the stars move behind them.
  const auto image = [&] {
    return std::pair(table.Vue(f.MenuSS)->grab().toImage(),
                     table.Vue(f.SSJoueur[3])->grab().toImage());
  };
  const auto français = image();
  const int niveau = table.Vue(f.NiveauLabel[0])->width();
  auto *fermer =
      table.fenêtre.findChild<QWidget *>("panneauHistorique")->findChild<QPushButton *>();
  ASSERT_NE(fermer, nullptr);
  // What a screen reader hears follows too, players' names aside.
  const auto lu = [](QWidget *w) {
    return QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name);
  };
  QWidget *carte = table.Vue(f.CartesJeu[39]), *résumé = table.fenêtre.Lecteur().Résumé();
  const QStringList entendu{lu(carte), lu(table.Vue(f.NouveauJeu)), lu(résumé)};
  table.Touche(Qt::Key_F12);
  QCoreApplication::processEvents();
  EXPECT_EQ(LangueParlée(), "en");
  EXPECT_EQ(QSettings().value("langue").toString(), "en") << "kept for the next session";
  EXPECT_EQ(TexteAffiché(f.NouveauJeu), "PLAY");
  EXPECT_EQ(fermer->text(), "CLOSE");
  EXPECT_EQ(table.Vue(f.NouveauJeu)->toolTip(), "PLAY — F2 key");
  EXPECT_EQ(lu(carte), NomDeCarte(f.CartesJeu[39].Picture) + ", level 1");
  EXPECT_EQ(lu(table.Vue(f.NomsJoueursText[1])->findChild<QLineEdit *>()), "Name of player 2");
  EXPECT_TRUE(lu(résumé).startsWith("End of the deal. MicroProc: ")) << lu(résumé).toStdString();
  EXPECT_NE(table.Vue(f.NiveauLabel[0])->width(), niveau) << "LEVEL 1 is narrower";
  const auto anglais = image();
  EXPECT_TRUE(anglais.first != français.first && anglais.second != français.second);
  // Every button's caption fits its button, the table small or large, and
  // every page of the book fits the book.
  for (const double échelle : {1.0, 1.6, 2.5})
    table.fenêtre.PourChaqueVue([&](const Contrôle &c, QWidget *) {
      if (c.genre != Genre::Bouton || c.Caption.empty())
        return;
      const int place = Pixels(c.Width, échelle) - 4 * static_cast<int>(std::lround(échelle));
      EXPECT_LE(QFontMetrics(PoliceQt(c.police, échelle)).horizontalAdvance(TexteAffiché(c)), place)
          << c.Nom << " at " << échelle;
    });
  Contrôle page = f.AfficheRègles;
  const QFont police = PoliceQt(page.police, 1);
  const QRect livre(0, 0, Pixels(page.Width, 1) - 2, Pixels(page.Height, 1));
  for (int n = 0; n < 14; ++n) {
    page.Caption = table.t.TextesRègles[n];
    EXPECT_LE(
        QFontMetrics(police).boundingRect(livre, Qt::TextWordWrap, TexteAffiché(page)).height(),
        livre.height())
        << "page " << n + 1;
  }
  table.Touche(Qt::Key_F12);
  QCoreApplication::processEvents();
  EXPECT_EQ(LangueParlée(), "fr");
  EXPECT_EQ(fermer->text(), "FERMER");
  EXPECT_EQ(table.Vue(f.NouveauJeu)->toolTip(), "JOUER — touche F2");
  EXPECT_EQ(QStringList({lu(carte), lu(table.Vue(f.NouveauJeu)), lu(résumé)}), entendu);
  EXPECT_TRUE(image() == français);
  QSettings().remove("langue");
}

// The engine's messages as it writes them are told again in English, names,
// paths and line numbers kept: a pattern that drifted from the engine's
// French would leave them French.
TEST(Langues, LesMessagesDuMoteurSeDisentEnAnglais) {
  ASSERT_TRUE(ParleLangue("en"));
  const std::tuple<const char *, const char *, const char *> cas[] = {
      {"Scores", "0\r\n0\r\nx\r\n0\r\n", "The file “Scores” (%1): line 3 is not a whole number."},
      {"Noms", "\"A\"\r\n", "The file “Noms” (%1) holds only one name instead of four."}};
  for (const auto &[fichier, octets, attendu] : cas) {
    DossierEssai dossier;
    dossier.Écrit(fichier, octets);
    Table::Plateforme plateforme;
    plateforme.dossier = dossier.Chemin();
    plateforme.dialogues = false;
    TroisNiveaux t{plateforme};
    t.Form_Load();
    const QString chemin = QString::fromStdString(dossier.Chemin() + "/" + fichier);
    EXPECT_EQ(TraduitMessage(t.ErreurDémarrage),
              QString(attendu).arg(chemin) + " The game cannot start.");
  }
  ParleLangue("fr");
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/fenetre/fenetre_table.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QWindow>
#include <cmath>

#include "core/table_state.h"
#include "platform/qt/bureau/affichage.h"
#include "platform/qt/bureau/langue.h"
#include "platform/qt/bureau/reglages.h"
#include "platform/qt/fenetre/accessibilite.h"
#include "platform/qt/fenetre/clavier.h"
#include "platform/qt/fenetre/fond_etoile.h"
#include "platform/qt/fenetre/plateforme_qt.h"
#include "platform/qt/fenetre/vue_controle.h"
#include "platform/qt/jeux/choix_du_jeu.h"
#include "platform/qt/panneaux/panneau_historique.h"

FenêtreTable::FenêtreTable(TroisNiveaux &table, PlateformeQt &plateforme)
    : t(table), plateforme(plateforme) {
  InstalleAccessibilité();
  setWindowTitle(QString::fromStdString(t.Fenêtre.Form.Caption));
  setAttribute(Qt::WA_OpaquePaintEvent);
  const QSize dessin(Pixels(t.Fenêtre.Form.Width, 1), Pixels(t.Fenêtre.Form.Height, 1));
  resize(dessin);
  setMinimumSize(dessin / 4);
  fond = new FondÉtoilé(t, échelle, this);
  fond->setGeometry(rect());
  Construit();
  Relie();
  clavier = new Clavier(*this, t, plateforme);
  InstalleChoixDuJeu(this);
  clavier->Ajoute(Qt::Key_F8, [this] {
    JeuSuivant(this);
    return true;
  });
  // F12: the next language the game speaks, kept for the next session.
  clavier->Ajoute(Qt::Key_F12, [] {
    LangueSuivante();
    return true;
  });
  PanneauHistorique *historique = InstalleHistorique(this, t);
  clavier->AjoutePanneau(historique, Qt::Key_F9, [historique] { historique->Bascule(); });
  lecteur = std::make_unique<SuiviLecteur>(*this, t);
  // The window holds the keyboard at first, not JOUER: Espace and the arrows
  // then go to the cards, and Tab reaches JOUER first.
  setFocus(Qt::OtherFocusReason);
  plateforme.table = &t;
  plateforme.aprèsTour = [this] { Synchronise(); };

  étoiles.setSingleShot(true);
  étoiles.setTimerType(Qt::PreciseTimer);
  connect(&étoiles, &QTimer::timeout, this, [this] { AvanceLesÉtoiles(); });
  temps.setInterval(1000);
  connect(&temps, &QTimer::timeout, this, [this] { Événement([this] { t.TempsTimer_Timer(); }); });
  nonConnecté.setInterval(20000);
  connect(&nonConnecté, &QTimer::timeout, this,
          [this] { Événement([this] { t.NonConnectéTimer_Timer(); }); });
  Synchronise();
}

FenêtreTable::~FenêtreTable() {
  MémoriseTaille();
  plateforme.aprèsTour = nullptr;
  plateforme.table = nullptr;
}

QWidget *FenêtreTable::Fond() const { return fond; }

void FenêtreTable::Construit() {
  auto &f = t.Fenêtre;
  std::vector<const Contrôle *> ordre;
  const auto ajoute = [&](std::initializer_list<const Contrôle *> liste) {
    ordre.insert(ordre.end(), liste);
  };
  // Panels from the bottom of the pile up; inside each, children in the
  // order they lie over each other.
  for (int n = Contrôles::NombrePanneauxHaut - 1; n >= 0; --n) {
    const Contrôle *panneau = f.Empilement[n];
    ordre.push_back(panneau);
    for (int s = 0; s <= 3; ++s) {
      if (panneau != &f.SSJoueur[s])
        continue;
      ajoute({&f.JoueursLabel[s], &f.ExtraLabel[s], &f.ScoreLabel[s], &f.TotalLabel[s],
              &f.SSJoueurFond[s]});
      // Level 3 at the back, level 1 in front; a later place over an earlier one.
      for (int k : {10, 11, 12, 5, 6, 7, 8, 9, 0, 1, 2, 3, 4})
        ordre.push_back(&f.CartesJeu[13 * s + k]);
      for (int r = 0; r <= 2; ++r) {
        ordre.push_back(&f.SSPaie[3 * s + r]);
        ordre.push_back(&f.NiveauLabel[3 * s + 2 - r]);
        for (int j = 0; j <= 2; ++j)
          ordre.push_back(&f.LabelPaie[9 * s + 3 * r + j]);
      }
      for (int r = 0; r <= 2; ++r)
        ordre.push_back(&f.EnchèreLabel[3 * s + r]);
      if (s == 3)
        ordre.push_back(&f.CartesJeu[52]);
    }
    if (panneau == &f.TempsSS)
      ajoute({&f.TempsFondSS, &f.TempsShape, &f.TempsLabel});
    if (panneau == &f.MenuSS)
      ajoute({&f.NouveauJeu, &f.Scoresà0, &f.NomsJoueurs, &f.Mode, &f.Rejoue, &f.Arrêt, &f.Fin,
              &f.VoirOrdi[0], &f.VoirOrdi[1], &f.VoirRègles[1], &f.VoirRègles[0], &f.Joue});
    if (panneau == &f.RèglesText)
      ajoute({&f.AfficheRègles, &f.TextCombien, &f.TextScroll[0], &f.TextScroll[1]});
    if (panneau == &f.NomsJoueursSS)
      ajoute({&f.NomsJoueursText[0], &f.NomsJoueursText[1], &f.NomsJoueursText[2],
              &f.NomsJoueursText[3], &f.EnregistreNoms, &f.AnnuleNoms});
    if (panneau == &f.SSImage)
      ajoute({&f.ImageTitre});
    if (panneau == &f.NonConnectéPic)
      ajoute({&f.LogoFondPic, &f.LogoWeb, &f.NonConnectéLbl, &f.NonConnectéCmd});
    if (panneau == &f.Pub0Pic)
      ajoute({&f.Pub0Web});
    if (panneau == &f.Pub1Pic)
      ajoute({&f.Pub1Web});
  }
  for (const Contrôle *c : ordre) {
    QWidget *parent = fond;
    if (c->Parent)
      parent = Vue(*c->Parent);
    auto *vue = new VueContrôle(*c, échelle, parent);
    vues.push_back(vue);
    vueDe.insert(c, vue);
  }
}

QWidget *FenêtreTable::Vue(const Contrôle &c) const { return vueDe.value(&c, nullptr); }

void FenêtreTable::PourChaqueVue(const std::function<void(const Contrôle &, QWidget *)> &f) const {
  for (VueContrôle *v : vues)
    f(v->modèle, v);
}

void FenêtreTable::Événement(const std::function<void()> &gestionnaire) {
  if (fermé)
    return;
  gestionnaire();
  if (!fermé && !t.SessionTerminée)
    Synchronise();
}

void FenêtreTable::Relie() {
  auto &f = t.Fenêtre;
  const auto relie = [this](const Contrôle &c, std::function<void()> gestionnaire, bool clic) {
    auto *v = vueDe.value(&c);
    v->surClic = clic;
    v->relâché = [this, gestionnaire] { Événement(gestionnaire); };
  };
  relie(
      f.NouveauJeu, [this] { t.NouveauJeu_MouseUp(); }, false);
  relie(
      f.Joue, [this] { t.Joue_Click(); }, true);
  relie(
      f.Arrêt, [this] { t.Arrêt_MouseUp(); }, false);
  relie(
      f.Rejoue, [this] { t.Rejoue_MouseUp(); }, false);
  relie(
      f.Mode, [this] { t.Mode_MouseUp(); }, false);
  relie(
      f.Scoresà0, [this] { t.Scoresà0_MouseUp(); }, false);
  relie(
      f.NomsJoueurs, [this] { t.NomsJoueurs_MouseUp(); }, false);
  relie(
      f.Fin, [this] { t.Fin_MouseUp(); }, false);
  relie(
      f.EnregistreNoms, [this] { t.EnregistreNoms_MouseUp(); }, false);
  relie(
      f.AnnuleNoms, [this] { t.AnnuleNoms_MouseUp(); }, false);
  relie(
      f.NonConnectéCmd, [this] { t.NonConnectéCmd_Click(); }, true);
  for (int i = 0; i <= 1; ++i) {
    relie(
        f.VoirOrdi[i], [this, i] { t.VoirOrdi_Click(i); }, true);
    relie(
        f.VoirRègles[i], [this, i] { t.VoirRègles_Click(i); }, true);
    relie(
        f.TextScroll[i], [this, i] { t.TextScroll_Click(i); }, true);
  }
  for (int i = 0; i <= 52; ++i)
    relie(
        f.CartesJeu[i], [this, i] { t.CartesJeu_MouseUp(i); }, false);
  // A click on the clock and its bar hurries the computer: the pacing of
  // its search is the window's, so no handler of the game is involved.
  for (const Contrôle *c : {&f.TempsSS, &f.TempsFondSS, &f.TempsShape, &f.TempsLabel})
    vueDe.value(c)->relâché = [this] { this->plateforme.Presse(); };
  // The one way back from the widgets: what is typed in the names panel.
  for (int s = 0; s <= 3; ++s) {
    auto *v = vueDe.value(&f.NomsJoueursText[s]);
    QObject::connect(v->saisie, &QLineEdit::textChanged, this, [this, s](const QString &texte) {
      t.Fenêtre.NomsJoueursText[s].Text = texte.toStdString();
    });
  }
}

void FenêtreTable::Synchronise() {
  const bool premier = !isVisible() && vues.front()->copie.Nom.empty();
  if (lecteur)
    lecteur->AvantSynchronisation();
  for (VueContrôle *v : vues)
    v->Applique(premier);
  SynchroniseMinuteries();
  if (clavier)
    clavier->AprèsSynchronisation();
  if (lecteur)
    lecteur->AprèsSynchronisation();
}

void FenêtreTable::SynchroniseMinuteries() {
  const auto suit = [](QTimer &minuterie, const Minuterie &m) {
    if (m.Enabled && !minuterie.isActive())
      minuterie.start();
    else if (!m.Enabled && minuterie.isActive())
      minuterie.stop();
  };
  SuitLesÉtoiles();
  suit(temps, t.Fenêtre.TempsTimer);
  suit(nonConnecté, t.Fenêtre.NonConnectéTimer);
}

// The largest table that fits, in the middle; the rest of the window is black.
void FenêtreTable::resizeEvent(QResizeEvent *) {
  const double largeur = Pixels(t.Fenêtre.Form.Width, 1),
               hauteur = Pixels(t.Fenêtre.Form.Height, 1);
  const double nouvelle = std::min(width() / largeur, height() / hauteur);
  const int l = static_cast<int>(std::lround(largeur * nouvelle));
  const int h = static_cast<int>(std::lround(hauteur * nouvelle));
  fond->setGeometry((width() - l) / 2, (height() - h) / 2, l, h);
  if (nouvelle == échelle)
    return;
  échelle = nouvelle;
  // Parents come before their children in the list.
  for (VueContrôle *v : vues)
    v->ChangeÉchelle();
  clavier->ChangeÉchelle();
  fond->update();
}

void FenêtreTable::paintEvent(QPaintEvent *event) {
  QPainter p(this);
  for (const QRect &r : event->region())
    p.fillRect(r, Qt::black);
}

void FenêtreTable::keyPressEvent(QKeyEvent *event) {
  if (!fermé && clavier->Touche(event))
    event->accept();
  else
    QWidget::keyPressEvent(event);
}

void FenêtreTable::BasculePleinÉcran() {
  if (isFullScreen()) {
    setWindowState(avantPleinÉcran & ~Qt::WindowFullScreen);
  } else {
    avantPleinÉcran = windowState();
    setWindowState(windowState() | Qt::WindowFullScreen);
  }
}

void FenêtreTable::RetrouveTaille() {
  mémoriseTaille = true;
  // The player's own settings, apart from the game's data files.
  const QByteArray géométrie = RéglagesDuJoueur()->value("fenetre/geometrie").toByteArray();
  // A damaged value (cut short, or a window of nothing) gives the size the
  // table is drawn at rather than a window too small to play in.
  const QSize dessin(Pixels(t.Fenêtre.Form.Width, 1), Pixels(t.Fenêtre.Form.Height, 1));
  if (géométrie.isEmpty() || !restoreGeometry(géométrie) || width() < dessin.width() / 2 ||
      height() < dessin.height() / 2)
    resize(dessin);
  const QSize voulue = size();
  TientDansLÉcran(voulue);
  // The frame's true size is known once the window stands on the screen; a
  // size the player has set meanwhile is left alone.
  QTimer::singleShot(500, this, [this, voulue, ajustée = size()] {
    if (isVisible() && size() == ajustée)
      TientDansLÉcran(voulue);
  });
}

void FenêtreTable::TientDansLÉcran(QSize voulue) {
  const QScreen *écran = screen();
  if (!écran || isMaximized() || isFullScreen())
    return;
  const QRect disponible = écran->availableGeometry();
  QMargins cadre = windowHandle() ? windowHandle()->frameMargins() : QMargins();
  // Before the window is shown its frame is unknown: a title bar is assumed.
  if (cadre.isNull() && !isVisible())
    cadre.setTop(std::max(32, style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this)));
  const QSize taille = TailleQuiTient(voulue, disponible.size(), cadre);
  if (taille == size())
    return;
  resize(taille);
  move(disponible.x() + (disponible.width() - taille.width() - cadre.left() - cadre.right()) / 2,
       disponible.y() + (disponible.height() - taille.height() - cadre.top() - cadre.bottom()) / 2);
}

void FenêtreTable::MémoriseTaille() {
  if (!mémoriseTaille)
    return;
  mémoriseTaille = false;
  RéglagesDuJoueur()->setValue("fenetre/geometrie", saveGeometry());
}

void FenêtreTable::closeEvent(QCloseEvent *event) {
  MémoriseTaille();
  if (!fermé && !t.SessionTerminée)
    t.Form_QueryUnload();
  fermé = true;
  SuitLesÉtoiles();
  event->accept();
}

void FenêtreTable::PremierAffichage(std::function<void()> rappel) {
  fond->premierAffichage = std::move(rappel);
}

namespace {
// The pace the stars' speeds were made for, and how many of its ticks one
// picture shows: the stars fall as fast as ever, drawn 13 times a second.
constexpr qint64 TicksParSeconde = 64, TicksParImage = 5;
} // namespace

void FenêtreTable::SuitLesÉtoiles() {
  const QWindow *w = windowHandle();
  const bool enMarche = !fermé && t.Fenêtre.EtoilesTimer.Enabled && isVisible() && !isMinimized() &&
                        w && w->isExposed();
  if (enMarche == horlogeÉtoiles.isValid())
    return;
  if (enMarche) {
    // The stars go on from where they stopped, not from where they would be.
    horlogeÉtoiles.start();
    ticksFaits = 0;
    étoiles.start(0);
  } else {
    horlogeÉtoiles.invalidate();
    étoiles.stop();
  }
}

void FenêtreTable::AvanceLesÉtoiles() {
  if (!horlogeÉtoiles.isValid())
    return;
  // The ticks due by the clock, whenever the wake-up came: a late one (a
  // busy sweep) moves the stars further rather than slower. After a long
  // stall they go on instead of racing to catch up.
  const qint64 dus = horlogeÉtoiles.elapsed() * TicksParSeconde / 1000;
  const qint64 nombre = std::min<qint64>(dus - ticksFaits, 4 * TicksParImage);
  ticksFaits = dus;
  if (nombre > 0) {
    fond->AvantTick();
    // The tick came from the event loop: the turn it asks for first would
    // only nest another loop in it, and a deal started in there would run
    // with the stars held still.
    plateforme.sansTour = true;
    for (qint64 n = 0; n < nombre; ++n)
      t.EtoilesTimer_Timer();
    plateforme.sansTour = false;
    fond->AprèsTick();
  }
  // Woken at the next whole picture's worth of ticks.
  const qint64 prochain = (dus / TicksParImage + 1) * TicksParImage;
  étoiles.start(static_cast<int>(std::max<qint64>(
      1, (prochain * 1000 + TicksParSeconde - 1) / TicksParSeconde - horlogeÉtoiles.elapsed())));
}

// Drawing stops while the toolkit says nothing of the window can be seen
// (minimised, unmapped, another workspace, fully covered where it is told).
bool FenêtreTable::eventFilter(QObject *objet, QEvent *e) {
  if (objet == windowHandle() && e->type() == QEvent::Expose)
    SuitLesÉtoiles();
  return QWidget::eventFilter(objet, e);
}

void FenêtreTable::changeEvent(QEvent *e) {
  if (e->type() == QEvent::WindowStateChange)
    SuitLesÉtoiles();
  QWidget::changeEvent(e);
}

void FenêtreTable::showEvent(QShowEvent *e) {
  if (QWindow *w = windowHandle(); w && !filtreDeFenêtre) {
    w->installEventFilter(this);
    filtreDeFenêtre = true;
  }
  SuitLesÉtoiles();
  QWidget::showEvent(e);
}

void FenêtreTable::hideEvent(QHideEvent *e) {
  SuitLesÉtoiles();
  QWidget::hideEvent(e);
}

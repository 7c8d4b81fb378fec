// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/fenetre/clavier.h"

#include <QAccessible>
#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <cmath>

#include "core/table_state.h"
#include "platform/qt/fenetre/fenetre_table.h"
#include "platform/qt/fenetre/plateforme_qt.h"
#include "platform/qt/fenetre/vue_controle.h"

namespace {

// A frame round the card the keyboard stands on. It takes no click: the
// card under it still gets the mouse.
class CadreClavier : public QWidget {
public:
  CadreClavier(const double &échelle, QWidget *parent) : QWidget(parent), échelle(échelle) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setProperty("tnHorsEchelle", true);
    // The focus of the card under it says all a reader needs.
    setProperty("tnHorsLecture", true);
    hide();
  }

protected:
  void paintEvent(QPaintEvent *) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal trait = std::max(2.0, 3.0 * échelle);
    p.setPen(QPen(QColor(255, 210, 0), trait));
    p.setBrush(Qt::NoBrush);
    const qreal d = trait / 2;
    p.drawRoundedRect(QRectF(rect()).adjusted(d, d, -d, -d), 4 * échelle, 4 * échelle);
  }

private:
  const double &échelle;
};

} // namespace

Clavier::Clavier(FenêtreTable &fenêtre, TroisNiveaux &t, PlateformeQt &plateforme)
    : QObject(&fenêtre), fenêtre(fenêtre), t(t), plateforme(plateforme) {
  auto &f = t.Fenêtre;
  cadre = new CadreClavier(fenêtre.Échelle(), fenêtre.Vue(f.SSJoueurFond[3]));
  // Entrée is GO; while the computer still searches, it hurries it.
  for (const Qt::Key entrée : {Qt::Key_Return, Qt::Key_Enter})
    Ajoute(entrée, [this] {
      auto &f = this->t.Fenêtre;
      if (f.Joue.Visible && f.Joue.Enabled) {
        this->fenêtre.Événement([this] { this->t.Joue_Click(); });
        return true;
      }
      if (this->t.BalayageEnCours) {
        this->plateforme.Presse();
        return true;
      }
      return false;
    });
  AjoutePourContrôles(Qt::Key_F2, {{&f.NouveauJeu, [this] { this->t.NouveauJeu_MouseUp(); }}});
  AjoutePourContrôles(Qt::Key_Escape, {{&f.Arrêt, [this] { this->t.Arrêt_MouseUp(); }}});
  AjoutePourContrôles(Qt::Key_F3, {{&f.Rejoue, [this] { this->t.Rejoue_MouseUp(); }}});
  AjoutePourContrôles(Qt::Key_F4, {{&f.Mode, [this] { this->t.Mode_MouseUp(); }}});
  AjoutePourContrôles(Qt::Key_F5, {{&f.NomsJoueurs, [this] { this->t.NomsJoueurs_MouseUp(); }}});
  AjoutePourContrôles(Qt::Key_F6, {{&f.Scoresà0, [this] { this->t.Scoresà0_MouseUp(); }}});
  // The book's button lies over its OK, so it is tried first.
  AjoutePourContrôles(Qt::Key_F1, {{&f.VoirRègles[0], [this] { this->t.VoirRègles_Click(0); }},
                                   {&f.VoirRègles[1], [this] { this->t.VoirRègles_Click(1); }}});
  AjoutePourContrôles(Qt::Key_F7, {{&f.VoirOrdi[0], [this] { this->t.VoirOrdi_Click(0); }},
                                   {&f.VoirOrdi[1], [this] { this->t.VoirOrdi_Click(1); }}});
  AjoutePourContrôles(Qt::Key_PageUp,
                      {{&f.TextScroll[0], [this] { this->t.TextScroll_Click(0); }}});
  AjoutePourContrôles(Qt::Key_PageDown,
                      {{&f.TextScroll[1], [this] { this->t.TextScroll_Click(1); }}});
  AjoutePourContrôles(QKeyCombination(Qt::ControlModifier, Qt::Key_Q),
                      {{&f.Fin, [this] { this->t.Fin_MouseUp(); }}});
  Ajoute(Qt::Key_F11, [this] {
    this->fenêtre.BasculePleinÉcran();
    return true;
  });
  Ajoute(Qt::Key_Space, [this] { return Espace(); });
  const std::pair<Qt::Key, QPoint> flèches[] = {{Qt::Key_Left, {-1, 0}},
                                                {Qt::Key_Right, {1, 0}},
                                                {Qt::Key_Up, {0, -1}},
                                                {Qt::Key_Down, {0, 1}}};
  for (const auto &[touche, sens] : flèches)
    Ajoute(touche, [this, sens] {
      DéplaceCadre(sens.x(), sens.y());
      return true;
    });

  BullesParticulières();
  OrdreDeTabulation();
  qApp->installEventFilter(this);
}

// The tooltips that say more than a button's name and its key.
void Clavier::BullesParticulières() {
  auto &f = t.Fenêtre;
  const QString touche = QCoreApplication::translate("Clavier", "touche %1");
  fenêtre.Vue(f.Joue)->setToolTip("GO — " + touche.arg(NomDeTouche(Qt::Key_Return)));
  fenêtre.Vue(f.VoirOrdi[0])
      ->setToolTip(QCoreApplication::translate("Clavier", "Solution de l'ordinateur") + " — " +
                   touche.arg("F7"));
  fenêtre.Vue(f.VoirRègles[0])
      ->setToolTip(QCoreApplication::translate("Clavier", "Règles du jeu") + " — " +
                   touche.arg("F1"));
  fenêtre.Vue(f.TextScroll[0])
      ->setToolTip(QCoreApplication::translate("Clavier", "Page précédente") + " — " +
                   touche.arg(NomDeTouche(Qt::Key_PageUp)));
  fenêtre.Vue(f.TextScroll[1])
      ->setToolTip(QCoreApplication::translate("Clavier", "Page suivante") + " — " +
                   touche.arg(NomDeTouche(Qt::Key_PageDown)));
  const QString presse =
      QCoreApplication::translate("Clavier", "L'ordinateur cherche : un clic ici ou la touche %1 "
                                             "lui fait finir sa recherche sans attendre")
          .arg(NomDeTouche(Qt::Key_Return));
  for (const Contrôle *c : {&f.TempsSS, &f.TempsFondSS, &f.TempsShape, &f.TempsLabel})
    fenêtre.Vue(*c)->setToolTip(presse);
}

// Another language: every tooltip is written again, in the order it first was.
bool Clavier::event(QEvent *e) {
  if (e->type() == QEvent::LanguageChange) {
    for (const auto &[contrôle, touche] : bulles)
      fenêtre.Vue(*contrôle)->setToolTip({});
    for (const auto &[contrôle, touche] : bulles)
      Bulle(*contrôle, touche);
    BullesParticulières();
  }
  return QObject::event(e);
}

void Clavier::Bulle(const Contrôle &c, QKeyCombination touche) {
  QWidget *vue = fenêtre.Vue(c);
  const QString nom = c.Caption.empty() ? QString() : TexteAffiché(c) + " — ";
  if (vue && vue->toolTip().isEmpty())
    vue->setToolTip(nom +
                    QCoreApplication::translate("Clavier", "touche %1").arg(NomDeTouche(touche)));
}

void Clavier::Ajoute(QKeyCombination touche, std::function<bool()> action) {
  raccourcis.push_back({touche, std::move(action)});
}

void Clavier::AjoutePourContrôles(
    QKeyCombination touche,
    std::vector<std::pair<const Contrôle *, std::function<void()>>> cibles) {
  Ajoute(touche, [this, cibles] {
    for (const auto &[contrôle, gestionnaire] : cibles)
      if (contrôle->Visible && contrôle->Enabled) {
        fenêtre.Événement(gestionnaire);
        return true;
      }
    return false;
  });
  for (const auto &cible : cibles) {
    bulles.emplace_back(cible.first, touche);
    Bulle(*cible.first, touche);
  }
}

QString Clavier::NomDeTouche(QKeyCombination touche) {
  QString nom;
  switch (touche.key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    nom = QCoreApplication::translate("Clavier", "Entrée");
    break;
  case Qt::Key_Escape:
    nom = QCoreApplication::translate("Clavier", "Échap");
    break;
  case Qt::Key_Space:
    nom = QCoreApplication::translate("Clavier", "Espace");
    break;
  case Qt::Key_PageUp:
    nom = QCoreApplication::translate("Clavier", "Page préc.");
    break;
  case Qt::Key_PageDown:
    nom = QCoreApplication::translate("Clavier", "Page suiv.");
    break;
  case Qt::Key_Tab:
    nom = "Tab";
    break;
  default:
    nom = QKeySequence(touche.key()).toString(QKeySequence::PortableText);
  }
  if (touche.keyboardModifiers() & Qt::ShiftModifier)
    nom = QCoreApplication::translate("Clavier", "Maj+") + nom;
  if (touche.keyboardModifiers() & Qt::ControlModifier)
    nom = "Ctrl+" + nom;
  return nom;
}

// A text box holds the keyboard: its keys are its own.
bool Clavier::Saisie() const {
  const QWidget *focus = fenêtre.focusWidget();
  return focus && focus->isVisible() && qobject_cast<const QLineEdit *>(focus);
}

void Clavier::AjoutePanneau(QWidget *panneau, QKeyCombination touche,
                            std::function<void()> bascule) {
  panneaux.push_back({panneau, touche, bascule});
  Ajoute(touche, [bascule] {
    bascule();
    return true;
  });
}

bool Clavier::Touche(QKeyEvent *e) {
  const Qt::Key touche = static_cast<Qt::Key>(e->key());
  const Qt::KeyboardModifiers modifs = e->modifiers() & ~Qt::KeypadModifier;
  auto &f = t.Fenêtre;
  for (const Panneau &panneau : panneaux) {
    if (!panneau.vue->isVisible())
      continue;
    if (e->isAutoRepeat())
      return true;
    const QKeyCombination reçue(modifs, touche);
    if (reçue == panneau.touche || (modifs == Qt::NoModifier && touche == Qt::Key_Escape)) {
      panneau.bascule();
      return true;
    }
    if (modifs == Qt::NoModifier && touche == Qt::Key_F11) {
      fenêtre.BasculePleinÉcran();
      return true;
    }
    if (reçue == QKeyCombination(Qt::ControlModifier, Qt::Key_Q))
      break;
    return true;
  }
  // The names panel is a small form: Entrée keeps, Échap leaves, and no key
  // of the table acts behind it (the table's own F11 aside).
  if (f.NomsJoueursSS.Visible || Saisie()) {
    if (e->isAutoRepeat())
      return true;
    const Contrôle *bouton = nullptr;
    std::function<void()> gestionnaire;
    if (modifs == Qt::NoModifier && (touche == Qt::Key_Return || touche == Qt::Key_Enter)) {
      bouton = &f.EnregistreNoms;
      gestionnaire = [this] { t.EnregistreNoms_MouseUp(); };
    } else if (modifs == Qt::NoModifier && touche == Qt::Key_Escape) {
      bouton = &f.AnnuleNoms;
      gestionnaire = [this] { t.AnnuleNoms_MouseUp(); };
    } else if (modifs == Qt::NoModifier && touche == Qt::Key_F11) {
      fenêtre.BasculePleinÉcran();
      return true;
    }
    if (!bouton || !f.NomsJoueursSS.Visible || !bouton->Visible || !bouton->Enabled)
      return false;
    fenêtre.Événement(gestionnaire);
    return true;
  }
  const bool flèche = touche == Qt::Key_Left || touche == Qt::Key_Right || touche == Qt::Key_Up ||
                      touche == Qt::Key_Down;
  if (e->isAutoRepeat() && !flèche)
    return true; // a key held down acts once
  for (const Raccourci &r : raccourcis)
    if (r.touche.key() == touche && r.touche.keyboardModifiers() == modifs && r.action())
      return true;
  return false;
}

// The frame moves to the nearest place on that side: along its row for Left
// and Right, to the next row up or down for Up and Down.
void Clavier::DéplaceCadre(int dx, int dy) {
  // Arrows take the keyboard back from a button, so Espace acts on the cards.
  if (QWidget *focus = fenêtre.focusWidget(); focus && focus != &fenêtre)
    fenêtre.setFocus(Qt::OtherFocusReason);
  if (!CadreVisible()) {
    MontreCadre();
    return;
  }
  const auto &cartes = t.Fenêtre.CartesJeu;
  const Contrôle &ici = cartes[39 + place];
  int meilleure = -1;
  long meilleurÉcart = 0;
  for (int k = 0; k <= 12; ++k) {
    const Contrôle &là = cartes[39 + k];
    const long x = là.Left - ici.Left, y = là.Top - ici.Top;
    long écart;
    if (dx != 0) {
      if (y != 0 || x * dx <= 0)
        continue;
      écart = std::labs(x);
    } else {
      if (y * dy <= 0)
        continue;
      écart = 100000L * std::labs(y) + std::labs(x); // the next row first
    }
    if (meilleure < 0 || écart < meilleurÉcart) {
      meilleure = k;
      meilleurÉcart = écart;
    }
  }
  if (meilleure >= 0)
    place = meilleure;
  MontreCadre();
}

// The part of the place's card that shows: the next place of its row lies
// over its right side, the row in front over its lower side, and the front
// row runs past the foot of the seat's panel.
QRect Clavier::PartieVisible() const {
  const auto géométrie = [this](int k) {
    return fenêtre.Vue(t.Fenêtre.CartesJeu[39 + k])->geometry();
  };
  const QRect carte = géométrie(place);
  QRect visible = carte & cadre->parentWidget()->rect();
  for (int k = 0; k <= 12; ++k) {
    const QRect devant = géométrie(k);
    if (k == place || !devant.intersects(visible))
      continue;
    if (devant.top() == carte.top() && devant.left() > carte.left())
      visible.setRight(std::min(visible.right(), devant.left() - 1));
    else if (devant.top() > carte.top())
      visible.setBottom(std::min(visible.bottom(), devant.top() - 1));
  }
  return visible;
}

void Clavier::MontreCadre() {
  if (!CartesVivantes())
    return;
  QWidget *carte = fenêtre.Vue(t.Fenêtre.CartesJeu[39 + place]);
  cadre->setGeometry(PartieVisible());
  cadre->show();
  cadre->raise();
  if (QAccessible::isActive()) {
    QAccessibleEvent focus(carte, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
  }
}

bool Clavier::CadreVisible() const { return cadre->isVisibleTo(cadre->parentWidget()); }

void Clavier::CacheCadre() { cadre->hide(); }

void Clavier::ChangeÉchelle() {
  if (CadreVisible())
    cadre->setGeometry(PartieVisible());
}

// The human's cards can be played: dealt face up, taking clicks, while the
// computer searches or GO waits.
bool Clavier::CartesVivantes() const {
  const auto &f = t.Fenêtre;
  const Contrôle &carte = f.CartesJeu[39 + place];
  return carte.Visible && carte.Enabled && carte.Picture >= 0 && carte.Picture < 52 &&
         (f.Joue.Visible || t.BalayageEnCours);
}

void Clavier::AprèsSynchronisation() {
  if (CadreVisible() && !CartesVivantes())
    CacheCadre();
  const bool ouvert = t.Fenêtre.NomsJoueursSS.Visible;
  if (ouvert == panneauOuvert)
    return;
  panneauOuvert = ouvert;
  if (ouvert)
    fenêtre.Vue(t.Fenêtre.NomsJoueursText[0])
        ->findChild<QLineEdit *>()
        ->setFocus(Qt::OtherFocusReason);
  else
    fenêtre.setFocus(Qt::OtherFocusReason);
}

// Espace is a mouse release on the place under the frame; the first press
// only shows the frame.
bool Clavier::Espace() {
  if (!CadreVisible()) {
    MontreCadre();
    return true;
  }
  const int index = 39 + place;
  const Contrôle &carte = t.Fenêtre.CartesJeu[index];
  if (carte.Visible && carte.Enabled)
    fenêtre.Événement([this, index] { t.CartesJeu_MouseUp(index); });
  return true;
}

void Clavier::OrdreDeTabulation() {
  auto &f = t.Fenêtre;
  // As the menu reads: its buttons top to bottom, then the row of pictures
  // left to right; then the panels that may stand over the table.
  const Contrôle *ordre[] = {&f.NouveauJeu,
                             &f.Scoresà0,
                             &f.NomsJoueurs,
                             &f.Mode,
                             &f.Rejoue,
                             &f.Arrêt,
                             &f.Fin,
                             &f.VoirOrdi[0],
                             &f.VoirOrdi[1],
                             &f.VoirRègles[0],
                             &f.VoirRègles[1],
                             &f.Joue,
                             &f.TextScroll[0],
                             &f.TextScroll[1],
                             &f.NomsJoueursText[0],
                             &f.NomsJoueursText[1],
                             &f.NomsJoueursText[2],
                             &f.NomsJoueursText[3],
                             &f.EnregistreNoms,
                             &f.AnnuleNoms,
                             &f.NonConnectéCmd};
  QWidget *avant = nullptr;
  for (const Contrôle *c : ordre) {
    QWidget *vue = fenêtre.Vue(*c);
    if (auto *saisie = vue->findChild<QLineEdit *>())
      vue = saisie;
    if (avant)
      QWidget::setTabOrder(avant, vue);
    avant = vue;
  }
}

bool Clavier::eventFilter(QObject *objet, QEvent *e) {
  // While a panel stands over the table, a key meant for the table (Tab to a
  // button behind it, Espace on the button that had the keyboard) goes to
  // the panel's own keys instead.
  if (e->type() == QEvent::KeyPress && objet->isWidgetType() &&
      static_cast<QWidget *>(objet)->window() == &fenêtre)
    for (const Panneau &panneau : panneaux)
      if (panneau.vue->isVisible() && !panneau.vue->isAncestorOf(static_cast<QWidget *>(objet))) {
        Touche(static_cast<QKeyEvent *>(e));
        return true;
      }
  // A click anywhere on the table, or Tab to a button, hides the frame: the
  // mouse or the buttons have the hand again.
  const bool clic = e->type() == QEvent::MouseButtonPress;
  const bool tab =
      e->type() == QEvent::KeyPress && (static_cast<QKeyEvent *>(e)->key() == Qt::Key_Tab ||
                                        static_cast<QKeyEvent *>(e)->key() == Qt::Key_Backtab);
  if ((clic || tab) && objet->isWidgetType() &&
      static_cast<QWidget *>(objet)->window() == &fenêtre && CadreVisible())
    CacheCadre();
  return false;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/fenetre/vue_controle.h"

#include <QAccessible>
#include <QChildEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QValidator>
#include <QVariant>
#include <cmath>

#include "files/format.h"
#include "platform/qt/fenetre/accessibilite.h"
#include "platform/qt/fenetre/images.h"

int Pixels(int twips, double échelle) {
  return static_cast<int>(std::lround(twips * échelle / 15.0));
}

QColor Couleur(uint32_t bgr, const QPalette &palette) {
  switch (bgr) {
  case CouleurSystèmeBouton:
    return palette.color(QPalette::Button);
  case CouleurSystèmeFenêtre:
    return palette.color(QPalette::Base);
  case CouleurSystèmeTexte:
    return palette.color(QPalette::WindowText);
  default:
    return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
  }
}

QFont PoliceQt(const Police &p, double échelle) {
  QFont f(QString::fromStdString(p.Nom));
  f.setPixelSize(std::max(1, static_cast<int>(std::lround(p.Taille * 96.0 / 72.0 * échelle))));
  f.setWeight(p.Gras ? QFont::Bold : QFont::Normal);
  return f;
}

QString Texte(const std::string &s) {
  QString texte = QString::fromStdString(s);
  texte.replace('\r', '\n');
  return texte;
}

// The game's French is the key of its translation. The players' names are
// their own: a player called "JOUER" keeps his name in every language.
QString TexteAffiché(const Contrôle &c) {
  if (c.Caption.empty() || c.Nom.starts_with("JoueursLabel"))
    return Texte(c.Caption);
  const char *contexte = c.Nom == "AfficheRègles" ? "Regles" : "Table";
  QString texte = QCoreApplication::translate(contexte, c.Caption.c_str());
  texte.replace('\r', '\n');
  return texte;
}

namespace {

// A translation may be longer than the French the control was drawn for: it
// then takes a smaller font rather than losing its ends. The French is never
// touched.
QFont PoliceQuiTient(const Contrôle &m, const QString &texte, int place, double échelle) {
  QFont f = PoliceQt(m.police, échelle);
  if (m.RetourLigne || m.AjusteAuTexte || texte.contains('\n') || texte == Texte(m.Caption))
    return f;
  const int largeur = QFontMetrics(f).horizontalAdvance(texte);
  if (largeur > place && place > 0)
    f.setPixelSize(std::max(1, f.pixelSize() * place / largeur));
  return f;
}

// Names go to a file in Windows-1252, one a line between double quotes: what
// it cannot carry back (a quote, a line break, a character outside that code)
// is refused as it is typed or pasted.
class ValidateurNom : public QValidator {
public:
  using QValidator::QValidator;
  State validate(QString &texte, int &) const override {
    for (const QChar c : texte)
      if (c == '"' || c.category() == QChar::Other_Control)
        return Invalid;
    return format::TientEnWindows1252(texte.toStdString()) ? Acceptable : Invalid;
  }
};

// A widget that some other part of the game put in a panel (a web view) keeps
// the geometry it was given at the designed size here.
const char *const GéométrieDessinée = "tnGeometrieDessinee";
const char *const PoliceDessinée = "tnPoliceDessinee";

} // namespace

VueContrôle::VueContrôle(const Contrôle &c, const double &échelle, QWidget *parent)
    : QWidget(parent), modèle(c), échelle(échelle) {
  // A picture may leave the slot's edges clear (a deck's cards narrower than
  // the slot, rounded corners): what lies under it must then show through.
  setAttribute(Qt::WA_OpaquePaintEvent,
               c.genre != Genre::Image && (c.genre != Genre::Étiquette || c.BackColor != SansFond));
  if (c.genre == Genre::Texte) {
    saisie = new QLineEdit(this);
    saisie->setValidator(new ValidateurNom(saisie));
    saisie->setFrame(true);
    saisie->setAccessibleName(NomAccessible(c));
  }
  // Buttons take the keyboard by Tab only: a click leaves it where it was.
  if (c.genre == Genre::Bouton)
    setFocusPolicy(Qt::TabFocus);
}

void VueContrôle::Applique(bool premier) {
  const Contrôle &m = modèle;
  const bool aspect = premier || m.Caption != copie.Caption || m.BackColor != copie.BackColor ||
                      m.ForeColor != copie.ForeColor || m.Picture != copie.Picture ||
                      m.Enabled != copie.Enabled;
  const bool place = premier || m.Left != copie.Left || m.Top != copie.Top ||
                     m.Width != copie.Width || m.Height != copie.Height ||
                     (m.AjusteAuTexte && m.Caption != copie.Caption);
  if (place)
    setGeometry(Géométrie());
  if (premier || m.Enabled != copie.Enabled)
    setEnabled(m.Enabled);
  if (premier || m.MousePointer != copie.MousePointer) {
    if (m.MousePointer == FlècheHaut)
      setCursor(Qt::UpArrowCursor);
    else if (m.MousePointer == SensInterdit)
      setCursor(Qt::ForbiddenCursor);
    else
      unsetCursor();
  }
  if (saisie && (premier || m.Text != copie.Text) && saisie->text().toStdString() != m.Text)
    saisie->setText(QString::fromStdString(m.Text));
  if (aspect && saisie) {
    QPalette palette = saisie->palette();
    palette.setColor(QPalette::Base, Couleur(m.BackColor, palette));
    palette.setColor(QPalette::Text, Qt::black);
    saisie->setPalette(palette);
    saisie->setFont(PoliceQt(m.police, échelle));
  }
  if (aspect)
    update();
  if (!premier)
    SignaleAuLecteur(this, copie);
  if (premier || m.Visible != copie.Visible) {
    setVisible(m.Visible);
    // The notice rises above every panel so its OK can be reached.
    if (m.Visible && m.Nom == "NonConnectéPic")
      raise();
  }
  copie = m;
}

void VueContrôle::ChangeÉchelle() {
  setGeometry(Géométrie());
  if (saisie)
    saisie->setFont(PoliceQt(modèle.police, échelle));
  PlaceÉtrangers();
  update();
}

QRect VueContrôle::Géométrie() const {
  const Contrôle &m = modèle;
  int largeur = Pixels(m.Width, échelle);
  int gauche = Pixels(m.Left, échelle);
  if (m.AjusteAuTexte) {
    largeur = QFontMetrics(PoliceQt(m.police, échelle)).horizontalAdvance(TexteAffiché(m)) + 2;
    // A right-aligned label keeps its right edge and grows to the left.
    if (m.alignement == Alignement::Droite)
      gauche = Pixels(m.Left + 240, échelle) - largeur;
  }
  return QRect(gauche, Pixels(m.Top, échelle), largeur, Pixels(m.Height, échelle));
}

void VueContrôle::PlaceÉtrangers() {
  for (QWidget *enfant : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
    const QVariant dessinée = enfant->property(GéométrieDessinée);
    if (!dessinée.isValid())
      continue;
    const QRect r = dessinée.toRect();
    const auto px = [this](int v) { return static_cast<int>(std::lround(v * échelle)); };
    enfant->setGeometry(px(r.x()), px(r.y()), px(r.width()), px(r.height()));
    // A web view zooms its page; any other widget has its font grown.
    if (enfant->property("zoomFactor").isValid()) {
      enfant->setProperty("zoomFactor", std::clamp(échelle, 0.25, 5.0));
    } else {
      QFont police = enfant->property(PoliceDessinée).value<QFont>();
      if (police.pixelSize() > 0)
        police.setPixelSize(std::max(1, px(police.pixelSize())));
      else
        police.setPointSizeF(police.pointSizeF() * échelle);
      enfant->setFont(police);
    }
  }
}

bool VueContrôle::event(QEvent *e) {
  // Another language: the texts, and the labels that fit their text, anew.
  if (e->type() == QEvent::LanguageChange) {
    ChangeÉchelle();
    if (saisie)
      saisie->setAccessibleName(NomAccessible(modèle));
  }
  // A foreign widget (a web view) is placed by its maker at the designed
  // size before it is shown; from its first polish on it follows the scale.
  if (e->type() == QEvent::ChildPolished) {
    auto *enfant = qobject_cast<QWidget *>(static_cast<QChildEvent *>(e)->child());
    if (enfant && enfant != saisie && !dynamic_cast<VueContrôle *>(enfant) &&
        !enfant->property(GéométrieDessinée).isValid() &&
        !enfant->property("tnHorsEchelle").toBool()) {
      enfant->setProperty(GéométrieDessinée, enfant->geometry());
      enfant->setProperty(PoliceDessinée, enfant->font());
      PlaceÉtrangers();
    }
  }
  return QWidget::event(e);
}

void VueContrôle::resizeEvent(QResizeEvent *) {
  if (saisie)
    saisie->setGeometry(rect());
}

// MouseUp follows a press of any button, wherever it is let go; Click
// wants the left button, let go over the control.
void VueContrôle::mousePressEvent(QMouseEvent *e) {
  if (relâché && modèle.Enabled && (!surClic || e->button() == Qt::LeftButton)) {
    enfoncé = true;
    update();
  }
  e->accept();
}

void VueContrôle::mouseReleaseEvent(QMouseEvent *e) {
  const bool était = enfoncé;
  enfoncé = false;
  update();
  e->accept();
  if (!était || !relâché || !modèle.Enabled)
    return;
  if (surClic && !rect().contains(e->position().toPoint()))
    return;
  relâché();
}

// A button reached by Tab is pressed with Espace, as any button of the desktop.
void VueContrôle::keyPressEvent(QKeyEvent *e) {
  if (e->key() == Qt::Key_Space && modèle.genre == Genre::Bouton && relâché && modèle.Enabled) {
    if (!e->isAutoRepeat())
      relâché();
    e->accept();
    return;
  }
  e->ignore();
}

void VueContrôle::paintEvent(QPaintEvent *) {
  QPainter p(this);
  const Contrôle &m = modèle;
  const QPalette &palette = this->palette();
  switch (m.genre) {
  case Genre::Image:
    if (m.Picture >= 0)
      p.drawPixmap(rect(), Image(m.Picture, size(), devicePixelRatioF()));
    break;
  case Genre::Bouton:
    Bouton(p);
    break;
  case Genre::Étiquette: {
    if (m.BackColor != SansFond)
      p.fillRect(rect(), Couleur(m.BackColor, palette));
    if (m.Bordure) {
      const int trait = std::max(1, static_cast<int>(std::lround(échelle)));
      p.setPen(QPen(QColor(20, 20, 20), trait, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
      p.setBrush(Qt::NoBrush);
      p.drawRect(QRectF(rect()).adjusted(trait / 2.0, trait / 2.0, -trait / 2.0, -trait / 2.0));
    }
    const QString texte = TexteAffiché(m);
    p.setFont(PoliceQuiTient(m, texte, width() - 2, échelle));
    p.setPen(Couleur(m.ForeColor, palette));
    int drapeaux = m.alignement == Alignement::Centre   ? Qt::AlignHCenter
                   : m.alignement == Alignement::Droite ? Qt::AlignRight
                                                        : Qt::AlignLeft;
    drapeaux |= m.RetourLigne ? Qt::TextWordWrap | Qt::AlignTop : Qt::AlignVCenter;
    p.drawText(rect().adjusted(1, 0, -1, 0), drapeaux, texte);
    break;
  }
  case Genre::Web:
    p.fillRect(rect(), Qt::black);
    break;
  default:
    p.fillRect(rect(), Couleur(m.BackColor, palette));
  }
}

// A raised button in its colour, sunk while pressed; a picture or a caption
// in the middle, greyed when the button is off. The edges grow with the
// scale, so a large table keeps the look of the small one.
void VueContrôle::Bouton(QPainter &p) {
  const Contrôle &m = modèle;
  const QRect r = rect();
  p.fillRect(r, Couleur(m.BackColor, palette()));
  const int e = std::max(1, static_cast<int>(std::lround(échelle)));
  const QColor clair(255, 255, 255), sombre(105, 105, 105), noir(0, 0, 0);
  const QColor &haut = enfoncé ? noir : clair, &bas = enfoncé ? clair : noir;
  p.fillRect(QRect(r.left(), r.top(), r.width() - e, e), haut);
  p.fillRect(QRect(r.left(), r.top(), e, r.height() - e), haut);
  p.fillRect(QRect(r.left(), r.bottom() - e + 1, r.width(), e), bas);
  p.fillRect(QRect(r.right() - e + 1, r.top(), e, r.height()), bas);
  if (!enfoncé) {
    p.fillRect(QRect(r.left() + e, r.bottom() - 2 * e + 1, r.width() - 2 * e, e), sombre);
    p.fillRect(QRect(r.right() - 2 * e + 1, r.top() + e, e, r.height() - 2 * e), sombre);
  }
  if (hasFocus()) {
    p.setPen(QPen(Qt::black, e, Qt::DotLine));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(3 * e, 3 * e, -3 * e - 1, -3 * e - 1));
  }
  const QPoint décalage = enfoncé ? QPoint(e, e) : QPoint(0, 0);
  if (m.Picture >= 0 && m.Caption.empty()) {
    const int côté = Pixels(32 * 15, échelle);
    const QSize taille(côté, côté);
    const QRect zone(QPoint((width() - côté) / 2, (height() - côté) / 2) + décalage, taille);
    p.setOpacity(m.Enabled ? 1.0 : 0.45);
    p.drawPixmap(zone, Image(m.Picture, taille, devicePixelRatioF()));
    p.setOpacity(1.0);
    return;
  }
  const QString texte = TexteAffiché(m);
  p.setFont(PoliceQuiTient(m, texte, width() - 4 * e, échelle));
  const QRect zone = r.translated(décalage);
  if (!m.Enabled) {
    p.setPen(clair);
    p.drawText(zone.translated(e, e), Qt::AlignCenter, texte);
    p.setPen(QColor(128, 128, 128));
  } else {
    p.setPen(Qt::black);
  }
  p.drawText(zone, Qt::AlignCenter, texte);
}

#include "platform/qt/fenetre_table.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHash>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QValidator>
#include <cmath>

#include "core/table_state.h"
#include "files/format.h"
#include "platform/qt/choix_du_jeu.h"
#include "platform/qt/images.h"
#include "platform/qt/panneau_historique.h"
#include "platform/qt/plateforme_qt.h"

namespace {

int Pixels(int twips) { return static_cast<int>(std::lround(twips / 15.0)); }

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

QFont PoliceQt(const Police &p) {
  QFont f(QString::fromStdString(p.Nom));
  // Sizes are points of a 96-dpi screen: in pixels the layout does not
  // depend on the screen's own dpi.
  f.setPixelSize(std::max(1, static_cast<int>(std::lround(p.Taille * 96.0 / 72.0))));
  f.setWeight(p.Gras ? QFont::Bold : QFont::Normal);
  return f;
}

QString Texte(const std::string &s) {
  QString texte = QString::fromStdString(s);
  texte.replace('\r', '\n');
  return texte;
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

} // namespace

// One control of the model on screen: it paints itself from a copy of the
// model's properties and sends its releases to the game.
class VueContrôle : public QWidget {
public:
  VueContrôle(const Contrôle &c, QWidget *parent) : QWidget(parent), modèle(c) {
    setAttribute(Qt::WA_OpaquePaintEvent, c.genre != Genre::Étiquette || c.BackColor != SansFond);
    if (c.genre == Genre::Texte) {
      saisie = new QLineEdit(this);
      saisie->setValidator(new ValidateurNom(saisie));
      saisie->setFrame(true);
    }
  }

  const Contrôle &modèle;
  Contrôle copie;
  std::function<void()> relâché;
  bool surClic = false; // Click needs the release over the control
  QLineEdit *saisie = nullptr;

  void Applique(bool premier) {
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
      saisie->setFont(PoliceQt(m.police));
    }
    if (aspect)
      update();
    if (premier || m.Visible != copie.Visible) {
      setVisible(m.Visible);
      // The notice rises above every panel so its OK can be reached.
      if (m.Visible && m.Nom == "NonConnectéPic")
        raise();
    }
    copie = m;
  }

  QRect Géométrie() const {
    const Contrôle &m = modèle;
    int largeur = Pixels(m.Width);
    int gauche = Pixels(m.Left);
    if (m.AjusteAuTexte) {
      largeur = QFontMetrics(PoliceQt(m.police)).horizontalAdvance(Texte(m.Caption)) + 2;
      // A right-aligned label keeps its right edge and grows to the left.
      if (m.alignement == Alignement::Droite)
        gauche = Pixels(m.Left + 240) - largeur;
    }
    return QRect(gauche, Pixels(m.Top), largeur, Pixels(m.Height));
  }

protected:
  void resizeEvent(QResizeEvent *) override {
    if (saisie)
      saisie->setGeometry(rect());
  }

  // MouseUp follows a press of any button, wherever it is let go; Click
  // wants the left button, let go over the control.
  void mousePressEvent(QMouseEvent *e) override {
    if (relâché && modèle.Enabled && (!surClic || e->button() == Qt::LeftButton)) {
      enfoncé = true;
      update();
    }
    e->accept();
  }

  void mouseReleaseEvent(QMouseEvent *e) override {
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

  void paintEvent(QPaintEvent *) override {
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
        p.setPen(QColor(20, 20, 20));
        p.drawRect(rect().adjusted(0, 0, -1, -1));
      }
      p.setFont(PoliceQt(m.police));
      p.setPen(Couleur(m.ForeColor, palette));
      int drapeaux = m.alignement == Alignement::Centre   ? Qt::AlignHCenter
                     : m.alignement == Alignement::Droite ? Qt::AlignRight
                                                          : Qt::AlignLeft;
      drapeaux |= m.RetourLigne ? Qt::TextWordWrap | Qt::AlignTop : Qt::AlignVCenter;
      p.drawText(rect().adjusted(1, 0, -1, 0), drapeaux, Texte(m.Caption));
      break;
    }
    case Genre::Web:
      p.fillRect(rect(), Qt::black);
      break;
    default:
      p.fillRect(rect(), Couleur(m.BackColor, palette));
    }
  }

private:
  bool enfoncé = false;

  // A raised button in its colour, sunk while pressed; a picture or a caption
  // in the middle, greyed when the button is off.
  void Bouton(QPainter &p) {
    const Contrôle &m = modèle;
    const QRect r = rect();
    p.fillRect(r, Couleur(m.BackColor, palette()));
    const QColor clair(255, 255, 255), sombre(105, 105, 105), noir(0, 0, 0);
    p.setPen(enfoncé ? noir : clair);
    p.drawLine(r.topLeft(), r.topRight() - QPoint(1, 0));
    p.drawLine(r.topLeft(), r.bottomLeft() - QPoint(0, 1));
    p.setPen(enfoncé ? clair : noir);
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.drawLine(r.topRight(), r.bottomRight());
    p.setPen(sombre);
    if (!enfoncé) {
      p.drawLine(r.bottomLeft() + QPoint(1, -1), r.bottomRight() + QPoint(-1, -1));
      p.drawLine(r.topRight() + QPoint(-1, 1), r.bottomRight() + QPoint(-1, -1));
    }
    const QPoint décalage = enfoncé ? QPoint(1, 1) : QPoint(0, 0);
    if (m.Picture >= 0 && m.Caption.empty()) {
      const QSize taille(32, 32);
      const QRect zone(QPoint((width() - 32) / 2, (height() - 32) / 2) + décalage, taille);
      p.setOpacity(m.Enabled ? 1.0 : 0.45);
      p.drawPixmap(zone, Image(m.Picture, taille, devicePixelRatioF()));
      p.setOpacity(1.0);
      return;
    }
    p.setFont(PoliceQt(m.police));
    const QRect zone = r.translated(décalage);
    if (!m.Enabled) {
      p.setPen(clair);
      p.drawText(zone.translated(1, 1), Qt::AlignCenter, Texte(m.Caption));
      p.setPen(QColor(128, 128, 128));
    } else {
      p.setPen(Qt::black);
    }
    p.drawText(zone, Qt::AlignCenter, Texte(m.Caption));
  }
};

// The window's background: black with the stars, under every panel.
class FondÉtoilé : public QWidget {
public:
  FondÉtoilé(TroisNiveaux &t, QWidget *parent) : QWidget(parent), t(t) {
    setAttribute(Qt::WA_OpaquePaintEvent);
  }
  std::function<void()> premierAffichage;

protected:
  void paintEvent(QPaintEvent *e) override {
    QPainter p(this);
    for (const QRect &r : e->region())
      p.fillRect(r, Qt::black);
    for (int i = 1; i <= 50; ++i) {
      const QImage &étoile = Étoile(t.EtoileRayon[i], devicePixelRatioF());
      const QSizeF taille = étoile.deviceIndependentSize();
      const QPointF coin(t.EtoileX[i] / 15.0 - taille.width() / 2,
                         t.EtoileY[i] / 15.0 - taille.height() / 2);
      if (e->region().intersects(QRectF(coin, taille).toAlignedRect()))
        p.drawImage(coin, étoile);
    }
    if (premierAffichage) {
      auto rappel = std::move(premierAffichage);
      premierAffichage = nullptr;
      rappel();
    }
  }

private:
  TroisNiveaux &t;

  // A star is a dot of a pixel or two: drawn once per radius and ratio, then
  // copied, which costs far less than a curve at each of 64 ticks a second.
  static const QImage &Étoile(int rayonTwips, qreal ratio) {
    static QHash<QPair<int, qreal>, QImage> cache;
    const auto clé = qMakePair(rayonTwips, ratio);
    auto it = cache.find(clé);
    if (it == cache.end()) {
      const qreal rayon = std::max(0.5, rayonTwips / 15.0);
      const int côté = 2 * static_cast<int>(std::ceil(rayon)) + 2;
      QImage image(QSize(côté, côté) * ratio, QImage::Format_ARGB32_Premultiplied);
      image.setDevicePixelRatio(ratio);
      image.fill(Qt::transparent);
      QPainter p(&image);
      p.setRenderHint(QPainter::Antialiasing);
      p.setPen(Qt::NoPen);
      p.setBrush(Qt::white);
      p.drawEllipse(QPointF(côté / 2.0, côté / 2.0), rayon, rayon);
      p.end();
      it = cache.insert(clé, image);
    }
    return *it;
  }
};

FenêtreTable::FenêtreTable(TroisNiveaux &table, PlateformeQt &plateforme)
    : t(table), plateforme(plateforme) {
  setWindowTitle(QString::fromStdString(t.Fenêtre.Form.Caption));
  setFixedSize(Pixels(t.Fenêtre.Form.Width), Pixels(t.Fenêtre.Form.Height));
  fond = new FondÉtoilé(t, this);
  fond->setGeometry(rect());
  Construit();
  Relie();
  Raccourcis();
  plateforme.table = &t;
  plateforme.aprèsTour = [this] { Synchronise(); };

  // Stars at about 64 ticks a second, the pace their speeds were made for.
  étoiles.setTimerType(Qt::PreciseTimer);
  étoiles.setInterval(16);
  connect(&étoiles, &QTimer::timeout, this, [this] {
    if (fermé)
      return;
    std::copy(std::begin(t.EtoileX), std::end(t.EtoileX), anciensX);
    std::copy(std::begin(t.EtoileY), std::end(t.EtoileY), anciensY);
    // The tick came from the event loop: the turn it asks for first would
    // only nest another loop in it, and a deal started in there would run
    // with the stars held still.
    this->plateforme.sansTour = true;
    t.EtoilesTimer_Timer();
    this->plateforme.sansTour = false;
    DéplaceÉtoiles();
  });
  temps.setInterval(1000);
  connect(&temps, &QTimer::timeout, this, [this] { Événement([this] { t.TempsTimer_Timer(); }); });
  nonConnecté.setInterval(20000);
  connect(&nonConnecté, &QTimer::timeout, this,
          [this] { Événement([this] { t.NonConnectéTimer_Timer(); }); });
  Synchronise();
}

FenêtreTable::~FenêtreTable() {
  plateforme.aprèsTour = nullptr;
  plateforme.table = nullptr;
}

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
    vues.push_back(new VueContrôle(*c, parent));
  }
}

QWidget *FenêtreTable::Vue(const Contrôle &c) const {
  for (VueContrôle *v : vues)
    if (&v->modèle == &c)
      return v;
  return nullptr;
}

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
    auto *v = static_cast<VueContrôle *>(Vue(c));
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
  // The one way back from the widgets: what is typed in the names panel.
  for (int s = 0; s <= 3; ++s) {
    auto *v = static_cast<VueContrôle *>(Vue(f.NomsJoueursText[s]));
    QObject::connect(v->saisie, &QLineEdit::textChanged, this, [this, s](const QString &texte) {
      t.Fenêtre.NomsJoueursText[s].Text = texte.toStdString();
    });
  }
}

void FenêtreTable::Raccourcis() {
  auto &f = t.Fenêtre;
  struct Raccourci {
    QKeySequence touche;
    std::vector<std::pair<const Contrôle *, std::function<void()>>> cibles;
  };
  const std::vector<Raccourci> raccourcis = {
      {Qt::Key_F2, {{&f.NouveauJeu, [this] { t.NouveauJeu_MouseUp(); }}}},
      {Qt::Key_Return, {{&f.Joue, [this] { t.Joue_Click(); }}}},
      {Qt::Key_Enter, {{&f.Joue, [this] { t.Joue_Click(); }}}},
      {Qt::Key_Escape, {{&f.Arrêt, [this] { t.Arrêt_MouseUp(); }}}},
      {Qt::Key_F3, {{&f.Rejoue, [this] { t.Rejoue_MouseUp(); }}}},
      {Qt::Key_F4, {{&f.Mode, [this] { t.Mode_MouseUp(); }}}},
      {Qt::Key_F5, {{&f.NomsJoueurs, [this] { t.NomsJoueurs_MouseUp(); }}}},
      {Qt::Key_F6, {{&f.Scoresà0, [this] { t.Scoresà0_MouseUp(); }}}},
      {Qt::Key_F1,
       {{&f.VoirRègles[0], [this] { t.VoirRègles_Click(0); }},
        {&f.VoirRègles[1], [this] { t.VoirRègles_Click(1); }}}},
      {Qt::Key_F7,
       {{&f.VoirOrdi[0], [this] { t.VoirOrdi_Click(0); }},
        {&f.VoirOrdi[1], [this] { t.VoirOrdi_Click(1); }}}},
      {Qt::Key_PageUp, {{&f.TextScroll[0], [this] { t.TextScroll_Click(0); }}}},
      {Qt::Key_PageDown, {{&f.TextScroll[1], [this] { t.TextScroll_Click(1); }}}},
      {QKeySequence(Qt::CTRL | Qt::Key_Q), {{&f.Fin, [this] { t.Fin_MouseUp(); }}}},
  };
  for (const Raccourci &r : raccourcis) {
    auto *raccourci = new QShortcut(r.touche, this);
    const auto cibles = r.cibles;
    connect(raccourci, &QShortcut::activated, this, [this, cibles] {
      // The first of the targets that stands on the table and is live; the
      // book's button lies over its OK, so it is tried first.
      for (const auto &[contrôle, gestionnaire] : cibles)
        if (contrôle->Visible && contrôle->Enabled) {
          Événement(gestionnaire);
          return;
        }
    });
    for (const auto &cible : r.cibles) {
      QWidget *vue = Vue(*cible.first);
      const QString nom = cible.first->Caption.empty()
                              ? QString()
                              : QString::fromStdString(cible.first->Caption) + " — ";
      if (vue && vue->toolTip().isEmpty())
        vue->setToolTip(nom + "touche " + r.touche.toString(QKeySequence::NativeText));
    }
  }
  Vue(f.VoirOrdi[0])->setToolTip("Solution de l'ordinateur — touche F7");
  Vue(f.VoirRègles[0])->setToolTip("Règles du jeu — touche F1");
  Vue(f.TextScroll[0])->setToolTip("Page précédente — touche Page préc.");
  Vue(f.TextScroll[1])->setToolTip("Page suivante — touche Page suiv.");
  InstalleChoixDuJeu(this);    // F8: the card decks
  InstalleHistorique(this, t); // F9: the history of the scores
}

void FenêtreTable::Synchronise() {
  const bool premier = !isVisible() && vues.front()->copie.Nom.empty();
  for (VueContrôle *v : vues)
    v->Applique(premier);
  SynchroniseMinuteries();
}

void FenêtreTable::SynchroniseMinuteries() {
  const auto suit = [](QTimer &minuterie, const Minuterie &m) {
    if (m.Enabled && !minuterie.isActive())
      minuterie.start();
    else if (!m.Enabled && minuterie.isActive())
      minuterie.stop();
  };
  suit(étoiles, t.Fenêtre.EtoilesTimer);
  suit(temps, t.Fenêtre.TempsTimer);
  suit(nonConnecté, t.Fenêtre.NonConnectéTimer);
}

// Only the little squares round each star's old and new place are repainted,
// and none that a panel hides.
void FenêtreTable::DéplaceÉtoiles() {
  QRegion couvert;
  for (QWidget *enfant : fond->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
    if (enfant->isVisible())
      couvert += enfant->geometry();
  QRegion àRepeindre;
  for (int i = 1; i <= 50; ++i) {
    const int marge = 2 + t.EtoileRayon[i] / 15;
    for (const QPointF centre : {QPointF(anciensX[i] / 15.0, anciensY[i] / 15.0),
                                 QPointF(t.EtoileX[i] / 15.0, t.EtoileY[i] / 15.0)}) {
      const QRect carré(centre.toPoint() - QPoint(marge, marge),
                        QSize(2 * marge + 1, 2 * marge + 1));
      if (!couvert.contains(carré))
        àRepeindre += carré;
    }
  }
  if (!àRepeindre.isEmpty())
    fond->update(àRepeindre);
}

void FenêtreTable::closeEvent(QCloseEvent *event) {
  if (!fermé && !t.SessionTerminée)
    t.Form_QueryUnload();
  fermé = true;
  étoiles.stop();
  event->accept();
}

void FenêtreTable::PremierAffichage(std::function<void()> rappel) {
  static_cast<FondÉtoilé *>(fond)->premierAffichage = std::move(rappel);
}

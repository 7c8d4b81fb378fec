// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/panneaux/panneau_historique.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "core/table_state.h"

namespace {

// The seats' bright shades read on the panel's dark blue.
QColor CouleurDuSiège(int s) {
  const uint32_t bgr = CouleurSiègeClaire[s];
  return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
}

const QColor Fond(18, 24, 44);
const QColor Trait(110, 120, 150);
const QColor Texte(235, 235, 235);

QString Moyenne(double x) {
  QString texte = QString::number(x, 'f', 2);
  if (texte == "-0.00")
    texte = "0.00";
  return texte.replace('.', QCoreApplication::translate("Historique", ",", "decimal separator"));
}

QFont PolicePixels(qreal pixels, bool gras = false) {
  QFont f("Liberation Sans");
  f.setPixelSize(std::max(7, static_cast<int>(std::lround(pixels))));
  f.setBold(gras);
  return f;
}

// A round step for about `voulu` intervals over `étendue`: 1, 2 or 5 times a
// power of ten.
double Pas(double étendue, int voulu) {
  const double brut = std::max(1.0, étendue / voulu);
  const double puissance = std::pow(10.0, std::floor(std::log10(brut)));
  for (const double m : {1.0, 2.0, 5.0, 10.0})
    if (m * puissance >= brut)
      return m * puissance;
  return 10 * puissance;
}

} // namespace

PanneauHistorique::PanneauHistorique(TroisNiveaux &t, QWidget *fenêtre) : QWidget(fenêtre), t(t) {
  setObjectName("panneauHistorique");
  // Opaque: the stars moving under it cost no repaint of the chart.
  setAttribute(Qt::WA_OpaquePaintEvent);
  fermer = new QPushButton(this);
  // The chart and the table are painted: a screen reader gets the panel's
  // name and its figures in words.
  Nomme();
  fermer->setFocusPolicy(Qt::NoFocus);
  connect(fermer, &QPushButton::clicked, this, &QWidget::hide);
  fenêtre->installEventFilter(this);
  hide();
}

void PanneauHistorique::Nomme() {
  setAccessibleName(QCoreApplication::translate("Historique", "Historique des scores"));
  fermer->setText(QCoreApplication::translate("Historique", "FERMER"));
  fermer->setToolTip(QCoreApplication::translate("Historique", "Fermer l'historique — touche F9"));
}

// Another language: the button, and the table's heads when it is open.
void PanneauHistorique::changeEvent(QEvent *e) {
  if (e->type() == QEvent::LanguageChange) {
    Nomme();
    if (isVisible())
      Lit();
    update();
  }
  QWidget::changeEvent(e);
}

void PanneauHistorique::Bascule() {
  if (isVisible()) {
    hide();
    return;
  }
  Lit();
  Place();
  show();
  raise();
}

void PanneauHistorique::Lit() {
  lecture = historique::Lit();
  figures = historique::Calcule(lecture.entrées);
  tableau.assign(1, {QCoreApplication::translate("Historique", "Joueur"),
                     QCoreApplication::translate("Historique", "Donnes"),
                     QCoreApplication::translate("Historique", "Moyenne"),
                     QCoreApplication::translate("Historique", "Meilleure"),
                     QCoreApplication::translate("Historique", "Pire"),
                     QCoreApplication::translate("Historique", "Score")});
  for (int s = 0; s <= 3; ++s) {
    const historique::FiguresSiège &f = figures.sièges[s];
    const bool vide = f.donnes == 0;
    tableau.push_back({QString::fromStdString(t.Fenêtre.JoueursLabel[s].Caption),
                       QString::number(f.donnes), vide ? "—" : Moyenne(f.moyenne),
                       vide ? "—" : QString::number(f.meilleure),
                       vide ? "—" : QString::number(f.pire), QString::number(f.score)});
  }
  QStringList phrases;
  for (std::size_t r = 1; r < tableau.size(); ++r) {
    QStringList cases;
    for (int c = 1; c < 6; ++c)
      cases << tableau[0][c].toLower() + " " + tableau[r][c];
    phrases << tableau[r][0].trimmed() + " : " + cases.join(", ");
  }
  setAccessibleDescription(phrases.join(". ") + ".");
  image = QPixmap();
}

// A 4:3 box in the middle of the window, as the table itself stands.
void PanneauHistorique::Place() {
  const QWidget *fenêtre = parentWidget();
  const QSize boîte = QSize(4, 3).scaled(fenêtre->size(), Qt::KeepAspectRatio);
  const QSize taille(static_cast<int>(boîte.width() * 0.86),
                     static_cast<int>(boîte.height() * 0.86));
  setGeometry(QRect(
      QPoint((fenêtre->width() - taille.width()) / 2, (fenêtre->height() - taille.height()) / 2),
      taille));
}

bool PanneauHistorique::eventFilter(QObject *objet, QEvent *e) {
  if (objet == parent() && e->type() == QEvent::Resize && isVisible())
    Place();
  return false;
}

void PanneauHistorique::resizeEvent(QResizeEvent *) {
  const int h = height();
  fermer->setFont(PolicePixels(h * 0.032, true));
  const QSize bouton(static_cast<int>(h * 0.24), static_cast<int>(h * 0.065));
  fermer->setGeometry(QRect(
      QPoint(width() - bouton.width() - h / 40, height() - bouton.height() - h / 40), bouton));
  image = QPixmap();
}

void PanneauHistorique::mousePressEvent(QMouseEvent *e) { e->accept(); }

void PanneauHistorique::paintEvent(QPaintEvent *e) {
  if (image.isNull() || image.size() != size() * devicePixelRatioF())
    Dessine();
  QPainter p(this);
  for (const QRect &r : e->region())
    p.drawPixmap(
        r, image,
        QRectF(QRectF(r).topLeft() * devicePixelRatioF(), QSizeF(r.size()) * devicePixelRatioF()));
}

void PanneauHistorique::Dessine() {
  const qreal ratio = devicePixelRatioF();
  image = QPixmap(size() * ratio);
  image.setDevicePixelRatio(ratio);
  const qreal l = width(), h = height();
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.fillRect(QRectF(0, 0, l, h), Fond);
  p.setPen(QPen(QColor(200, 200, 210), std::max(1.0, h * 0.004)));
  p.drawRect(QRectF(0.5, 0.5, l - 1, h - 1));

  const qreal marge = h * 0.035;
  p.setFont(PolicePixels(h * 0.045, true));
  p.setPen(Texte);
  p.drawText(QRectF(marge, marge * 0.6, l - 2 * marge, h * 0.07), Qt::AlignLeft | Qt::AlignVCenter,
             QCoreApplication::translate("Historique", "HISTORIQUE DES SCORES"));

  // The entries shown: the last deals, with the resets among them.
  std::vector<const historique::Entrée *> montrées;
  int donnes = 0;
  for (auto it = lecture.entrées.rbegin(); it != lecture.entrées.rend() && donnes < DonnesMontrées;
       ++it) {
    montrées.push_back(&*it);
    donnes += it->remise ? 0 : 1;
  }
  std::reverse(montrées.begin(), montrées.end());
  const int premièreDonne = figures.donnes - donnes + 1;

  p.setFont(PolicePixels(h * 0.026));
  p.drawText(QRectF(marge, marge * 0.6, l - 2 * marge, h * 0.07), Qt::AlignRight | Qt::AlignVCenter,
             donnes == 0 ? QString()
                         : QCoreApplication::translate("Historique", "donnes %1 à %2")
                               .arg(premièreDonne)
                               .arg(figures.donnes));

  double bas = 0, haut = 0;
  for (const auto *e : montrées)
    for (int32_t s : e->scores) {
      bas = std::min<double>(bas, e->remise ? 0 : s);
      haut = std::max<double>(haut, e->remise ? 0 : s);
    }
  const double pas = Pas(haut - bas, 5);
  bas = std::floor(bas / pas) * pas;
  haut = std::ceil(haut / pas) * pas;
  if (haut <= bas)
    haut = bas + pas;
  // The scale's labels have room for the longest, up to a score's limits.
  const QFontMetricsF mesureÉchelle(PolicePixels(h * 0.024));
  const qreal étiquettes =
      std::max({h * 0.078, mesureÉchelle.horizontalAdvance(QString::number(qint64(bas))),
                mesureÉchelle.horizontalAdvance(QString::number(qint64(haut)))});
  const qreal gauche = marge + étiquettes + h * 0.012;
  const QRectF graphe(gauche, h * 0.12, l - marge - gauche - l * 0.17, h * 0.44);
  if (montrées.empty()) {
    p.setFont(PolicePixels(h * 0.035));
    p.drawText(
        graphe, Qt::AlignCenter,
        lecture.trouvé
            ? QCoreApplication::translate("Historique", "Aucune donne dans l'historique.")
            : QCoreApplication::translate(
                  "Historique", "Pas encore d'historique : il commence à la prochaine donne."));
  } else {
    const int n = static_cast<int>(montrées.size());
    const auto X = [&](int i) {
      return n == 1 ? graphe.center().x() : graphe.left() + graphe.width() * i / (n - 1);
    };
    const auto Y = [&](double v) {
      return graphe.bottom() - graphe.height() * (v - bas) / (haut - bas);
    };

    // The scale: a line at each step, the zero line brighter.
    p.setFont(PolicePixels(h * 0.024));
    for (double v = bas; v <= haut + pas / 2; v += pas) {
      p.setPen(QPen(v == 0 ? QColor(190, 190, 200) : QColor(60, 68, 95), v == 0 ? 1.5 : 1));
      p.drawLine(QPointF(graphe.left(), Y(v)), QPointF(graphe.right(), Y(v)));
      p.setPen(Trait.lighter(140));
      p.drawText(QRectF(marge, Y(v) - h * 0.02, graphe.left() - marge - h * 0.012, h * 0.04),
                 Qt::AlignRight | Qt::AlignVCenter, QString::number(static_cast<long long>(v)));
    }
    // Deal numbers under the chart, and the resets as dashed lines.
    int numéro = premièreDonne;
    const int pasDonnes = std::max(1, static_cast<int>(Pas(n, 6)));
    for (int i = 0; i < n; ++i) {
      if (montrées[i]->remise) {
        p.setPen(QPen(QColor(255, 120, 120), std::max(1.0, h * 0.003), Qt::DashLine));
        p.drawLine(QPointF(X(i), graphe.top()), QPointF(X(i), graphe.bottom()));
        p.setPen(QColor(255, 150, 150));
        p.drawText(QRectF(X(i) - h * 0.1, graphe.top() - h * 0.035, h * 0.2, h * 0.03),
                   Qt::AlignCenter, QCoreApplication::translate("Table", "SCORES A 0"));
        continue;
      }
      if ((numéro - 1) % pasDonnes == 0 || n == 1) {
        p.setPen(Trait.lighter(140));
        p.drawText(QRectF(X(i) - h * 0.05, graphe.bottom() + h * 0.005, h * 0.1, h * 0.035),
                   Qt::AlignHCenter | Qt::AlignTop, QString::number(numéro));
      }
      ++numéro;
    }
    // The four lines; a reset brings them to 0.
    qreal fins[4];
    for (int s = 0; s <= 3; ++s) {
      QPainterPath ligne;
      for (int i = 0; i < n; ++i) {
        const QPointF point(X(i), Y(montrées[i]->remise ? 0 : montrées[i]->scores[s]));
        if (i == 0)
          ligne.moveTo(point);
        else
          ligne.lineTo(point);
      }
      p.setPen(QPen(CouleurDuSiège(s), std::max(1.5, h * 0.005), Qt::SolidLine, Qt::RoundCap,
                    Qt::RoundJoin));
      p.setBrush(Qt::NoBrush);
      p.drawPath(ligne);
      if (n == 1) {
        p.setBrush(CouleurDuSiège(s));
        p.drawEllipse(ligne.currentPosition(), h * 0.008, h * 0.008);
      }
      fins[s] = ligne.currentPosition().y();
    }
    // Each name beside the end of its line, pushed apart where they meet.
    const qreal écart = h * 0.034;
    int ordre[4] = {0, 1, 2, 3};
    std::sort(std::begin(ordre), std::end(ordre), [&](int a, int b) { return fins[a] < fins[b]; });
    qreal places[4];
    for (int k = 0; k < 4; ++k)
      places[ordre[k]] =
          k == 0 ? fins[ordre[0]] : std::max(fins[ordre[k]], places[ordre[k - 1]] + écart);
    const qreal débordement = places[ordre[3]] - (graphe.bottom() + h * 0.02);
    if (débordement > 0)
      for (qreal &y : places)
        y -= débordement;
    p.setFont(PolicePixels(h * 0.028, true));
    for (int s = 0; s <= 3; ++s) {
      p.setPen(CouleurDuSiège(s));
      p.drawText(QRectF(graphe.right() + h * 0.02, places[s] - écart / 2,
                        l - graphe.right() - marge, écart),
                 Qt::AlignLeft | Qt::AlignVCenter, tableau[s + 1][0]);
    }
  }

  // The figures of every deal in the file, seat by seat.
  const qreal dessus = h * 0.62, rangée = h * 0.052;
  const qreal proportions[6] = {0.34, 0.48, 0.63, 0.78, 0.89, 1.0}; // right edges, in the width
  const qreal largeur = l - 2 * marge;
  // Each column of figures at least as wide as its widest figure and a
  // space; the names get what is left, and the font shrinks when a fifth
  // of the width would not be left for them.
  qreal bords[6], taillePolice = h * 0.032;
  QFont police;
  while (true) {
    police = PolicePixels(taillePolice, true);
    const QFontMetricsF m(police);
    bords[5] = largeur;
    for (int c = 5; c >= 1; --c) {
      qreal besoin = largeur * (proportions[c] - proportions[c - 1]);
      for (const auto &ligne : tableau)
        besoin = std::max(besoin, m.horizontalAdvance(ligne[c] + "  "));
      bords[c - 1] = bords[c] - besoin;
    }
    if (bords[0] >= largeur * 0.2 || taillePolice <= 7)
      break;
    taillePolice *= 0.9;
  }
  p.setPen(QPen(Trait, 1));
  p.drawLine(QPointF(marge, dessus + rangée), QPointF(l - marge, dessus + rangée));
  p.setFont(police);
  for (int r = 0; r < static_cast<int>(tableau.size()); ++r) {
    p.setPen(r == 0 ? Trait.lighter(150) : CouleurDuSiège(r - 1));
    const qreal y = dessus + r * rangée + (r > 0 ? h * 0.01 : 0);
    p.drawText(QRectF(marge, y, std::max<qreal>(0, bords[0]), rangée),
               Qt::AlignLeft | Qt::AlignVCenter,
               QFontMetricsF(police).elidedText(tableau[r][0], Qt::ElideRight,
                                                std::max<qreal>(0, bords[0] - h * 0.01)));
    for (int c = 1; c < 6; ++c)
      p.drawText(QRectF(marge + bords[c - 1], y, bords[c] - bords[c - 1], rangée),
                 Qt::AlignRight | Qt::AlignVCenter, tableau[r][c]);
  }
  if (lecture.lignesIgnorées > 0) {
    p.setFont(PolicePixels(h * 0.024));
    p.setPen(QColor(255, 150, 150));
    p.drawText(
        QRectF(marge, h - h * 0.07, l * 0.6, h * 0.05), Qt::AlignLeft | Qt::AlignVCenter,
        QCoreApplication::translate("Historique", "%1 ligne(s) illisible(s) du fichier passée(s)")
            .arg(lecture.lignesIgnorées));
  }
}

PanneauHistorique *InstalleHistorique(QWidget *fenêtre, TroisNiveaux &t) {
  return new PanneauHistorique(t, fenêtre);
}

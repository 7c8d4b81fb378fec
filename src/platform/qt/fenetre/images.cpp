// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/fenetre/images.h"

#include <QCache>
#include <QCoreApplication>
#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <tuple>

#include "platform/qt/bureau/langue.h"
#include "platform/qt/jeux/jeux_de_cartes.h"
#include "table/controles.h"

namespace {

const QColor Rouge(200, 20, 30);
const QColor Noir(15, 15, 15);

// A suit sign in the square (x, y, t), drawn as a path so it stays crisp.
QPainterPath Couleur(int couleur, qreal x, qreal y, qreal t) {
  QPainterPath p;
  p.setFillRule(Qt::WindingFill);
  switch (couleur) {
  case 1: // diamonds
    p.moveTo(x + t / 2, y);
    p.lineTo(x + t * 0.9, y + t / 2);
    p.lineTo(x + t / 2, y + t);
    p.lineTo(x + t * 0.1, y + t / 2);
    p.closeSubpath();
    break;
  case 2: { // hearts
    const qreal r = t * 0.27;
    p.addEllipse(QPointF(x + t / 2 - r * 0.9, y + t * 0.32), r, r);
    p.addEllipse(QPointF(x + t / 2 + r * 0.9, y + t * 0.32), r, r);
    QPainterPath pointe;
    pointe.moveTo(x + t * 0.05, y + t * 0.42);
    pointe.lineTo(x + t * 0.95, y + t * 0.42);
    pointe.lineTo(x + t / 2, y + t);
    pointe.closeSubpath();
    p.addPath(pointe);
    break;
  }
  case 3: { // spades
    const qreal r = t * 0.24;
    p.addEllipse(QPointF(x + t / 2 - r * 0.95, y + t * 0.58), r, r);
    p.addEllipse(QPointF(x + t / 2 + r * 0.95, y + t * 0.58), r, r);
    QPainterPath pointe;
    pointe.moveTo(x + t / 2, y);
    pointe.lineTo(x + t * 0.93, y + t * 0.55);
    pointe.lineTo(x + t * 0.07, y + t * 0.55);
    pointe.closeSubpath();
    p.addPath(pointe);
    QPainterPath pied;
    pied.moveTo(x + t / 2, y + t * 0.6);
    pied.lineTo(x + t * 0.7, y + t);
    pied.lineTo(x + t * 0.3, y + t);
    pied.closeSubpath();
    p.addPath(pied);
    break;
  }
  default: { // clubs
    const qreal r = t * 0.21;
    p.addEllipse(QPointF(x + t / 2, y + r), r, r);
    p.addEllipse(QPointF(x + t / 2 - r * 1.1, y + t * 0.52), r, r);
    p.addEllipse(QPointF(x + t / 2 + r * 1.1, y + t * 0.52), r, r);
    // The heart of the sign, where the three lobes and the stem would
    // otherwise leave light through.
    p.addEllipse(QPointF(x + t / 2, y + t * 0.47), r * 0.6, r * 0.6);
    QPainterPath pied;
    pied.moveTo(x + t / 2, y + t * 0.4);
    pied.lineTo(x + t * 0.7, y + t);
    pied.lineTo(x + t * 0.3, y + t);
    pied.closeSubpath();
    p.addPath(pied);
    break;
  }
  }
  return p;
}

// The court cards' letters are those of the language spoken.
const char *const Rangs[13] = {"2",
                               "3",
                               "4",
                               "5",
                               "6",
                               "7",
                               "8",
                               "9",
                               "10",
                               QT_TRANSLATE_NOOP("Cartes", "V"),
                               QT_TRANSLATE_NOOP("Cartes", "D"),
                               QT_TRANSLATE_NOOP("Cartes", "R"),
                               QT_TRANSLATE_NOOP("Cartes", "A")};

// Where the pips of ranks 2..10 stand, in a 3 x 7 grid of the card's middle.
const std::vector<QPointF> &Pips(int rang) {
  static const std::vector<QPointF> pips[9] = {
      {{1, 0}, {1, 6}},
      {{1, 0}, {1, 3}, {1, 6}},
      {{0, 0}, {2, 0}, {0, 6}, {2, 6}},
      {{0, 0}, {2, 0}, {1, 3}, {0, 6}, {2, 6}},
      {{0, 0}, {2, 0}, {0, 3}, {2, 3}, {0, 6}, {2, 6}},
      {{0, 0}, {2, 0}, {1, 1.5}, {0, 3}, {2, 3}, {0, 6}, {2, 6}},
      {{0, 0}, {2, 0}, {1, 1.5}, {0, 3}, {2, 3}, {1, 4.5}, {0, 6}, {2, 6}},
      {{0, 0}, {2, 0}, {0, 2}, {2, 2}, {1, 3}, {0, 4}, {2, 4}, {0, 6}, {2, 6}},
      {{0, 0}, {2, 0}, {1, 1}, {0, 2}, {2, 2}, {0, 4}, {2, 4}, {1, 5}, {0, 6}, {2, 6}},
  };
  return pips[rang];
}

// Rank over suit in a corner strip of width l * 0.26: narrow enough to read
// on the 24-pixel strip that the fan leaves showing.
void Coin(QPainter &p, const QString &rang, int couleur, const QColor &teinte, qreal x, qreal l,
          qreal h) {
  QFont f("Liberation Sans");
  f.setBold(true);
  f.setPixelSize(int(std::lround(h * 0.15)));
  if (rang == "10")
    f.setStretch(75);
  p.setFont(f);
  p.setPen(teinte);
  const qreal largeur = l * 0.26;
  p.drawText(QRectF(x, h * 0.015, largeur, h * 0.16), Qt::AlignHCenter | Qt::AlignTop, rang);
  const qreal t = l * 0.17;
  p.fillPath(Couleur(couleur, x + largeur / 2 - t / 2, h * 0.18, t), teinte);
}

void Face(QPainter &p, int code, qreal l, qreal h) {
  const int rang = code % 13, couleur = code / 13;
  const QColor teinte = couleur == 1 || couleur == 2 ? Rouge : Noir;
  const QString texte = QCoreApplication::translate("Cartes", Rangs[rang]);
  for (int demiTour = 0; demiTour < 2; ++demiTour) {
    p.save();
    if (demiTour) { // the lower corners are the upper ones turned about
      p.translate(l, h);
      p.rotate(180);
    }
    Coin(p, texte, couleur, teinte, 0, l, h);
    Coin(p, texte, couleur, teinte, l - l * 0.26, l, h);
    p.restore();
  }
  const QRectF milieu(l * 0.27, h * 0.12, l * 0.46, h * 0.76);
  if (rang >= 9 && rang <= 11) {
    // Court cards: a framed letter over the suit.
    p.setPen(QPen(teinte, std::max(1.0, l * 0.015)));
    p.setBrush(Qt::NoBrush);
    p.drawRect(milieu.adjusted(0, h * 0.02, 0, -h * 0.02));
    QFont f("Liberation Serif");
    f.setBold(true);
    f.setPixelSize(int(std::lround(h * 0.3)));
    p.setFont(f);
    p.drawText(milieu.adjusted(0, h * 0.04, 0, -h * 0.3), Qt::AlignCenter, texte);
    const qreal t = l * 0.24;
    p.fillPath(Couleur(couleur, l / 2 - t / 2, milieu.bottom() - h * 0.3, t), teinte);
  } else if (rang == 12) {
    const qreal t = l * 0.42;
    p.fillPath(Couleur(couleur, l / 2 - t / 2, h / 2 - t / 2, t), teinte);
  } else {
    const qreal t = l * 0.16;
    for (QPointF pip : Pips(rang)) {
      const qreal x = milieu.left() + pip.x() * (milieu.width() - t) / 2;
      const qreal y = milieu.top() + h * 0.02 + pip.y() * (milieu.height() - h * 0.04 - t) / 6;
      p.save();
      p.translate(x + t / 2, y + t / 2);
      if (pip.y() > 3) // the lower pips stand upside down
        p.rotate(180);
      p.fillPath(Couleur(couleur, -t / 2, -t / 2, t), teinte);
      p.restore();
    }
  }
}

void Dos(QPainter &p, qreal l, qreal h) {
  const qreal marge = l * 0.07;
  const QRectF champ(marge, marge, l - 2 * marge, h - 2 * marge);
  p.fillRect(champ, QColor(30, 70, 170));
  p.setPen(QPen(QColor(90, 130, 220), std::max(1.0, l * 0.012)));
  for (qreal d = -h; d < l + h; d += l * 0.09) {
    p.drawLine(
        QLineF(champ.left() + d, champ.top(), champ.left() + d + champ.height(), champ.bottom()));
    p.drawLine(
        QLineF(champ.left() + d, champ.bottom(), champ.left() + d + champ.height(), champ.top()));
  }
  p.setPen(QPen(Qt::black, std::max(1.0, l * 0.012)));
  p.setBrush(Qt::NoBrush);
  p.drawRect(champ);
}

void Joker(QPainter &p, bool rouge, qreal l, qreal h) {
  const QColor teinte = rouge ? Rouge : Noir;
  QFont f("Liberation Sans");
  f.setBold(true);
  f.setPixelSize(int(std::lround(h * 0.13)));
  p.setFont(f);
  p.setPen(teinte);
  p.drawText(QRectF(0, 0, l, h), Qt::AlignCenter, "J\nO\nK\nE\nR");
}

// A card: white with rounded corners and a dark edge, the clipping keeping
// the drawing inside it.
void Carte(QPainter &p, int code, qreal l, qreal h) {
  const qreal rayon = l * 0.07;
  QPainterPath bord;
  bord.addRoundedRect(QRectF(0.5, 0.5, l - 1, h - 1), rayon, rayon);
  p.fillPath(bord, Qt::white);
  p.save();
  p.setClipPath(bord);
  if (code == 54)
    Dos(p, l, h);
  else if (code == 52 || code == 53)
    Joker(p, code == 52, l, h);
  else
    Face(p, code, l, h);
  p.restore();
  p.setPen(QPen(QColor(30, 30, 30), 1));
  p.setBrush(Qt::NoBrush);
  p.drawPath(bord);
}

void Titre(QPainter &p, qreal l, qreal h) {
  p.fillRect(QRectF(0, 0, l, h), Qt::black);
  QFont f("Liberation Serif");
  f.setBold(true);
  f.setItalic(true);
  f.setPixelSize(int(std::lround(h * 0.4)));
  p.setFont(f);
  p.setPen(QColor(235, 225, 190));
  p.drawText(QRectF(0, h * 0.02, l, h * 0.48), Qt::AlignCenter, "Trois");
  p.drawText(QRectF(0, h * 0.48, l, h * 0.5), Qt::AlignCenter, "Niveaux");
}

// The 32 x 32 button pictures, drawn in a 32-unit square.
void Ordinateur(QPainter &p) {
  p.setPen(QPen(Qt::black, 1.5));
  p.setBrush(QColor(210, 210, 200));
  p.drawRoundedRect(QRectF(4, 4, 24, 18), 2, 2);
  p.setBrush(QColor(40, 90, 160));
  p.drawRect(QRectF(7, 7, 18, 12));
  p.setBrush(QColor(210, 210, 200));
  p.drawRect(QRectF(13, 22, 6, 3));
  p.drawRoundedRect(QRectF(6, 25, 20, 4), 1, 1);
}

void Livre(QPainter &p) {
  p.setPen(QPen(Qt::black, 1.5));
  p.setBrush(QColor(150, 30, 30));
  p.drawRoundedRect(QRectF(7, 4, 19, 24), 2, 2);
  p.setBrush(QColor(240, 235, 215));
  p.drawRect(QRectF(24, 6, 3, 20));
  p.setPen(QPen(QColor(230, 200, 90), 1.5));
  p.drawLine(QLineF(11, 10, 21, 10));
  p.drawLine(QLineF(11, 14, 21, 14));
  p.setPen(QPen(Qt::black, 2));
  p.drawLine(QLineF(9, 4, 9, 28));
}

void Main(QPainter &p, bool haut) {
  p.save();
  if (!haut) {
    p.translate(32, 32);
    p.rotate(180);
  }
  p.setPen(QPen(Qt::black, 1.3));
  p.setBrush(QColor(250, 225, 190));
  QPainterPath main;
  main.addRoundedRect(QRectF(13, 3, 6, 17), 3, 3);  // the pointing finger
  main.addRoundedRect(QRectF(9, 15, 15, 14), 4, 4); // the fist
  p.drawPath(main.simplified());
  p.drawLine(QLineF(12, 20, 22, 20));
  p.drawLine(QLineF(12, 24, 22, 24));
  p.restore();
}

void Dessine(QPainter &p, int index, qreal l, qreal h) {
  if (index >= 0 && index <= 54) {
    Carte(p, index, l, h);
  } else if (index == ImageTitre) {
    Titre(p, l, h);
  } else {
    p.scale(l / 32, h / 32);
    if (index == ImageOrdinateur)
      Ordinateur(p);
    else if (index == ImageLivre)
      Livre(p);
    else if (index == ImageMainHaut || index == ImageMainBas)
      Main(p, index == ImageMainHaut);
  }
}

} // namespace

QImage ImageBrute(int index, QSize taille, qreal ratio) {
  return Peint(taille, ratio,
               [&](QPainter &p) { Dessine(p, index, taille.width(), taille.height()); });
}

QPixmap Image(int index, QSize taille, qreal ratio) {
  // The cards come from the chosen deck where it has the picture.
  if (QPixmap image = jeux::Image(index, taille, ratio); !image.isNull())
    return image;
  // Bounded, since a window dragged through many sizes leaves a set of
  // pictures at each one; in kilobytes, room for the table at a few sizes.
  static QCache<QString, QPixmap> cache(64 * 1024);
  const QString clé = QString("%1/%2x%3/%4/%5")
                          .arg(index)
                          .arg(taille.width())
                          .arg(taille.height())
                          .arg(ratio)
                          .arg(LangueParlée());
  if (const QPixmap *trouvée = cache.object(clé))
    return *trouvée;
  QPixmap image = QPixmap::fromImage(ImageBrute(index, taille, ratio));
  const qsizetype coût = std::max<qsizetype>(1, image.width() * image.height() * 4 / 1024);
  cache.insert(clé, new QPixmap(image), coût);
  return image;
}

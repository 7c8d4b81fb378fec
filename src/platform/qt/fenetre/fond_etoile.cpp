// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/fenetre/fond_etoile.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

#include "core/table_state.h"

namespace {

// A star is a dot of a pixel or two at the designed size: drawn once per
// radius, scale and ratio, then copied, which costs far less than a curve
// at every image.
const QImage &Étoile(int rayonTwips, double échelle, qreal ratio) {
  static std::map<std::tuple<int, double, qreal>, QImage> cache;
  const auto clé = std::make_tuple(rayonTwips, échelle, ratio);
  auto it = cache.find(clé);
  if (it == cache.end()) {
    if (cache.size() > 400) // a window dragged through many sizes
      cache.clear();
    const qreal rayon = std::max(0.5, rayonTwips * échelle / 15.0);
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
    it = cache.emplace(clé, image).first;
  }
  return it->second;
}

// Halves joined pairwise: a hundred rectangles one by one would cost a
// hundred ever longer merges.
QRegion Réunion(const QRect *r, int n) {
  if (n <= 1)
    return n == 1 ? QRegion(r[0]) : QRegion();
  return Réunion(r, n / 2) | Réunion(r + n / 2, n - n / 2);
}

} // namespace

FondÉtoilé::FondÉtoilé(TroisNiveaux &t, const double &échelle, QWidget *parent)
    : QWidget(parent), t(t), échelle(échelle) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

QPointF FondÉtoilé::Centre(float x, float y) const {
  return QPointF(x * échelle / 15.0, y * échelle / 15.0);
}

void FondÉtoilé::paintEvent(QPaintEvent *e) {
  QPainter p(this);
  for (const QRect &r : e->region())
    p.fillRect(r, Qt::black);
  const qreal ratio = devicePixelRatioF();
  for (int i = 1; i <= 50; ++i) {
    const QImage &étoile = Étoile(t.EtoileRayon[i], échelle, ratio);
    const QSizeF taille = étoile.deviceIndependentSize();
    const QPointF coin =
        Centre(t.EtoileX[i], t.EtoileY[i]) - QPointF(taille.width() / 2, taille.height() / 2);
    if (e->region().intersects(QRectF(coin, taille).toAlignedRect()))
      p.drawImage(coin, étoile);
  }
  if (premierAffichage) {
    auto rappel = std::move(premierAffichage);
    premierAffichage = nullptr;
    rappel();
  }
}

void FondÉtoilé::AvantTick() {
  std::copy(std::begin(t.EtoileX), std::end(t.EtoileX), anciensX);
  std::copy(std::begin(t.EtoileY), std::end(t.EtoileY), anciensY);
}

void FondÉtoilé::AprèsTick() {
  // Each star's old and new place: the server gets some fifty to a hundred
  // small rectangles an image.
  QRect carrés[100];
  int nombre = 0;
  const QRect tout = rect();
  for (int i = 1; i <= 50; ++i) {
    const int marge = 2 + static_cast<int>(std::ceil(t.EtoileRayon[i] * échelle / 15.0));
    const auto carré = [marge](QPointF centre) {
      return QRect(centre.toPoint() - QPoint(marge, marge), QSize(2 * marge + 1, 2 * marge + 1));
    };
    const QRect avant = carré(Centre(anciensX[i], anciensY[i])) & tout;
    const QRect après = carré(Centre(t.EtoileX[i], t.EtoileY[i])) & tout;
    if (avant == après)
      continue; // a slow star that has not moved a pixel
    // A star leaves no trail: a fast one is two squares far apart, only a
    // slow one the strip round both.
    if (avant.intersects(après.adjusted(0, -1, 0, 1)))
      carrés[nombre++] = avant | après;
    else
      for (const QRect &r : {avant, après})
        if (!r.isEmpty())
          carrés[nombre++] = r;
  }
  QRegion àRepeindre = Réunion(carrés, nombre);
  // Nothing under an opaque panel: Qt would paint the panel again, text and
  // all, for a star that cannot be seen there.
  for (const QObject *objet : children())
    if (objet->isWidgetType()) {
      const auto *enfant = static_cast<const QWidget *>(objet);
      if (enfant->isVisible() && enfant->testAttribute(Qt::WA_OpaquePaintEvent))
        àRepeindre -= enfant->geometry();
    }
  // Painted now: an update would cost the event loop one more turn an image.
  if (!àRepeindre.isEmpty())
    repaint(àRepeindre);
}

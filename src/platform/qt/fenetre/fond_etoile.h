// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The table's background: black with the falling stars, under every panel,
// drawn at the window's scale.

#include <QWidget>
#include <functional>

class TroisNiveaux;

class FondÉtoilé : public QWidget {
public:
  FondÉtoilé(TroisNiveaux &t, const double &échelle, QWidget *parent);
  // Called once, when the table is first painted.
  std::function<void()> premierAffichage;

  // Notes where the stars are before a tick moves them.
  void AvantTick();
  // Repaints the little squares round each star's old and new place, less
  // what the panels hide.
  void AprèsTick();

protected:
  void paintEvent(QPaintEvent *e) override;

private:
  TroisNiveaux &t;
  const double &échelle;
  float anciensX[51] = {}, anciensY[51] = {};

  QPointF Centre(float x, float y) const;
};

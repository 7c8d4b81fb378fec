// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// One control of the model on screen: it paints itself from a copy of the
// model's properties, at the window's scale, and sends its releases to the
// game.

#include <QFont>
#include <QPalette>
#include <QWidget>
#include <functional>

#include "table/controles.h"

class QLineEdit;

// Twips to pixels at `échelle` (1 at the designed 1024 x 768).
int Pixels(int twips, double échelle);
QColor Couleur(uint32_t bgr, const QPalette &palette);
// The control's font at `échelle`: sizes are points of a 96-dpi screen, so
// in pixels the layout does not depend on the screen's own dpi.
QFont PoliceQt(const Police &p, double échelle);
QString Texte(const std::string &s);
// The control's caption as shown, in the language the game speaks.
QString TexteAffiché(const Contrôle &c);

class VueContrôle : public QWidget {
public:
  VueContrôle(const Contrôle &c, const double &échelle, QWidget *parent);

  const Contrôle &modèle;
  Contrôle copie;
  std::function<void()> relâché;
  bool surClic = false; // Click needs the release over the control
  QLineEdit *saisie = nullptr;

  // Brings the widget in line with the model; `premier` forces everything.
  void Applique(bool premier);
  // Lays the widget out again after a change of scale.
  void ChangeÉchelle();
  QRect Géométrie() const;

protected:
  void resizeEvent(QResizeEvent *) override;
  void mousePressEvent(QMouseEvent *e) override;
  void mouseReleaseEvent(QMouseEvent *e) override;
  void keyPressEvent(QKeyEvent *e) override;
  void paintEvent(QPaintEvent *) override;
  bool event(QEvent *e) override;

private:
  const double &échelle;
  bool enfoncé = false;

  void Bouton(QPainter &p);
  void PlaceÉtrangers();
};

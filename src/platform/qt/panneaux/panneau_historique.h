// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// F9 on the table: a panel over it with the running scores of the last deals
// drawn as four lines, and each seat's figures, from the history file.

#include <QPixmap>
#include <QString>
#include <QWidget>
#include <array>
#include <vector>

#include "files/historique.h"

class QPushButton;
class TroisNiveaux;

class PanneauHistorique : public QWidget {
public:
  // Deals drawn at most: enough to see a trend, few enough to tell them apart.
  static constexpr int DonnesMontrées = 60;

  PanneauHistorique(TroisNiveaux &t, QWidget *fenêtre);

  // Reads the file again and shows the panel; hides it when it was shown.
  void Bascule();
  // The figures as the panel shows them: row 0 the headings, then one row
  // per seat (name, deals, average, best, worst, score).
  const std::vector<std::array<QString, 6>> &Tableau() const { return tableau; }
  const historique::Figures &Figures() const { return figures; }
  QPushButton *BoutonFermer() const { return fermer; }

protected:
  bool eventFilter(QObject *objet, QEvent *e) override;
  void paintEvent(QPaintEvent *e) override;
  void resizeEvent(QResizeEvent *e) override;
  void mousePressEvent(QMouseEvent *e) override;
  void changeEvent(QEvent *e) override;

private:
  void Lit();
  void Nomme(); // the panel's own words, in the language spoken
  void Place();
  void Dessine(); // the chart and the table, into `image`

  TroisNiveaux &t;
  historique::Lecture lecture;
  historique::Figures figures;
  std::vector<std::array<QString, 6>> tableau;
  QPushButton *fermer = nullptr;
  QPixmap image;
};

// Creates the panel, hidden; F9 (bound by the window) calls Bascule.
PanneauHistorique *InstalleHistorique(QWidget *fenêtre, TroisNiveaux &t);

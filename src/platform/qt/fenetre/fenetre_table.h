// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The table on screen: one widget per control of the model, the stars on
// the background, and every mouse release, click, key and timer tick sent to
// the game's handler of that name. After each event the widgets are brought
// in line with the model, only where something changed. The table keeps its
// design and grows with the window: one factor turns twips into pixels, and
// the table stands in the middle of the window on black.

#include <QElapsedTimer>
#include <QHash>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "table/controles.h"

class TroisNiveaux;
class PlateformeQt;
class VueContrôle;
class FondÉtoilé;
class Clavier;
class SuiviLecteur;

class FenêtreTable : public QWidget {
public:
  FenêtreTable(TroisNiveaux &table, PlateformeQt &plateforme);
  ~FenêtreTable() override;

  // Brings every widget in line with the model.
  void Synchronise();
  // The widget that shows a control, for tests.
  QWidget *Vue(const Contrôle &c) const;
  // Every control with its widget, for tests.
  void PourChaqueVue(const std::function<void(const Contrôle &, QWidget *)> &f) const;
  // Runs a handler as an event of the window: then the widgets follow.
  void Événement(const std::function<void()> &gestionnaire);
  QWidget *Fond() const;
  // Called once, when the table is first painted.
  void PremierAffichage(std::function<void()> rappel);

  // Pixels on screen per pixel of the designed 1024 x 768 table.
  const double &Échelle() const { return échelle; }
  // F11: full screen and back to the window as it was.
  void BasculePleinÉcran();
  // Opens at the size the player last left the game at; the size is kept
  // again when the window goes. A window that would not fit the screen's
  // free area, frame included, is made the largest that fits.
  void RetrouveTaille();
  Clavier &Touches() const { return *clavier; }
  TroisNiveaux &Table() const { return t; }
  SuiviLecteur &Lecteur() const { return *lecteur; }

protected:
  void closeEvent(QCloseEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void changeEvent(QEvent *e) override;
  void showEvent(QShowEvent *e) override;
  void hideEvent(QHideEvent *e) override;
  bool eventFilter(QObject *objet, QEvent *e) override;

private:
  void Construit();
  void Relie();
  void SynchroniseMinuteries();
  void MémoriseTaille();
  void TientDansLÉcran(QSize voulue);
  // The stars run while the model wants them and the window can be seen.
  void SuitLesÉtoiles();
  void AvanceLesÉtoiles();

  TroisNiveaux &t;
  PlateformeQt &plateforme;
  double échelle = 1.0;
  FondÉtoilé *fond = nullptr;
  std::vector<VueContrôle *> vues;
  QHash<const Contrôle *, VueContrôle *> vueDe;
  Clavier *clavier = nullptr;
  std::unique_ptr<SuiviLecteur> lecteur;
  QTimer étoiles, temps, nonConnecté;
  // Runs while the stars do; the ticks made since it started.
  QElapsedTimer horlogeÉtoiles;
  qint64 ticksFaits = 0;
  bool filtreDeFenêtre = false;
  bool fermé = false;
  bool mémoriseTaille = false;
  Qt::WindowStates avantPleinÉcran = Qt::WindowNoState;
};

#pragma once
// The table on screen: one widget per control of the model, the stars on
// the background, and every mouse release, click, key and timer tick sent to
// the game's handler of that name. After each event the widgets are brought
// in line with the model, only where something changed.

#include <QHash>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "table/controles.h"

class TroisNiveaux;
class PlateformeQt;
class VueContrôle;

class FenêtreTable : public QWidget {
public:
  FenêtreTable(TroisNiveaux &table, PlateformeQt &plateforme);
  ~FenêtreTable() override;

  // Brings every widget in line with the model.
  void Synchronise();
  // The widget that shows a control, for tests.
  QWidget *Vue(const Contrôle &c) const;
  // Runs a handler as an event of the window: then the widgets follow.
  void Événement(const std::function<void()> &gestionnaire);
  QWidget *Fond() const { return fond; }
  // Called once, when the table is first painted.
  void PremierAffichage(std::function<void()> rappel);
  // The widget inside a web panel where its page goes: a window of its own
  // set into the panel, so that the web engine's compositing stays out of the
  // table's repaints (each tick of the stars would redraw the whole window).
  QWidget *PorteurWeb(const Contrôle &panneau);
  // The table as it shows, web pages included.
  QPixmap Capture();

protected:
  void closeEvent(QCloseEvent *event) override;
  void showEvent(QShowEvent *event) override;

private:
  void Construit();
  void Relie();
  void Raccourcis();
  void SynchroniseMinuteries();
  void DéplaceÉtoiles();

  TroisNiveaux &t;
  PlateformeQt &plateforme;
  QWidget *fond = nullptr;
  std::vector<VueContrôle *> vues;
  QTimer étoiles, temps, nonConnecté;
  std::vector<QWidget *> porteurs;
  QHash<QWidget *, QWidget *> conteneurs;
  bool dansÉtoiles = false;
  bool fermé = false;
  float anciensX[51] = {}, anciensY[51] = {};
};

#pragma once
// The table on screen: one widget per control of the model, the stars on
// the background, and every mouse release, click, key and timer tick sent to
// the game's handler of that name. After each event the widgets are brought
// in line with the model, only where something changed.

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
  // Every control with its widget, for tests.
  void PourChaqueVue(const std::function<void(const Contrôle &, QWidget *)> &f) const;
  // Runs a handler as an event of the window: then the widgets follow.
  void Événement(const std::function<void()> &gestionnaire);
  QWidget *Fond() const { return fond; }
  // Called once, when the table is first painted.
  void PremierAffichage(std::function<void()> rappel);

protected:
  void closeEvent(QCloseEvent *event) override;

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
  bool fermé = false;
  float anciensX[51] = {}, anciensY[51] = {};
};

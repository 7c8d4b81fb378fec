// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The platform of the real game: Qt's event loop, the desktop's clock, its
// display mode, network state and web views.

#include <QElapsedTimer>
#include <functional>
#include <memory>

#include "platform/plateforme.h"

class PagesWeb;
class TroisNiveaux;

class PlateformeQt : public Plateforme {
public:
  PlateformeQt();
  ~PlateformeQt() override;

  void TourDeBoucle() override;
  void TourDeBalayage(int siège, int groupe) override;
  void Quitte() override;
  float SecondesDepuisMinuit() override;
  std::string DossierDesDonnées() override;
  void EnumDisplaySettings(EnregistrementAffichage &enregistrement) override;
  void ChangeDisplaySettings(const EnregistrementAffichage &enregistrement) override;
  bool DemandeChangementRésolution() override;
  bool EstConnecté() override;
  void Navigue(VueWeb vue, const std::string &adresse) override;
  void SignaleErreur(const std::string &message) override;

  // Seconds that one seat's sweep lasts on screen; 0 runs it flat out.
  double duréeParSiège = 8.0;
  // The player hurries the computer: the rest of the running sweep goes
  // flat out. The next sweep is paced again.
  void Presse();
  bool pressé = false;
  // Since the last hurry, for the figures.
  QElapsedTimer depuisPression;
  // Messages go to a dialog unless a test turns that off.
  bool dialogues = true;
  // The game whose stop signal cuts a paced wait short.
  TroisNiveaux *table = nullptr;
  // Called after every turn, so the window follows the model.
  std::function<void()> aprèsTour;
  std::unique_ptr<PagesWeb> pages;
  bool quitté = false;
  // Set while a handler runs that came from the event loop and whose turn of
  // the loop would only nest another one.
  bool sansTour = false;
  // The longest stretch the sweep went without handling events, in ms.
  qint64 plusLongSansÉvénements = 0;

private:
  QElapsedTimer débutDuSiège;
  QElapsedTimer depuisDernierTour;
};

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The platform without a window, for tests and the command-line tool. Its
// turns of the event loop run a script, so a test can press STOP or move a
// card in the middle of a sweep.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/plateforme.h"

class PlateformeSansFenêtre : public Plateforme {
public:
  explicit PlateformeSansFenêtre(std::string dossier = ".") : dossier(std::move(dossier)) {}

  // Called at every turn with the turn's number, counted from 1.
  std::function<void(int tour)> script;
  int tours = 0;

  float horloge = 0; // seconds since midnight; a test moves it or not
  EnregistrementAffichage écran{1024, 768, 32, 60, 0};
  std::vector<EnregistrementAffichage> changements; // every mode change asked for
  bool accordRésolution = true;
  int demandesRésolution = 0;
  bool connecté = true;
  std::vector<std::pair<VueWeb, std::string>> pages;
  std::vector<std::string> erreurs;
  bool quitté = false;
  std::string dossier;

  void TourDeBoucle() override {
    ++tours;
    if (script)
      script(tours);
  }
  void Quitte() override { quitté = true; }
  float SecondesDepuisMinuit() override { return horloge; }
  std::string DossierDesDonnées() override { return dossier; }
  void EnumDisplaySettings(EnregistrementAffichage &e) override { e = écran; }
  void ChangeDisplaySettings(const EnregistrementAffichage &e) override {
    changements.push_back(e);
    écran.dmPelsWidth = e.dmPelsWidth;
    écran.dmPelsHeight = e.dmPelsHeight;
    écran.dmBitsPerPel = e.dmBitsPerPel;
    écran.dmDisplayFrequency = e.dmDisplayFrequency;
  }
  bool DemandeChangementRésolution() override {
    ++demandesRésolution;
    return accordRésolution;
  }
  bool EstConnecté() override { return connecté; }
  void Navigue(VueWeb vue, const std::string &adresse) override {
    pages.emplace_back(vue, adresse);
  }
  void SignaleErreur(const std::string &message) override { erreurs.push_back(message); }
};

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "core/table_state.h"

namespace {
constexpr uint32_t ChampsDuMode = 0x5C0000; // depth, width, height, frequency
}

// A screen less than 768 pixels high is switched to 1024 x 768 for the
// session, with the player's leave; only the height is looked at.
void TroisNiveaux::VérifieRésolution() {
  plateforme.EnumDisplaySettings(EnregistrementÉcran);
  ModeInitial = {EnregistrementÉcran.dmPelsWidth, EnregistrementÉcran.dmPelsHeight,
                 EnregistrementÉcran.dmBitsPerPel, EnregistrementÉcran.dmDisplayFrequency};
  if (ModeInitial.hauteur >= 768)
    return;
  if (!plateforme.DemandeChangementRésolution()) {
    DémarrageRefusé = true;
    return;
  }
  const int16_t largeur = 1024, hauteur = 768;
  ChangeRésolution(largeur, hauteur, ModeInitial.couleurs, ModeInitial.fréquence);
}

void TroisNiveaux::RestaureRésolution() {
  ChangeRésolution(ModeInitial.largeur, ModeInitial.hauteur, ModeInitial.couleurs,
                   ModeInitial.fréquence);
}

// Which of the four values are asked for decides the case; a mix that is no
// case sends the record as the last call left it.
void TroisNiveaux::ChangeRésolution(const int16_t &largeur, const int16_t &hauteur,
                                    const int16_t &couleurs, const int16_t &fréquence) {
  const bool l = largeur != 0, h = hauteur != 0, c = couleurs != 0, f = fréquence != 0;
  auto &e = EnregistrementÉcran;
  if (!l && !h && !c && !f)
    return;
  if (l && h && !c && !f) {
    e.dmPelsWidth = largeur;
    e.dmPelsHeight = hauteur;
    e.dmBitsPerPel = ModeDemandé.couleurs;
    e.dmDisplayFrequency = ModeDemandé.fréquence;
    MémoriseRésolution(largeur, hauteur, couleurs, fréquence, "ChangeResol");
  } else if (!l && !h && c && !f) {
    e.dmPelsWidth = ModeDemandé.largeur;
    e.dmPelsHeight = ModeDemandé.hauteur;
    e.dmBitsPerPel = couleurs;
    e.dmDisplayFrequency = ModeDemandé.fréquence;
    MémoriseRésolution(largeur, hauteur, couleurs, fréquence, "ChangeColor");
  } else if (!l && !h && !c && f) {
    e.dmPelsWidth = ModeDemandé.largeur;
    e.dmPelsHeight = ModeDemandé.hauteur;
    e.dmBitsPerPel = ModeDemandé.couleurs;
    e.dmDisplayFrequency = fréquence;
    MémoriseRésolution(largeur, hauteur, couleurs, fréquence, "ChangeFreq");
  } else if (l && h && c && f) {
    e.dmPelsWidth = largeur;
    e.dmPelsHeight = hauteur;
    e.dmBitsPerPel = couleurs;
    e.dmDisplayFrequency = fréquence;
    MémoriseRésolution(largeur, hauteur, couleurs, fréquence, "ChangeAll");
  }
  e.dmFields = ChampsDuMode;
  plateforme.ChangeDisplaySettings(e);
}

void TroisNiveaux::MémoriseRésolution(int16_t largeur, int16_t hauteur, int16_t couleurs,
                                      int16_t fréquence, const std::string &cas) {
  if (cas == "ChangeResol") {
    ModeDemandé.largeur = largeur;
    ModeDemandé.hauteur = hauteur;
  } else if (cas == "ChangeColor") {
    ModeDemandé.couleurs = couleurs;
  } else if (cas == "ChangeFreq") {
    ModeDemandé.fréquence = fréquence;
  } else if (cas == "ChangeAll") {
    ModeDemandé = {largeur, hauteur, couleurs, fréquence};
  }
}

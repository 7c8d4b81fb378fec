// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// A whole session without a window, its files in a temporary folder, for
// tests that drive the game through its handlers.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/table_state.h"
#include "dossier_essai.h"
#include "platform/sans_fenetre.h"

// The reference EXPERT deal, seat by seat (the human's cards dealt back to
// front), and the human's layout of it: the deal whose whole showdown the
// tests know by heart.
inline const std::vector<std::vector<int>> DonneDeRéférence = {
    {1, 17, 14, 19, 38, 2, 13, 4, 24, 43, 25, 33, 26},
    {22, 3, 36, 10, 0, 8, 9, 27, 49, 47, 48, 35, 39},
    {32, 23, 6, 34, 5, 46, 41, 20, 50, 37, 45, 16, 29},
    {11, 7, 21, 42, 12, 40, 51, 30, 28, 15, 31, 44, 18}};
inline const std::vector<int> DispositionDeRéférence = {18, 44, 31, 15, 28, 30, 51,
                                                        40, 12, 42, 21, 7,  11};

// A data file as the game ships it.
inline std::string Livré(const std::string &nom) {
  std::ifstream fichier(std::string(TN_DOSSIER_DONNEES) + "/" + nom, std::ios::binary);
  return {std::istreambuf_iterator<char>(fichier), {}};
}

// The bytes of a Tirage file holding these hands.
inline std::string TexteDeTirage(const std::vector<std::vector<int>> &mains) {
  std::string octets;
  for (const auto &main : mains)
    for (int c : main)
      octets += std::to_string(c) + "\r\n";
  return octets;
}

struct Partie {
  DossierEssai dossier;
  PlateformeSansFenêtre plateforme{dossier.Chemin()};
  TroisNiveaux t{plateforme};

  explicit Partie(uint8_t mode = 1, const std::string &scores = {}, const std::string &noms = {}) {
    if (!scores.empty())
      dossier.Écrit("Scores", scores);
    if (!noms.empty())
      dossier.Écrit("Noms", noms);
    t.Form_Load();
    EXPECT_FALSE(t.DémarrageRefusé) << t.ErreurDémarrage;
    if (mode != t.Mode)
      t.Mode_MouseUp();
  }

  // Lays the human's cards out in this order by clicks, as a player would.
  void Dispose(const std::vector<int> &voulu) {
    for (int k = 0; k <= 12; ++k)
      for (int j = k + 1; j <= 12; ++j)
        if (t.Mains[4][j] == voulu[k]) {
          t.CartesJeu_MouseUp(39 + k);
          t.CartesJeu_MouseUp(39 + j);
        }
  }

  // The captions of a family of labels, one after the other.
  template <std::size_t N>
  static std::string Textes(const Contrôle (&labels)[N], const std::string &entre = " ") {
    std::string textes;
    for (std::size_t i = 0; i < N; ++i)
      textes += (i ? entre : "") + labels[i].Caption;
    return textes;
  }
  std::string Paiements() const { return Textes(t.Fenêtre.LabelPaie); }
};

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <utility>

#include "core/table_state.h"

// The human lays out cards by swapping them two at a time: a first click
// picks a card up, a second lays it down in the place of the other.
void TroisNiveaux::CartesJeu_MouseUp(int index) {
  if (Fenêtre.NouveauJeu.Enabled)
    return;
  if (index < 39 || index > 51)
    return;
  const auto &cartes = Fenêtre.CartesJeu;
  // A picked-up card stays where it is; the hidden slot 52 holds its picture.
  if (CarteLevée == 0) {
    MontreCarte(52, cartes[index].Picture);
    EmplacementLevé = static_cast<uint8_t>(index);
    CarteLevée = 1;
    return;
  }
  MontreCarte(EmplacementLevé, cartes[index].Picture);
  MontreCarte(index, cartes[52].Picture);
  CarteLevée = 0;
  std::swap(Mains[4][EmplacementLevé - 39], Mains[4][index - 39]);
}

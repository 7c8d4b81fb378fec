#include <utility>

#include "core/table_state.h"

// The human lays out cards by swapping them two at a time: a first click
// picks a card up, a second lays it down in the place of the other.
void TroisNiveaux::CartesJeu_MouseUp(int index) {
  if (Fenêtre.NouveauJeu.Enabled)
    return;
  if (index < 39 || index > 51)
    return;
  auto &cartes = Fenêtre.CartesJeu;
  if (CarteLevée == 0) {
    cartes[52].Picture = cartes[index].Picture;
    EmplacementLevé = static_cast<uint8_t>(index);
    CarteLevée = 1;
    return;
  }
  cartes[EmplacementLevé].Picture = cartes[index].Picture;
  cartes[index].Picture = cartes[52].Picture;
  CarteLevée = 0;
  std::swap(Mains[4][EmplacementLevé - 39], Mains[4][index - 39]);
}

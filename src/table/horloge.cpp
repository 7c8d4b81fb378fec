// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <charconv>
#include <cmath>
#include <limits>

#include "core/table_state.h"

namespace {
// A time as the clock shows it: whole seconds as they are, anything else in
// its shortest form.
std::string Texte(double secondes) {
  if (std::trunc(secondes) == secondes && std::fabs(secondes) < 1e15)
    return std::to_string(static_cast<long long>(secondes));
  char tampon[32];
  const auto fin = std::to_chars(tampon, tampon + sizeof tampon, secondes).ptr;
  return std::string(tampon, fin);
}
} // namespace

void TroisNiveaux::DémarreHorloge() {
  if (Mode == 0) {
    if (TempsExpert > 0)
      Fenêtre.TempsLabel.Caption = Texte(TempsExpert);
  } else if (TempsDébutant > 0) {
    Fenêtre.TempsLabel.Caption = Texte(TempsDébutant);
  }
  TempsÉcoulé = 0;
  Fenêtre.TempsTimer.Enabled = true;
}

// Counts the seconds of the deal down from the time of the last one of this
// mode; past 0 the label stays at 0. The count stops at its 16-bit ceiling.
void TroisNiveaux::TempsTimer_Timer() {
  if (TempsÉcoulé < std::numeric_limits<int16_t>::max())
    ++TempsÉcoulé;
  const double total = Mode == 0 ? TempsExpert : TempsDébutant;
  if (!(total > 0))
    return;
  const double reste = total - TempsÉcoulé;
  Fenêtre.TempsLabel.Caption = reste < 0 ? "0" : Texte(reste);
}

// The stars fall; the window wipes and redraws them from these tables.
void TroisNiveaux::EtoilesTimer_Timer() {
  plateforme.TourDeBoucle();
  for (int i = 1; i <= 50; ++i) {
    EtoileY[i] += EtoileVitesse[i];
    if (EtoileY[i] >= Fenêtre.Form.Height) {
      EtoileY[i] = 0;
      // Whole part first, as at the start: a draw just under 1 would round up
      // to the window's edge as a float.
      EtoileX[i] = static_cast<float>(std::floor(Générateur.Tire() * Fenêtre.Form.Width));
    }
  }
}

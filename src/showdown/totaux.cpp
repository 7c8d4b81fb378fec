// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <algorithm>
#include <limits>

#include "showdown/abattage.h"

namespace abattage {

// The deal's nine numbers of each seat go to its total and, unless the scores
// were set to 0 during this deal, to its running score. The total adds to
// what it holds: the solution view empties it first.
void Totalise(TroisNiveaux &t) {
  auto &f = t.Fenêtre;
  for (int s = 0; s <= 3; ++s) {
    for (int j = 0; j <= 8; ++j)
      t.TotauxDonne[s] += Paiement(t, 9 * s + j);
    f.TotalLabel[s].Caption = std::to_string(t.TotauxDonne[s]);
    if (t.ScoresRemisà0)
      continue;
    // A score stops at the 32-bit limits rather than wrap round.
    const int64_t somme = int64_t{t.Scores[s]} + t.TotauxDonne[s];
    const int32_t score = static_cast<int32_t>(std::clamp<int64_t>(
        somme, std::numeric_limits<int32_t>::min(), std::numeric_limits<int32_t>::max()));
    t.AjoutéAuxScores[s] = static_cast<int32_t>(int64_t{score} - t.Scores[s]);
    t.Scores[s] = score;
    f.ScoreLabel[s].ForeColor = t.Scores[s] < 0 ? 0x0000FF : 0;
    f.TotalLabel[s].ForeColor = t.TotauxDonne[s] < 0 ? 0x0000FF : 0;
    f.ScoreLabel[s].Caption = std::to_string(t.Scores[s]);
  }
}

} // namespace abattage

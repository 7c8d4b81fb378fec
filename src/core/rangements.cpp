// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "core/table_state.h"

// Lists the 72072 ways to lay a hand, as positions in the hand: level 1 by
// five nested counters, level 2 by five more over the positions left, level 3
// what remains. Rows come out in lexicographic order of (level 1, level 2),
// so every 56 rows share one level 1.
void TroisNiveaux::ConstruitRangements() {
  Rangements.assign(NombreRangements + 1, {});
  int i = 0;
  for (int a = 0; a <= 8; ++a)
    for (int b = a + 1; b <= 9; ++b)
      for (int c = b + 1; c <= 10; ++c)
        for (int d = c + 1; d <= 11; ++d)
          for (int e = d + 1; e <= 12; ++e) {
            const auto pris1 = [&](int x) {
              return x == a || x == b || x == c || x == d || x == e;
            };
            for (int f = 0; f <= 8; ++f) {
              if (pris1(f))
                continue;
              for (int g = f + 1; g <= 9; ++g) {
                if (pris1(g))
                  continue;
                for (int h = g + 1; h <= 10; ++h) {
                  if (pris1(h))
                    continue;
                  for (int p = h + 1; p <= 11; ++p) {
                    if (pris1(p))
                      continue;
                    for (int q = p + 1; q <= 12; ++q) {
                      if (pris1(q))
                        continue;
                      auto &rang = Rangements[++i];
                      const int choisis[10] = {a, b, c, d, e, f, g, h, p, q};
                      for (int k = 0; k < 10; ++k)
                        rang[k] = static_cast<uint8_t>(choisis[k]);
                      int libre = 10;
                      for (int pos = 0; pos <= 12; ++pos) {
                        bool pris = false;
                        for (int k = 0; k < 10; ++k)
                          pris = pris || choisis[k] == pos;
                        if (!pris)
                          rang[libre++] = static_cast<uint8_t>(pos);
                      }
                    }
                  }
                }
              }
            }
          }
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The stars fall while the window can be seen and stand still, with no timer
// waking the game, while it cannot; shown again they go on from where they were.
#include <QElapsedTimer>
#include <algorithm>
#include <vector>

#include "table_essai.h"

namespace {
std::vector<float> Hauteurs(const TroisNiveaux &t) {
  return {std::begin(t.EtoileY) + 1, std::end(t.EtoileY)};
}
} // namespace

TEST(Étoiles, TombentQuandLaFenêtreSeVoitEtReprennentOùEllesÉtaient) {
  Table table;
  auto &f = table.fenêtre;
  auto avant = Hauteurs(table.t);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Hauteurs(table.t) != avant; }, 2000));

  const std::function<void()> caches[] = {[&] { f.hide(); }, [&] { f.showMinimized(); }};
  for (const auto &cache : caches) {
    cache();
    QTest::qWait(50);
    avant = Hauteurs(table.t);
    QTest::qWait(400);
    EXPECT_EQ(Hauteurs(table.t), avant) << "les étoiles tombent dans une fenêtre invisible";
    f.showNormal();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&f));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Hauteurs(table.t) != avant; }, 2000));
    // The time hidden is not made up for in one jump: no star that did not
    // wrap went down by more than a few ticks.
    for (int i = 1; i <= 50; ++i)
      EXPECT_LT(std::max<float>(0, table.t.EtoileY[i] - avant[i - 1]) / table.t.EtoileVitesse[i],
                12)
          << i;
  }
}

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
// The most ticks any star that did not wrap went down between two pictures.
double TicksAuPlus(const TroisNiveaux &t, const std::vector<float> &avant) {
  double plus = 0;
  for (int i = 1; i <= 50; ++i)
    if (t.EtoileY[i] >= avant[i - 1])
      plus = std::max<double>(plus, (t.EtoileY[i] - avant[i - 1]) / t.EtoileVitesse[i]);
  return plus;
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
    // The time hidden is not made up for in one jump.
    EXPECT_LT(TicksAuPlus(table.t, avant), 12);
  }
}

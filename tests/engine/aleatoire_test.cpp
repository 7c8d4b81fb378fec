#include <gtest/gtest.h>

#include "core/aleatoire.h"

TEST(Aléatoire, UneRéensemenceIdentiqueNeRépètePasLeTirage) {
  Aléatoire g;
  g.Réensemence(1234.5f);
  const double a = g.Tire();
  g.Réensemence(1234.5f);
  const double b = g.Tire();
  EXPECT_NE(a, b);
  EXPECT_GE(a, 0.0);
  EXPECT_LT(a, 1.0);
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <gtest/gtest.h>

#include <QAccessible>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include "table_essai.h"

namespace {

// The rows each seat kept, then every payment and total on the table.
std::vector<std::string> Relève(const TroisNiveaux &t) {
  std::vector<std::string> issue;
  for (int s = 0; s <= 3; ++s)
    issue.push_back(std::to_string(t.MeilleurRangement[s]));
  for (const Contrôle &c : t.Fenêtre.LabelPaie)
    issue.push_back(c.Caption);
  for (const Contrôle &c : t.Fenêtre.TotalLabel)
    issue.push_back(c.Caption);
  return issue;
}

} // namespace

// A deal played flat out, then replayed at the paced speed (32 s in
// DEBUTANT) and hurried, by Entrée, by a click on the bar and by a screen
// reader's action on it: the replay ends long before its pace, with the same
// rows kept and the same payments, and its showdown follows as usual.
TEST(Presse, LaRechercheFinitTôtAvecLeMêmeRésultat) {
  Table table;
  auto &f = table.t.Fenêtre;
  table.Clic(f.NouveauJeu);
  table.Clic(f.Joue);
  const auto attendue = Relève(table.t);
  ASSERT_GT(table.t.MeilleurRangement[3], 0) << "DEBUTANT searches the human's cards too";

  table.plateforme.duréeParSiège = 8;
  for (const int façon : {0, 1, 2}) {
    QTimer::singleShot(300, [&] {
      ASSERT_TRUE(table.t.BalayageEnCours);
      EXPECT_FALSE(f.Joue.Visible);
      if (façon == 0)
        table.Touche(Qt::Key_Return);
      else if (façon == 1)
        table.Clic(f.TempsFondSS);
      else
        QAccessible::queryAccessibleInterface(table.Vue(f.TempsShape))
            ->actionInterface()
            ->doAction("hurry");
    });
    QElapsedTimer chrono;
    chrono.start();
    table.Clic(f.Rejoue);
    EXPECT_LT(chrono.elapsed(), 16000) << "half the paced time at the most";
    EXPECT_TRUE(table.plateforme.pressé) << façon;
    EXPECT_TRUE(f.VoirOrdi[0].Visible) << "the replay's showdown followed";
    EXPECT_EQ(Relève(table.t), attendue);
  }
}

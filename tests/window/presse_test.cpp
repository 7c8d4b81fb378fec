#include <gtest/gtest.h>

#include <QAccessible>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include "table_essai.h"

namespace {

struct Issue {
  std::array<int32_t, 4> rangées;
  std::vector<std::string> paie;
};

Issue Relève(const TroisNiveaux &t) {
  Issue issue;
  for (int s = 0; s <= 3; ++s)
    issue.rangées[s] = t.MeilleurRangement[s];
  for (const Contrôle &c : t.Fenêtre.LabelPaie)
    issue.paie.push_back(c.Caption);
  for (const Contrôle &c : t.Fenêtre.TotalLabel)
    issue.paie.push_back(c.Caption);
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
  const Issue attendue = Relève(table.t);
  ASSERT_GT(attendue.rangées[3], 0) << "DEBUTANT searches the human's cards too";

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
    const Issue issue = Relève(table.t);
    EXPECT_EQ(issue.rangées, attendue.rangées);
    EXPECT_EQ(issue.paie, attendue.paie);
  }
}

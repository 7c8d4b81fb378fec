// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The computer's sweep: marks, ties, pair counts, STOP, the bar. The rows
// kept for worked hands are checked through the analysis command.
#include <gtest/gtest.h>

#include "session_essai.h"
#include "signature_balayage.h"

namespace {

// Which row a seat keeps: the marks of its special hands, the earlier of
// two equal rows, none when no row passes.
TEST(Balayage, MarquesRangéesÉgalesEtRangéesQuiNePassentPas) {
  // 13 cards of one suit: every row is an all-flush, the last one also an
  // all-straight (10..A and 5..9 over 2 3 4), which leaves 6600.
  SessionEssai s;
  s.Main(0, {13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25});
  s.t.ChercheSiège(0);
  EXPECT_EQ(s.t.MeilleurRangement[0], 72072);
  EXPECT_EQ(s.t.MeilleureValeur, 6600.0f);
  EXPECT_TRUE(s.t.ToutFlush[0] && s.t.ToutQuinte[0] && s.t.MégaQuinte[0]);
  // Rows 62770 and 69881 of this hand add up to the same float.
  s.Main(1, {25, 18, 9, 17, 46, 11, 27, 31, 3, 40, 24, 0, 30});
  s.t.ChercheSiège(1);
  EXPECT_EQ(s.t.MeilleurRangement[1], 62770);
  // 13 equal codes: levels 1 and 2 are worth 500 in every row, none
  // passes, and the row kept before stays.
  s.Main(2, std::vector<int>(13, 0));
  s.t.MeilleurRangement[2] = 4321;
  s.t.ChercheSiège(2);
  EXPECT_EQ(s.t.MeilleurRangement[2], 4321);
  EXPECT_EQ(s.t.MeilleureValeur, 0.0f);
}

// The rows kept for the benchmark's fixed deals, known by heart.
TEST(Balayage, LaSignatureDesDonnesFixesNeChangePas) {
  PlateformeSansFenêtre p("/nonexistent/troisniveaux-essai");
  TroisNiveaux t(p);
  ASSERT_TRUE(PrépareTable(t));
  EXPECT_EQ(CalculeSignature(t, false).empreinte, 0x60db6e9b687eec0dull);
}

TEST(ComptePaires, SixPairesEtMégaQuinte) {
  struct Cas {
    std::vector<int> main;
    bool six, méga;
  };
  const Cas cas[] = {
      {{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, false, true},
      {{0, 13, 26, 39, 1, 14, 2, 15, 3, 16, 4, 17, 5}, true, false}, // four of a kind, four pairs
      // Five pairs and three of a rank on places 10..12 (cards 11 and 12
      // pair first), then on places 0..2: one pair each time.
      {{0, 13, 1, 14, 2, 15, 3, 16, 4, 17, 5, 18, 31}, true, false},
      {{5, 18, 31, 0, 13, 1, 14, 2, 15, 3, 16, 4, 17}, true, false},
      {{0, 13, 1, 14, 2, 15, 3, 16, 4, 17, 5, 6, 7}, false, false},
  };
  for (const auto &c : cas) {
    SessionEssai s(1, false);
    s.Main(1, c.main);
    s.t.ComptePaires(1);
    EXPECT_EQ(s.t.SixPaires[1], c.six);
    EXPECT_EQ(s.t.MégaQuinte[1], c.méga);
  }
}

// A DEBUTANT table of 13 ranks in every seat, stopped at turn 2 (row 57) or
// left at seat 1's first turn by the end of the session. After STOP the row
// is finished and Init runs, with no pair count; after the end, seat 0 has
// had its count and nothing more runs. The row-by-row sweep stops at the
// same places: see the sweep comparison.
TEST(Balayage, StopOuFinDeSessionPendantUnTour) {
  for (bool quitte : {false, true}) {
    SessionEssai s;
    const int tour = quitte ? 1288 : 2;
    for (int j = 0; j < 4; ++j)
      s.Main(j, {0, 14, 28, 42, 4, 18, 32, 46, 8, 22, 36, 50, 12});
    std::fill(std::begin(s.t.CartesTirées), std::end(s.t.CartesTirées), 7); // Init puts 54 back
    s.plateforme.script = [&s, tour, quitte](int n) {
      EXPECT_TRUE(s.t.BalayageEnCours);
      if (n == tour)
        (quitte ? s.t.SessionTerminée : s.t.Fenêtre.Arrêt.Enabled) = quitte;
    };
    s.t.OrdiJoue();
    EXPECT_EQ(s.plateforme.tours, tour);
    EXPECT_FALSE(s.t.BalayageEnCours || s.t.MégaQuinte[1]);
    EXPECT_EQ(s.t.MégaQuinte[0], quitte);
    EXPECT_EQ(s.t.CartesTirées[0], quitte ? 7 : PasDeCarte) << "Init after a STOP only";
    for (int j = 0; j < 5 && !quitte; ++j)
      EXPECT_EQ(s.t.Niveau2[j], s.t.Mains[0][s.t.Rangements[57][5 + j]]);
  }
}

TEST(Balayage, BarreDeProgrèsDansLesDeuxModes) {
  for (uint8_t mode : {0, 1}) {
    SessionEssai s(mode);
    s.t.OrdiJoue();
    EXPECT_EQ(s.t.PasProgrès, mode ? 1109 : 1081);
    const auto &r = s.plateforme.relevé;
    ASSERT_EQ(r.size(), 1287u * (mode + 3));
    for (int j = 0; j < mode + 3; ++j) {
      const PlateformeEspionne::Tour &premier = r[1287 * j], &dernier = r[1287 * j + 1286];
      EXPECT_TRUE(premier.siège == j && premier.groupe == 0 && premier.couleur == CouleurSiège[j]);
      EXPECT_TRUE(dernier.siège == j && dernier.groupe == 1286);
    }
    // At the last turn every step is made but EXPERT's last: EXPERT then
    // ends at 0 exactly, DEBUTANT at -15, set right at the end.
    EXPECT_EQ(r.back().gauche, -15);
    EXPECT_EQ(s.t.Fenêtre.TempsShape.Left, 0);
  }
}

} // namespace

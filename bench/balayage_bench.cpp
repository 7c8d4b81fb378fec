// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The computer's sweep, full DEBUTANT table (4 seats x 72072 rows), as the
// game runs it and row by row, side by side. Before the timings the program
// prints the rows kept for a fixed list of deals: that signature must never
// change when the sweep gets faster, and the program fails when it does.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

#include "platform/sans_fenetre.h"
#include "signature_balayage.h"

namespace {

struct Session {
  PlateformeSansFenêtre plateforme{"/nonexistent/troisniveaux-bench"};
  TroisNiveaux t{plateforme};

  Session() {
    if (!PrépareTable(t)) {
      std::fprintf(stderr, "La table des rangements n'est pas construite.\n");
      std::exit(1);
    }
  }
};

Session &SessionPartagée() {
  static Session s;
  return s;
}

void Balayage(benchmark::State &état, void (TroisNiveaux::*balaye)()) {
  Session &s = SessionPartagée();
  int donne = 0;
  for (auto _ : état) {
    PrépareDonne(s.t, DonneFixe(static_cast<uint64_t>(donne++ % NombreDonnesFixes)));
    (s.t.*balaye)();
    benchmark::DoNotOptimize(s.t.MeilleurRangement);
  }
}

void BM_BalayageDebutant(benchmark::State &état) { Balayage(état, &TroisNiveaux::OrdiJoue); }
void BM_BalayageLitteral(benchmark::State &état) {
  Balayage(état, &TroisNiveaux::OrdiJoueLittéral);
}

BENCHMARK(BM_BalayageDebutant)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(9)
    ->DisplayAggregatesOnly(true);
BENCHMARK(BM_BalayageLitteral)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(9)
    ->DisplayAggregatesOnly(true);

// Rows kept per seat, and the seat's special flags (F all-flush, Q
// all-straight, P six pairs, M thirteen ranks), for the fixed deals; each
// deal is swept both ways and must give the same.
bool ImprimeSignature() {
  const SignatureBalayage s = CalculeSignature(SessionPartagée().t, true);
  std::printf("Signature du balayage DEBUTANT (rangées gardées, sièges 0 à 3)\n");
  for (int d = 0; d < NombreDonnesFixes; ++d) {
    std::printf("donne %d :", d);
    for (int j = 0; j < 4; ++j)
      std::printf(" %5d%s%s%s%s", s.rangées[d][j], s.toutFlush[d][j] ? "F" : "",
                  s.toutQuinte[d][j] ? "Q" : "", s.sixPaires[d][j] ? "P" : "",
                  s.mégaQuinte[d][j] ? "M" : "");
    std::printf("\n");
  }
  const bool attendue = s.empreinte == EmpreinteAttendue;
  std::printf("empreinte %016llx%s%s\n\n", static_cast<unsigned long long>(s.empreinte),
              s.pareil ? "" : "  DIFFERENTE DU BALAYAGE RANGEE PAR RANGEE",
              attendue ? "" : "  DIFFERENTE DE L'EMPREINTE ATTENDUE");
  return s.pareil && attendue;
}

} // namespace

int main(int argc, char **argv) {
  const bool pareil = ImprimeSignature();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return pareil ? 0 : 1;
}

// The computer's sweep, full DEBUTANT table (4 seats x 72072 rows), as the
// game runs it and row by row, side by side. Before the timings the program
// prints the rows kept for a fixed list of deals: that signature must never
// change when the sweep gets faster.
#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <utility>

#include "core/table_state.h"
#include "platform/sans_fenetre.h"

namespace {

constexpr int NombreDonnes = 8;

// A shuffle of our own over a generator whose output the standard fixes, so
// the deals are the same with every library.
std::array<uint8_t, 52> Donne(uint64_t graine) {
  std::array<uint8_t, 52> cartes;
  for (int c = 0; c < 52; ++c)
    cartes[c] = static_cast<uint8_t>(c);
  std::mt19937_64 g(graine);
  for (int i = 51; i > 0; --i)
    std::swap(cartes[i], cartes[g() % static_cast<uint64_t>(i + 1)]);
  return cartes;
}

struct Session {
  PlateformeSansFenêtre plateforme{"/nonexistent/troisniveaux-bench"};
  TroisNiveaux t{plateforme};

  Session() {
    t.ConstruitRangements();
    if (t.Rangements.size() != NombreRangements + 1) {
      std::fprintf(stderr, "La table des rangements n'est pas construite.\n");
      std::exit(1);
    }
    const int16_t bases[8] = {100, 200, 350, 380, 500, 600, 1000, 1500};
    std::copy(bases, bases + 8, t.BaseMain);
    t.Mode = 1;
    t.Fenêtre.TempsFondSS.Width = 3900;
    t.Fenêtre.TempsShape.Width = 3915;
  }

  // The table as Init and the deal leave it, seat 3's layout as dealt.
  void Prépare(const std::array<uint8_t, 52> &cartes) {
    for (int s = 0; s < 4; ++s)
      for (int k = 0; k < 13; ++k)
        t.Mains[s][k] = cartes[13 * s + k];
    std::copy(t.Mains[3], t.Mains[3] + 13, t.Mains[4]);
    for (int s = 0; s < 4; ++s) {
      t.MeilleurRangement[s] = 0;
      t.ToutQuinte[s] = t.ToutFlush[s] = t.SixPaires[s] = t.MégaQuinte[s] = false;
    }
    t.Fenêtre.Arrêt.Enabled = true;
    t.Fenêtre.TempsShape.Left = -3900;
    t.Fenêtre.TempsShape.BackColor = CouleurSiège[0];
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
    s.Prépare(Donne(static_cast<uint64_t>(donne++ % NombreDonnes)));
    (s.t.*balaye)();
    benchmark::DoNotOptimize(s.t.MeilleurRangement);
  }
}

void BM_BalayageDebutant(benchmark::State &état) { Balayage(état, &TroisNiveaux::OrdiJoue); }
void BM_BalayageLitteral(benchmark::State &état) { Balayage(état, &TroisNiveaux::OrdiJoueLittéral); }

BENCHMARK(BM_BalayageDebutant)->Unit(benchmark::kMillisecond)->Repetitions(9)->DisplayAggregatesOnly(true);
BENCHMARK(BM_BalayageLitteral)->Unit(benchmark::kMillisecond)->Repetitions(9)->DisplayAggregatesOnly(true);

// Rows kept per seat, and the seat's special flags (F all-flush, Q
// all-straight, P six pairs, M thirteen ranks), for the fixed deals; each
// deal is swept both ways and must give the same.
bool ImprimeSignature() {
  Session &s = SessionPartagée();
  bool pareil = true;
  uint64_t empreinte = 1469598103934665603ull;
  std::printf("Signature du balayage DEBUTANT (rangées gardées, sièges 0 à 3)\n");
  for (int d = 0; d < NombreDonnes; ++d) {
    const auto cartes = Donne(static_cast<uint64_t>(d));
    s.Prépare(cartes);
    s.t.OrdiJoueLittéral();
    int32_t référence[4];
    std::copy(s.t.MeilleurRangement, s.t.MeilleurRangement + 4, référence);
    s.Prépare(cartes);
    s.t.OrdiJoue();
    std::printf("donne %d :", d);
    for (int j = 0; j < 4; ++j) {
      pareil = pareil && référence[j] == s.t.MeilleurRangement[j];
      std::printf(" %5d%s%s%s%s", s.t.MeilleurRangement[j], s.t.ToutFlush[j] ? "F" : "", s.t.ToutQuinte[j] ? "Q" : "",
                  s.t.SixPaires[j] ? "P" : "", s.t.MégaQuinte[j] ? "M" : "");
      empreinte = (empreinte ^ static_cast<uint32_t>(s.t.MeilleurRangement[j])) * 1099511628211ull;
    }
    std::printf("\n");
  }
  std::printf("empreinte %016llx%s\n\n", static_cast<unsigned long long>(empreinte),
              pareil ? "" : "  DIFFERENTE DU BALAYAGE RANGEE PAR RANGEE");
  return pareil;
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

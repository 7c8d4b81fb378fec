#include <utility>

#include "core/table_state.h"

namespace {

// The values of the three levels of each seat in this run of the showdown.
struct ValeursJoueurs {
  double v1[4];
  double v2[4];
  float v3[4];
};

const char *TexteNiveau12(double v, const std::string &avant) {
  if (v < 100) return "RIEN";
  if (v < 200) return "1 PAIRE";
  if (v < 350) return "2 PAIRES";
  if (v < 380) return "BRELAN";
  if (v < 500) return "QUINTE";
  if (v < 600) return "FLUSH";
  if (v < 1000) return "FULL";
  if (v < 1500) return "CARRE";
  if (v < 2200) return "QF";
  return avant.c_str();
}

const char *TexteNiveau3(float v, const std::string &avant) {
  if (v < 100) return "RIEN";
  if (v < 350) return "1 PAIRE";
  if (v < 380) return "BRELAN";
  return avant.c_str();
}

int Adversaire(int siège, int position) { return position < siège ? position : position + 1; }

} // namespace

// The showdown: special hands and the validity of the human's layout,
// eighteen comparisons paid in points, the totals and scores, and the table
// turned face up. A later run of the same deal (the solution view) pays
// again in memory and shows seat 3 alone.
void TroisNiveaux::AfficheRésultat() {
  auto &f = Fenêtre;
  ValeursJoueurs v{};
  for (int s = 0; s <= 3; ++s) {
    v.v1[s] = ValeursNiveau1[s];
    v.v2[s] = ValeursNiveau2[s];
    v.v3[s] = ValeursNiveau3[s];
  }

  // The computer's solution replaces a human layout that missed its special hand.
  if (Mode == 1 && !ScoresÉcrits && (ToutQuinte[3] || ToutFlush[3]))
    for (int k = 0; k <= 12; ++k)
      Mains[4][k] = Mains[3][Rangements[MeilleurRangement[3]][k]];

  if (f.VoirOrdi[0].Visible) {
    v.v1[3] = ValeursNiveau1[4];
    v.v2[3] = ValeursNiveau2[4];
    v.v3[3] = ValeursNiveau3[4];
  }

  // Four separate tests: a later one that holds overwrites an earlier one.
  for (int s = 0; s <= 3; ++s) {
    f.ExtraLabel[s].Caption = "";
    const auto spéciale = [&](const char *texte, int valeur) {
      f.ExtraLabel[s].Caption = texte;
      v.v1[s] = v.v2[s] = valeur;
      v.v3[s] = static_cast<float>(valeur);
    };
    if (MégaQuinte[s]) {
      spéciale("MEGA QUINTE", 2500);
      ToutFlush[s] = ToutQuinte[s] = false;
    }
    if (SixPaires[s])
      spéciale("6 PAIRES", 2400);
    if (ToutFlush[s]) {
      spéciale("TOUT FLUSH", 2300);
      ToutQuinte[s] = false;
    }
    if (ToutQuinte[s])
      spéciale("TOUT QUINTE", 2200);
  }

  // Only the human can lay levels out of order; such a layout loses everywhere.
  const bool désordre = v.v3[3] > static_cast<float>(v.v2[3]) ||
                        v.v3[3] > static_cast<float>(v.v1[3]) || v.v2[3] > v.v1[3];
  if (désordre && !MégaQuinte[3] && !SixPaires[3] && !ToutQuinte[3] && !ToutFlush[3]) {
    f.ExtraLabel[3].Caption = "ERREUR !";
    v.v1[3] = v.v2[3] = 0;
    v.v3[3] = 0;
  }

  // ---- Comparison and payment
  for (int a = 0; a <= 3; ++a)
    for (int b = 0; b <= 3; ++b)
      if (a != b) {
        PaieNiveau1[a][b] = PaieNiveau2[a][b] = 0;
        PaieNiveau3[a][b] = 0;
      }
  double gain1[4], gain2[4];
  uint8_t gain3[4];
  for (int s = 0; s <= 3; ++s) {
    gain1[s] = gain2[s] = 1;
    gain3[s] = 1;
    if (v.v1[s] > BaseMain[7] && v.v1[s] < 2200)
      gain1[s] = 5;
    else if (v.v1[s] >= BaseMain[6] && v.v1[s] < 2200)
      gain1[s] = 4;
    if (v.v2[s] > BaseMain[7] && v.v2[s] < 2200)
      gain2[s] = 10;
    else if (v.v2[s] >= BaseMain[6] && v.v2[s] < 2200)
      gain2[s] = 8;
    else if (v.v2[s] >= BaseMain[5] && v.v2[s] < 2200)
      gain2[s] = 2;
    if (v.v3[s] >= BaseMain[2] && v.v3[s] < 2200)
      gain3[s] = 3;
    if (v.v1[s] == 2500)
      gain1[s] = gain2[s] = gain3[s] = 5;
    if (v.v1[s] >= 2200 && v.v1[s] < 2500)
      gain1[s] = gain2[s] = gain3[s] = 2;
  }
  const auto compare = [](const auto &valeur, auto &grille, const auto &gain) {
    for (int a = 0; a <= 2; ++a)
      for (int b = a + 1; b <= 3; ++b) {
        if (valeur[a] < valeur[b]) {
          grille[a][b] = -gain[b];
          grille[b][a] = gain[b];
        } else if (valeur[a] > valeur[b]) {
          grille[a][b] = gain[a];
          grille[b][a] = -gain[a];
        } else {
          grille[a][b] = grille[b][a] = 0;
        }
      }
  };
  compare(v.v1, PaieNiveau1, gain1);
  compare(v.v2, PaieNiveau2, gain2);
  compare(v.v3, PaieNiveau3, gain3);

  // Each label: its seat's points against one opponent on one level, on
  // a lighter shade of that opponent's colour.
  const auto paie = [&](int i) {
    const int s = i / 9, niveau = (i % 9) / 3, adversaire = Adversaire(s, i % 3);
    if (niveau == 0)
      return static_cast<long long>(PaieNiveau1[s][adversaire]);
    if (niveau == 1)
      return static_cast<long long>(PaieNiveau2[s][adversaire]);
    return static_cast<long long>(PaieNiveau3[s][adversaire]);
  };
  for (int i = 0; i <= 35; ++i)
    f.LabelPaie[i].BackColor = CouleurSiègeClaire[Adversaire(i / 9, i % 3)];
  for (int i = 0; i <= 35; ++i)
    f.LabelPaie[i].Caption = std::to_string(paie(i));
  for (int i = 0; i <= 35; ++i)
    f.LabelPaie[i].ForeColor = paie(i) < 0 ? 0x0000FF : 0;

  // ---- Totals and scores
  for (int s = 0; s <= 3; ++s) {
    for (int j = 0; j <= 8; ++j)
      TotauxDonne[s] += static_cast<int32_t>(paie(9 * s + j));
    f.TotalLabel[s].Caption = std::to_string(TotauxDonne[s]);
    if (!ScoresRemisà0) {
      Scores[s] += TotauxDonne[s];
      f.ScoreLabel[s].ForeColor = Scores[s] < 0 ? 0x0000FF : 0;
      f.TotalLabel[s].ForeColor = TotauxDonne[s] < 0 ? 0x0000FF : 0;
      f.ScoreLabel[s].Caption = std::to_string(Scores[s]);
    }
  }

  // ---- Display
  if (ScoresÉcrits) {
    const int ligne = f.VoirOrdi[1].Visible ? 3 : f.VoirOrdi[0].Visible ? 4 : -1;
    if (ligne >= 0)
      for (int k = 0; k <= 12; ++k)
        MontreCarte(39 + k, CartesMontrées[ligne][k]);
    f.EnchèreLabel[9].Caption = TexteNiveau12(v.v1[3], f.EnchèreLabel[9].Caption);
    f.EnchèreLabel[10].Caption = TexteNiveau12(v.v2[3], f.EnchèreLabel[10].Caption);
    f.EnchèreLabel[11].Caption = TexteNiveau3(v.v3[3], f.EnchèreLabel[11].Caption);
    for (int n = 9; n <= 11; ++n)
      f.EnchèreLabel[n].Visible = v.v1[3] < 2200;
    return;
  }

  uint8_t rangs[5][13];
  // Bubble sort by rank over places p..q, cards and ranks moving together:
  // equal ranks keep the order of the layout.
  const auto trie = [&](int r, int p, int q) {
    bool échange = true;
    while (échange) {
      échange = false;
      for (int i = p; i < q; ++i)
        if (rangs[r][i + 1] < rangs[r][i]) {
          std::swap(rangs[r][i], rangs[r][i + 1]);
          std::swap(CartesMontrées[r][i], CartesMontrées[r][i + 1]);
          échange = true;
        }
    }
  };
  // An ace-low straight shows its ace in front.
  const auto asDevant = [&](int r, int siège) {
    const auto tourne = [&](int p, int q) {
      const uint8_t as = CartesMontrées[r][q];
      for (int i = q; i > p; --i)
        CartesMontrées[r][i] = CartesMontrées[r][i - 1];
      CartesMontrées[r][p] = as;
    };
    for (int p : {0, 5})
      if (rangs[r][p] == 0 && rangs[r][p + 1] == 1 && rangs[r][p + 2] == 2 &&
          rangs[r][p + 3] == 3 && rangs[r][p + 4] == 12)
        tourne(p, p + 4);
    if (ToutQuinte[siège] && rangs[r][10] == 0 && rangs[r][11] == 1 && rangs[r][12] == 12)
      tourne(10, 12);
  };

  const bool solutionPriseEnCompte = Mode == 1 && (ToutQuinte[3] || ToutFlush[3]);
  for (int r = 0; r <= 4; ++r) {
    for (int k = 0; k <= 12; ++k) {
      CartesMontrées[r][k] = r <= 3 || solutionPriseEnCompte
                                 ? Mains[r <= 3 ? r : 3][Rangements[MeilleurRangement[r <= 3 ? r : 3]][k]]
                                 : Mains[4][k];
      rangs[r][k] = CartesMontrées[r][k] % 13;
    }
    trie(r, 0, 4);
    trie(r, 5, 9);
    trie(r, 10, 12);
  }
  for (int s = 0; s <= 3; ++s) {
    if (SixPaires[s] || MégaQuinte[s]) {
      trie(s, 0, 12);
      if (s == 3)
        trie(4, 0, 12);
    }
    const int ligne = s == 3 ? 4 : s;
    if (!ToutFlush[s]) {
      asDevant(s, s);
      if (s == 3)
        asDevant(4, 3);
    }
    for (int k = 0; k <= 12; ++k)
      MontreCarte(13 * s + k, CartesMontrées[ligne][k]);
  }
  for (int s = 0; s <= 3; ++s) {
    f.EnchèreLabel[3 * s].Caption = TexteNiveau12(v.v1[s], f.EnchèreLabel[3 * s].Caption);
    f.EnchèreLabel[3 * s + 1].Caption = TexteNiveau12(v.v2[s], f.EnchèreLabel[3 * s + 1].Caption);
    f.EnchèreLabel[3 * s + 2].Caption = TexteNiveau3(v.v3[s], f.EnchèreLabel[3 * s + 2].Caption);
  }
  for (int s = 0; s <= 3; ++s)
    if (v.v1[s] < 2200)
      for (int n = 0; n <= 2; ++n)
        f.EnchèreLabel[3 * s + n].Visible = true;

  ÉcritScores();
  ScoresÉcrits = true;
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <QtGlobal>
#include <utility>

#include "showdown/abattage.h"

namespace abattage {

namespace {

// The class a level's value names, by the first limit that it stays below.
// Above the ordinary classes there is none, and the label keeps the text it
// has: a special hand shows in ExtraLabel.
struct Classe {
  double limite;
  const char *texte;
};
// The names are shown in the player's language: marked for the translators.
constexpr Classe ClassesCinqCartes[] = {{100, QT_TRANSLATE_NOOP("Table", "RIEN")},
                                        {200, QT_TRANSLATE_NOOP("Table", "1 PAIRE")},
                                        {350, QT_TRANSLATE_NOOP("Table", "2 PAIRES")},
                                        {380, QT_TRANSLATE_NOOP("Table", "BRELAN")},
                                        {500, QT_TRANSLATE_NOOP("Table", "QUINTE")},
                                        {600, QT_TRANSLATE_NOOP("Table", "FLUSH")},
                                        {1000, QT_TRANSLATE_NOOP("Table", "FULL")},
                                        {1500, QT_TRANSLATE_NOOP("Table", "CARRE")},
                                        {ValeurToutQuinte, QT_TRANSLATE_NOOP("Table", "QF")}};
// Level 3 has no two pairs, and a three-card straight or flush counts
// nowhere but in the special hands.
constexpr Classe ClassesTroisCartes[] = {{100, "RIEN"}, {350, "1 PAIRE"}, {380, "BRELAN"}};

template <std::size_t N> const char *ClasseDe(const Classe (&classes)[N], double valeur) {
  for (const Classe &c : classes)
    if (valeur < c.limite)
      return c.texte;
  return nullptr;
}

void NommeNiveaux(TroisNiveaux &t, const ValeursJoueurs &v, int s) {
  Contrôle *labels = &t.Fenêtre.EnchèreLabel[3 * s];
  const char *classes[3] = {ClasseDe(ClassesCinqCartes, v.ValeurJoueur1[s]),
                            ClasseDe(ClassesCinqCartes, v.ValeurJoueur2[s]),
                            ClasseDe(ClassesTroisCartes, v.ValeurJoueur3[s])};
  for (int n = 0; n <= 2; ++n)
    if (classes[n])
      labels[n].Caption = classes[n];
}

// The rows of CartesMontrées, each card with its rank beside it while sorting.
class Rangées {
public:
  explicit Rangées(TroisNiveaux &t) : t(t) {}

  void Remplit(int r, const uint8_t (&main)[13], int32_t rangement) {
    for (int k = 0; k <= 12; ++k)
      Place(r, k, main[t.Rangements[rangement][k]]);
  }
  void Copie(int r, const uint8_t (&disposition)[13]) {
    for (int k = 0; k <= 12; ++k)
      Place(r, k, disposition[k]);
  }

  // A bubble sort by rank over places p..q: equal ranks keep the order of
  // the layout.
  void Trie(int r, int p, int q) {
    for (bool échange = true; échange;) {
      échange = false;
      for (int i = p; i < q; ++i)
        if (RangsMontrés[r][i + 1] < RangsMontrés[r][i]) {
          std::swap(RangsMontrés[r][i], RangsMontrés[r][i + 1]);
          std::swap(t.CartesMontrées[r][i], t.CartesMontrées[r][i + 1]);
          échange = true;
        }
    }
  }
  void TrieLesNiveaux(int r) {
    Trie(r, 0, 4);
    Trie(r, 5, 9);
    Trie(r, 10, 12);
  }

  // An ace-low straight reads ace, 2, 3, 4, 5. On level 3 only a TOUT QUINTE
  // makes one. The ranks stay where the sort left them.
  void AsDevant(int r, int siège) {
    const uint8_t *rangs = RangsMontrés[r];
    for (int p : {0, 5})
      if (rangs[p] == 0 && rangs[p + 1] == 1 && rangs[p + 2] == 2 && rangs[p + 3] == 3 &&
          rangs[p + 4] == 12)
        Tourne(r, p, p + 4);
    if (t.ToutQuinte[siège] && rangs[10] == 0 && rangs[11] == 1 && rangs[12] == 12)
      Tourne(r, 10, 12);
  }

private:
  void Place(int r, int k, uint8_t carte) {
    t.CartesMontrées[r][k] = carte;
    RangsMontrés[r][k] = carte % 13;
  }
  void Tourne(int r, int p, int q) {
    uint8_t *cartes = t.CartesMontrées[r];
    const uint8_t as = cartes[q];
    for (int i = q; i > p; --i)
      cartes[i] = cartes[i - 1];
    cartes[p] = as;
  }

  TroisNiveaux &t;
  uint8_t RangsMontrés[5][13] = {};
};

} // namespace

void MontreTable(TroisNiveaux &t, const ValeursJoueurs &v) {
  Rangées rangées(t);
  for (int r = 0; r <= 3; ++r)
    rangées.Remplit(r, t.Mains[r], t.MeilleurRangement[r]);
  // Row 4 is what the human counted with: his layout, or the solution when
  // a special hand was found for him.
  if (t.Mode == 1 && (t.ToutQuinte[3] || t.ToutFlush[3]))
    rangées.Remplit(4, t.Mains[3], t.MeilleurRangement[3]);
  else
    rangées.Copie(4, t.Mains[4]);
  for (int r = 0; r <= 4; ++r)
    rangées.TrieLesNiveaux(r);

  for (int s = 0; s <= 3; ++s) {
    // These two hands are one row of 13 cards, not three levels.
    if (t.SixPaires[s] || t.MégaQuinte[s]) {
      rangées.Trie(s, 0, 12);
      if (s == 3)
        rangées.Trie(4, 0, 12);
    }
    const int ligneMontrée = s == 3 ? 4 : s;
    if (!t.ToutFlush[s]) {
      rangées.AsDevant(s, s);
      if (s == 3)
        rangées.AsDevant(4, 3);
    }
    for (int k = 0; k <= 12; ++k)
      t.MontreCarte(13 * s + k, t.CartesMontrées[ligneMontrée][k]);
  }

  for (int s = 0; s <= 3; ++s)
    NommeNiveaux(t, v, s);
  for (int s = 0; s <= 3; ++s)
    if (v.ValeurJoueur1[s] < ValeurToutQuinte)
      for (int n = 0; n <= 2; ++n)
        t.Fenêtre.EnchèreLabel[3 * s + n].Visible = true;
}

// Both rows of seat 3 were finished by the first display; the computer
// seats' cards and labels stay as they are.
void MontreSiège3(TroisNiveaux &t, const ValeursJoueurs &v) {
  auto &f = t.Fenêtre;
  if (f.VoirOrdi[1].Visible)
    for (int k = 0; k <= 12; ++k)
      t.MontreCarte(39 + k, t.CartesMontrées[3][k]);
  if (f.VoirOrdi[0].Visible)
    for (int k = 0; k <= 12; ++k)
      t.MontreCarte(39 + k, t.CartesMontrées[4][k]);
  NommeNiveaux(t, v, 3);
  for (int n = 9; n <= 11; ++n)
    f.EnchèreLabel[n].Visible = v.ValeurJoueur1[3] < ValeurToutQuinte;
}

} // namespace abattage

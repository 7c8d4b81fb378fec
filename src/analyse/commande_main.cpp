// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "analyse/commande_main.h"

#include <array>
#include <optional>

#include "analyse/session_analyse.h"
#include "analyse/texte.h"

const char *const AideMain =
    "Usage : troisniveaux-analyse main [--json] C1 C2 ... C13\n"
    "\n"
    "Donne le rangement que l'ordinateur jouerait avec ces 13 cartes : les trois\n"
    "niveaux, la classe et la valeur de chacun, et la main spéciale s'il y en a une.\n"
    "\n"
    "Une carte s'écrit par son code, de 0 à 51 (rang = code mod 13, 0 pour le 2\n"
    "jusqu'à 12 pour l'as ; couleur = code div 13 : trèfle, carreau, cœur, pique),\n"
    "ou comme on la lit : le rang 2 à 10, V, D, R ou A, suivi de la couleur,\n"
    "♣ ♦ ♥ ♠ ou T K C P (trèfle, carreau, cœur, pique). Exemples : 10♥, VP, A♠, 0.\n"
    "\n"
    "  --json   une seule ligne JSON : cartes, MeilleurRangement, MeilleureValeur,\n"
    "           disposition, ToutFlush, ToutQuinte, SixPaires, MégaQuinte\n"
    "  --help   ce texte\n";

namespace {

const char *Booléen(bool b) { return b ? "true" : "false"; }

template <size_t N> std::string Liste(const std::array<uint8_t, N> &codes, bool enTexte) {
  std::string s;
  for (size_t k = 0; k < N; ++k) {
    if (k > 0)
      s += enTexte ? " " : ", ";
    s += enTexte ? texte::Carte(codes[k]) : std::to_string(codes[k]);
  }
  return s;
}

void ÉcritJson(std::ostream &o, const TroisNiveaux &t, const std::array<uint8_t, 13> &cartes,
               const std::array<uint8_t, 13> &disposition) {
  o << "{\"cartes\": [" << Liste(cartes, false)
    << "], \"MeilleurRangement\": " << t.MeilleurRangement[0]
    << ", \"MeilleureValeur\": " << texte::Nombre(t.MeilleureValeur) << ", \"disposition\": ["
    << Liste(disposition, false) << "], \"ToutFlush\": " << Booléen(t.ToutFlush[0])
    << ", \"ToutQuinte\": " << Booléen(t.ToutQuinte[0])
    << ", \"SixPaires\": " << Booléen(t.SixPaires[0])
    << ", \"MégaQuinte\": " << Booléen(t.MégaQuinte[0]) << "}\n";
}

// The three levels of the kept row as the sweep valued them.
void ÉcritNiveaux(std::ostream &o, TroisNiveaux &t, const std::array<uint8_t, 13> &d) {
  const float meilleure = t.MeilleureValeur;
  const std::optional<std::string> spéciale = texte::MainSpéciale(t, 0);
  // Valuing the row again sets nothing that the sweep had not set already.
  std::copy(d.begin(), d.begin() + 5, t.Niveau1);
  std::copy(d.begin() + 5, d.begin() + 10, t.Niveau2);
  std::copy(d.begin() + 10, d.end(), t.Niveau3);
  t.Joueur = 0;
  t.Résultat1();
  const std::string classe1 = texte::ClasseCinq(t);
  t.Résultat2();
  const std::string classe2 = texte::ClasseCinq(t);
  t.Résultat3();
  const bool toutVu = t.ToutQuinteVu || t.ToutFlushVu;

  std::array<uint8_t, 5> n1, n2;
  std::array<uint8_t, 3> n3;
  std::copy(d.begin(), d.begin() + 5, n1.begin());
  std::copy(d.begin() + 5, d.begin() + 10, n2.begin());
  std::copy(d.begin() + 10, d.end(), n3.begin());
  o << "NIVEAU 1 : " << Liste(n1, true) << "  " << classe1 << ", " << texte::Nombre(t.Valeur1)
    << "\n";
  o << "NIVEAU 2 : " << Liste(n2, true) << "  " << classe2 << ", " << texte::Nombre(t.Valeur2)
    << "\n";
  o << "NIVEAU 3 : " << Liste(n3, true) << "  ";
  if (toutVu)
    o << (t.ToutFlushVu ? "TOUT FLUSH" : "") << (t.ToutFlushVu && t.ToutQuinteVu ? ", " : "")
      << (t.ToutQuinteVu ? "TOUT QUINTE" : "") << "\n";
  else
    o << texte::ClasseTrois(t) << ", " << texte::Nombre(t.Valeur3) << "\n";
  o << "Rangement " << t.MeilleurRangement[0] << " sur " << NombreRangements << ", valeur "
    << texte::Nombre(meilleure) << "\n";
  o << "Main spéciale : " << (spéciale ? *spéciale : "aucune") << "\n";
}

} // namespace

int CommandeMain(const std::vector<std::string> &arguments, std::ostream &sortie,
                 std::ostream &erreurs) {
  bool json = false;
  std::vector<uint8_t> codes;
  for (const std::string &a : arguments) {
    if (a == "--help" || a == "-h") {
      sortie << AideMain;
      return 0;
    }
    if (a == "--json") {
      json = true;
      continue;
    }
    const std::optional<uint8_t> code = texte::LitCarte(a);
    if (!code) {
      erreurs << "Carte inconnue : « " << a << " ». Voir troisniveaux-analyse main --help.\n";
      return 2;
    }
    for (uint8_t c : codes)
      if (c == *code) {
        erreurs << "La carte " << texte::Carte(c) << " est donnée deux fois.\n";
        return 2;
      }
    codes.push_back(*code);
  }
  if (codes.size() != 13) {
    erreurs << "Il faut 13 cartes, " << codes.size()
            << (codes.size() > 1 ? " sont données" : " est donnée")
            << ". Voir troisniveaux-analyse main --help.\n";
    return 2;
  }

  SessionAnalyse session;
  TroisNiveaux &t = session.table();
  if (t.Rangements.size() != NombreRangements + 1) {
    erreurs << "La table des rangements n'a pas pu être construite.\n";
    return 1;
  }
  std::array<uint8_t, 13> cartes;
  std::copy(codes.begin(), codes.end(), cartes.begin());
  std::copy(cartes.begin(), cartes.end(), t.Mains[0]);
  t.ChercheSiège(0);

  std::array<uint8_t, 13> disposition;
  for (int k = 0; k < 13; ++k)
    disposition[k] = t.Mains[0][t.Rangements[t.MeilleurRangement[0]][k]];
  if (json)
    ÉcritJson(sortie, t, cartes, disposition);
  else
    ÉcritNiveaux(sortie, t, disposition);
  return 0;
}

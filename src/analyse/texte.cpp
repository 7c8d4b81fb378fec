// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "analyse/texte.h"

#include <array>
#include <cctype>
#include <charconv>

#include "core/table_state.h"

namespace texte {
namespace {

constexpr std::array<const char *, 13> Rangs = {"2", "3",  "4", "5", "6", "7", "8",
                                                "9", "10", "V", "D", "R", "A"};
constexpr std::array<const char *, 4> Signes = {"♣", "♦", "♥", "♠"};
// Outlined signs are taken too: some keyboards only offer those.
constexpr std::array<const char *, 4> SignesCreux = {"♧", "♢", "♡", "♤"};
constexpr std::string_view Lettres = "TKCP";

std::optional<int> LitCouleur(std::string_view s) {
  // An emoji presentation selector may follow the sign.
  constexpr std::string_view Sélecteur = "\xEF\xB8\x8F";
  if (s.size() > Sélecteur.size() && s.ends_with(Sélecteur))
    s.remove_suffix(Sélecteur.size());
  for (int c = 0; c < 4; ++c)
    if (s == Signes[c] || s == SignesCreux[c])
      return c;
  if (s.size() == 1) {
    const auto p = Lettres.find(static_cast<char>(std::toupper(static_cast<unsigned char>(s[0]))));
    if (p != std::string_view::npos)
      return static_cast<int>(p);
  }
  return std::nullopt;
}

std::optional<int> LitRang(std::string_view s) {
  std::string majuscules(s);
  for (char &c : majuscules)
    c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  for (int r = 0; r < 13; ++r)
    if (majuscules == Rangs[r])
      return r;
  return std::nullopt;
}

template <typename T> std::string Court(T x) {
  char tampon[64];
  const auto fin = std::to_chars(tampon, tampon + sizeof tampon, x).ptr;
  return std::string(tampon, fin);
}

} // namespace

std::string Carte(int code) {
  if (code < 0 || code > 51)
    return "#" + std::to_string(code);
  return std::string(Rangs[code % 13]) + Signes[code / 13];
}

std::optional<uint8_t> LitCarte(std::string_view s) {
  if (s.empty())
    return std::nullopt;
  if (s.find_first_not_of("0123456789") == std::string_view::npos) {
    int code = 0;
    const auto [fin, erreur] = std::from_chars(s.data(), s.data() + s.size(), code);
    if (erreur != std::errc() || fin != s.data() + s.size() || code > 51)
      return std::nullopt;
    return static_cast<uint8_t>(code);
  }
  // The rank is one character, or two for the 10.
  for (size_t n : {size_t{1}, size_t{2}}) {
    if (s.size() <= n)
      break;
    const auto rang = LitRang(s.substr(0, n));
    const auto couleur = LitCouleur(s.substr(n));
    if (rang && couleur)
      return static_cast<uint8_t>(*couleur * 13 + *rang);
  }
  return std::nullopt;
}

std::string Nombre(float x) { return Court(x); }
std::string Nombre(double x) { return Court(x); }

const char *ClasseCinq(const TroisNiveaux &t) {
  // The stronger class first, as the value takes it.
  if (t.EstQF)
    return "QF";
  if (t.EstCarré)
    return "CARRE";
  if (t.EstFull)
    return "FULL";
  if (t.EstFlush)
    return "FLUSH";
  if (t.EstQuinte)
    return "QUINTE";
  if (t.EstBrelan)
    return "BRELAN";
  if (t.EstDeuxPaires)
    return "2 PAIRES";
  if (t.EstPaire)
    return "1 PAIRE";
  return "RIEN";
}

const char *ClasseTrois(const TroisNiveaux &t) {
  if (t.EstBrelan)
    return "BRELAN";
  if (t.EstPaire)
    return "1 PAIRE";
  return "RIEN";
}

std::optional<std::string> MainSpéciale(const TroisNiveaux &t, int siège) {
  // The showdown's four tests in their order, a later one overwriting: an
  // all-flush wins over six pairs and over an all-straight.
  if (t.MégaQuinte[siège])
    return "MEGA QUINTE";
  if (t.ToutFlush[siège])
    return "TOUT FLUSH";
  if (t.ToutQuinte[siège])
    return "TOUT QUINTE";
  if (t.SixPaires[siège])
    return "6 PAIRES";
  return std::nullopt;
}

} // namespace texte

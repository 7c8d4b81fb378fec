// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// Cards, numbers and class names as the analysis commands write and read them.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class TroisNiveaux;

namespace texte {

// A card as a French player reads it: 2..10, V, D, R, A and the suit sign
// ♣ ♦ ♥ ♠. A code that is no card is written "#" and the code.
std::string Carte(int code);

// A code 0..51 in digits, or a written card: the rank (2..10, V, D, R, A, in
// either case) then the suit, a sign ♣ ♦ ♥ ♠ or a letter T K C P (trèfle,
// carreau, cœur, pique). Nothing when the text is no card.
std::optional<uint8_t> LitCarte(std::string_view texte);

// The shortest decimal that reads back to the same number.
std::string Nombre(float x);
std::string Nombre(double x);

// The class that the record's flags give a level of five cards, or of
// three after Résultat3 / Décompte3: "RIEN", "1 PAIRE" ... "QF".
const char *ClasseCinq(const TroisNiveaux &t);
const char *ClasseTrois(const TroisNiveaux &t);

// The special hand that the showdown would give the seat by its four flags,
// or nothing.
std::optional<std::string> MainSpéciale(const TroisNiveaux &t, int siège);

} // namespace texte

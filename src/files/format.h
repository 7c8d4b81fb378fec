// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The byte format of the data files: one value a line, CR LF after each,
// numbers in plain decimal, names between double quotes in Windows-1252.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace format {

// Windows-1252 bytes to UTF-8 and back. A character the code page cannot
// carry becomes '?' on the way out.
std::string DepuisWindows1252(std::string_view octets);
std::string VersWindows1252(std::string_view utf8);
// Whether every character of a UTF-8 text has a byte in Windows-1252.
bool TientEnWindows1252(std::string_view utf8);

// Lines of a file; CR LF or LF alone end a line, the last may have no end.
std::vector<std::string> Lignes(std::string_view octets);

// A whole number, blanks allowed around it; nothing else.
std::optional<int64_t> Entier(std::string_view ligne);
// The same, telling a line of digits too long for 64 bits from one that is
// no whole number at all.
struct LectureEntier {
  enum { Entier, PasUnEntier, TropGrand } sorte;
  int64_t valeur;
};
LectureEntier EntierOuDépassement(std::string_view ligne);
// A name between double quotes, with nothing else on the line.
std::optional<std::string> Chaîne(std::string_view ligne);
// The leading decimal number of a text, 0 when it begins with anything else.
double NombreEnTête(std::string_view texte);

// The most characters a name keeps in the file: as many as a name box takes.
constexpr std::size_t LongueurMaximaleNom = 32767;

// Every file the game reads goes through here: data files, history,
// settings, card decks. Only a regular file (or a link to one) is read, and
// at most `limite` bytes of it whatever its size says; anything else is
// never read, so a pipe or a device can neither block the game nor fill its
// memory. With `fin`, the last `limite` bytes rather than the first.
struct Lecture {
  enum { Lu, Absent, PasUnFichier, Illisible } état = Absent;
  std::string octets;
  bool tronqué = false; // the file goes on past the limit
};
Lecture LitFichier(const std::string &nom, std::size_t limite, bool fin = false);

// And every file it writes: replaced whole through a temporary file beside
// it, so a crash leaves the old file or the new one. Only a regular file is
// ever replaced; a pipe, a device or a folder at the name is left alone.
// `enPlaceSiBesoin`: where the folder takes no new file but the file itself
// is writable, it is written in place instead.
struct Écriture {
  bool réussi = false;
  bool pasUnFichier = false; // the name is not that of a regular file
  bool enPlace = false;      // written in place: a failure may have cut it
  bool ressource = false;    // the system ran out of room
  int errnoÉcriture = 0;
};
Écriture ÉcritFichier(const std::string &nom, std::string_view octets, bool enPlaceSiBesoin);

// Removes what a write cut short leaves in `dossier`: "<nom>.XXXXXX" for each
// of `noms`, six random letters not all small. Only regular files of this
// user go, never what a link points to.
void NettoieRestes(const std::string &dossier, const std::vector<std::string> &noms);

// The lines within the first `limite` bytes of a file, a line cut by the
// limit left out; nullopt when it is no regular file or cannot be read.
std::optional<std::vector<std::string>> LitLignes(const std::string &nom, std::size_t limite,
                                                  bool *tronqué = nullptr);

// One line written as the files want it.
std::string LigneEntier(int64_t valeur);
std::string LigneChaîne(std::string_view utf8);

} // namespace format

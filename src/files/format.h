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
// A name between double quotes, with nothing else on the line.
std::optional<std::string> Chaîne(std::string_view ligne);
// The leading decimal number of a text, 0 when it begins with anything else.
double NombreEnTête(std::string_view texte);

// The lines within the first `limite` bytes of a file; nullopt when it
// cannot be opened or read.
std::optional<std::vector<std::string>> LitLignes(const std::string &nom, std::size_t limite);

// One line written as the files want it.
std::string LigneEntier(int64_t valeur);
std::string LigneChaîne(std::string_view utf8);

} // namespace format

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "files/format.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace format {

namespace {
// Code points of the bytes 0x80..0x9F; the five bytes the code page leaves
// undefined keep their own value.
constexpr char32_t PlageHaute[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t PointDeCode(unsigned char octet) {
  return octet >= 0x80 && octet <= 0x9F ? PlageHaute[octet - 0x80] : octet;
}

void AjouteUtf8(std::string &s, char32_t c) {
  if (c < 0x80) {
    s += static_cast<char>(c);
  } else if (c < 0x800) {
    s += static_cast<char>(0xC0 | (c >> 6));
    s += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    s += static_cast<char>(0xE0 | (c >> 12));
    s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    s += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// Decodes one UTF-8 character at `i`, moving `i` past it; U+FFFD on a bad sequence.
char32_t LitUtf8(std::string_view s, std::size_t &i) {
  const auto o = static_cast<unsigned char>(s[i++]);
  int suite = o >= 0xF0 ? 3 : o >= 0xE0 ? 2 : o >= 0xC0 ? 1 : 0;
  if (o >= 0x80 && suite == 0)
    return 0xFFFD;
  char32_t c = suite == 3 ? o & 0x07 : suite == 2 ? o & 0x0F : suite == 1 ? o & 0x1F : o;
  for (; suite > 0; --suite) {
    if (i >= s.size() || (static_cast<unsigned char>(s[i]) & 0xC0) != 0x80)
      return 0xFFFD;
    c = (c << 6) | (static_cast<unsigned char>(s[i++]) & 0x3F);
  }
  return c;
}

// The byte of a code point in Windows-1252, or -1.
int Octet(char32_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
    return static_cast<int>(c);
  for (int k = 0; k < 32; ++k)
    if (PlageHaute[k] == c)
      return 0x80 + k;
  return -1;
}

bool EstBlanc(char c) { return c == ' ' || c == '\t'; }

std::string_view SansBlancs(std::string_view s) {
  while (!s.empty() && EstBlanc(s.front()))
    s.remove_prefix(1);
  while (!s.empty() && EstBlanc(s.back()))
    s.remove_suffix(1);
  return s;
}
} // namespace

std::string DepuisWindows1252(std::string_view octets) {
  std::string s;
  for (char o : octets)
    AjouteUtf8(s, PointDeCode(static_cast<unsigned char>(o)));
  return s;
}

std::string VersWindows1252(std::string_view utf8) {
  std::string s;
  for (std::size_t i = 0; i < utf8.size();) {
    const int o = Octet(LitUtf8(utf8, i));
    s += o < 0 ? '?' : static_cast<char>(o);
  }
  return s;
}

bool TientEnWindows1252(std::string_view utf8) {
  for (std::size_t i = 0; i < utf8.size();)
    if (Octet(LitUtf8(utf8, i)) < 0)
      return false;
  return true;
}

std::vector<std::string> Lignes(std::string_view octets) {
  std::vector<std::string> lignes;
  while (!octets.empty()) {
    const std::size_t fin = octets.find('\n');
    std::string_view ligne = octets.substr(0, fin);
    if (!ligne.empty() && ligne.back() == '\r')
      ligne.remove_suffix(1);
    lignes.emplace_back(ligne);
    if (fin == std::string_view::npos)
      break;
    octets.remove_prefix(fin + 1);
  }
  return lignes;
}

std::optional<int64_t> Entier(std::string_view ligne) {
  const LectureEntier lu = EntierOuDépassement(ligne);
  if (lu.sorte != LectureEntier::Entier)
    return std::nullopt;
  return lu.valeur;
}

LectureEntier EntierOuDépassement(std::string_view ligne) {
  ligne = SansBlancs(ligne);
  const std::string_view chiffres = ligne.substr(!ligne.empty() && ligne.front() == '-' ? 1 : 0);
  if (chiffres.empty() || chiffres.find_first_not_of("0123456789") != std::string_view::npos)
    return {LectureEntier::PasUnEntier, 0};
  int64_t valeur = 0;
  const auto [fin, erreur] = std::from_chars(ligne.data(), ligne.data() + ligne.size(), valeur);
  if (erreur == std::errc::result_out_of_range)
    return {LectureEntier::TropGrand, 0};
  if (erreur != std::errc() || fin != ligne.data() + ligne.size())
    return {LectureEntier::PasUnEntier, 0};
  return {LectureEntier::Entier, valeur};
}

std::optional<std::string> Chaîne(std::string_view ligne) {
  if (ligne.size() < 2 || ligne.front() != '"' || ligne.back() != '"')
    return std::nullopt;
  const std::string_view dedans = ligne.substr(1, ligne.size() - 2);
  if (dedans.find('"') != std::string_view::npos)
    return std::nullopt;
  return DepuisWindows1252(dedans);
}

double NombreEnTête(std::string_view texte) {
  std::size_t n = 0;
  if (n < texte.size() && (texte[n] == '-' || texte[n] == '+'))
    ++n;
  const std::size_t chiffres = n;
  while (n < texte.size() && texte[n] >= '0' && texte[n] <= '9')
    ++n;
  if (n < texte.size() && texte[n] == '.') {
    ++n;
    while (n < texte.size() && texte[n] >= '0' && texte[n] <= '9')
      ++n;
  }
  if (n == chiffres || (n == chiffres + 1 && texte[chiffres] == '.'))
    return 0;
  return std::strtod(std::string(texte.substr(0, n)).c_str(), nullptr);
}

Lecture LitFichier(const std::string &nom, std::size_t limite, bool fin) {
  Lecture lecture;
  struct stat état {};
  if (stat(nom.c_str(), &état) != 0) {
    lecture.état = errno == ENOENT ? Lecture::Absent : Lecture::Illisible;
    return lecture;
  }
  if (!S_ISREG(état.st_mode)) {
    lecture.état = Lecture::PasUnFichier;
    return lecture;
  }
  // Not blocking, in case a pipe took the file's place since the look above.
  const int fd = open(nom.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (fd < 0) {
    lecture.état = Lecture::Illisible;
    return lecture;
  }
  if (fstat(fd, &état) != 0 || !S_ISREG(état.st_mode)) {
    close(fd);
    lecture.état = Lecture::PasUnFichier;
    return lecture;
  }
  // The size only chooses where to start; the read itself stops at the
  // limit, however the file grows meanwhile.
  const bool sauté = fin && état.st_size > static_cast<off_t>(limite) &&
                     lseek(fd, état.st_size - static_cast<off_t>(limite), SEEK_SET) >= 0;
  std::string octets;
  char morceau[16384];
  while (octets.size() <= limite) {
    const ssize_t n = read(fd, morceau, sizeof morceau);
    if (n < 0 && errno == EINTR)
      continue;
    if (n < 0) {
      close(fd);
      lecture.état = Lecture::Illisible;
      return lecture;
    }
    if (n == 0)
      break;
    octets.append(morceau, static_cast<std::size_t>(n));
  }
  close(fd);
  lecture.tronqué = sauté || octets.size() > limite;
  octets.resize(std::min(octets.size(), limite));
  lecture.octets = std::move(octets);
  lecture.état = Lecture::Lu;
  return lecture;
}

std::optional<std::vector<std::string>> LitLignes(const std::string &nom, std::size_t limite,
                                                  bool *tronqué) {
  Lecture lecture = LitFichier(nom, limite);
  if (tronqué)
    *tronqué = lecture.tronqué;
  if (lecture.état != Lecture::Lu)
    return std::nullopt;
  if (lecture.tronqué) {
    // The line the limit cuts is left out, so that no number is read with
    // its last digits missing.
    const std::size_t fin = lecture.octets.rfind('\n');
    lecture.octets.resize(fin == std::string::npos ? 0 : fin + 1);
  }
  return Lignes(lecture.octets);
}

std::string LigneEntier(int64_t valeur) { return std::to_string(valeur) + "\r\n"; }

std::string LigneChaîne(std::string_view utf8) {
  // The format escapes nothing: a quote or a line break inside a name would
  // cut it short or shift every line after it.
  std::string octets = VersWindows1252(utf8);
  if (octets.size() > LongueurMaximaleNom)
    octets.resize(LongueurMaximaleNom);
  for (char &c : octets)
    if (c == '"' || static_cast<unsigned char>(c) < 0x20)
      c = '?';
  return "\"" + octets + "\"\r\n";
}

} // namespace format

#pragma once
// A temporary folder standing for the program's folder, with the default
// names and scores in it, removed at the end.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

class DossierEssai {
public:
  DossierEssai() {
    std::random_device hasard;
    chemin = std::filesystem::temp_directory_path() /
             ("troisniveaux-essai-" + std::to_string(hasard()) + std::to_string(hasard()));
    std::filesystem::create_directories(chemin);
    Écrit("Noms", "\"MicroProc\"\r\n\"GigaOctets\"\r\n\"M\xE9gaBytes\"\r\n\"Bibi\"\r\n");
    Écrit("Scores", "0\r\n0\r\n0\r\n0\r\n");
  }
  ~DossierEssai() {
    std::error_code e;
    std::filesystem::current_path(std::filesystem::temp_directory_path(), e);
    std::filesystem::remove_all(chemin, e);
  }
  DossierEssai(const DossierEssai &) = delete;
  DossierEssai &operator=(const DossierEssai &) = delete;

  void Écrit(const std::string &nom, const std::string &octets) const {
    std::ofstream(chemin / nom, std::ios::binary) << octets;
  }
  std::string Lit(const std::string &nom) const {
    std::ifstream f(chemin / nom, std::ios::binary);
    return {std::istreambuf_iterator<char>(f), {}};
  }
  bool Existe(const std::string &nom) const { return std::filesystem::exists(chemin / nom); }
  std::string Chemin() const { return chemin.string(); }

private:
  std::filesystem::path chemin;
};

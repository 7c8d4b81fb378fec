// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// Command-line analysis of a hand or a deal, with the game's own engine.
#include <iostream>
#include <string>
#include <vector>

#include "analyse/commande_historique.h"
#include "analyse/commande_main.h"

#ifndef TN_VERSION
#define TN_VERSION "0"
#endif

int CommandeDonne(const std::vector<std::string> &arguments);

namespace {

const char *const Aide = "Usage : troisniveaux-analyse main [--json] C1 ... C13\n"
                         "        troisniveaux-analyse donne ...\n"
                         "        troisniveaux-analyse historique [--json] [FICHIER]\n"
                         "        troisniveaux-analyse <commande> --help\n"
                         "        troisniveaux-analyse --version\n";

} // namespace

int main(int argc, char **argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.empty()) {
    std::cerr << Aide;
    return 2;
  }
  const std::string &commande = arguments.front();
  const std::vector<std::string> suite(arguments.begin() + 1, arguments.end());
  if (commande == "main")
    return CommandeMain(suite, std::cout, std::cerr);
  if (commande == "historique")
    return CommandeHistorique(suite, std::cout, std::cerr);
  if (commande == "donne")
    return CommandeDonne(suite);
  if (commande == "--help" || commande == "-h") {
    std::cout << Aide;
    return 0;
  }
  if (commande == "--version" || commande == "-V") {
    std::cout << "troisniveaux-analyse " << TN_VERSION << "\n";
    return 0;
  }
  std::cerr << "Commande inconnue : « " << commande << " ».\n" << Aide;
  return 2;
}

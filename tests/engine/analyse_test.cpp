// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The command `troisniveaux-analyse main` and the card text it reads.
#include <gtest/gtest.h>

#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

#include "analyse/commande_main.h"
#include "analyse/texte.h"
#include "partie_essai.h"

int CommandeDonne(const std::vector<std::string> &arguments);

namespace {

TEST(Texte, CartesÉcritesEtLues) {
  for (int c = 0; c < 52; ++c)
    EXPECT_EQ(texte::LitCarte(texte::Carte(c)), c) << texte::Carte(c);
  const std::pair<const char *, int> lues[] = {
      {"10C", 34},           {"vp", 48}, {"AT", 12}, {"DK", 23}, {"r♡", 37}, {"10", 10},
      {"A♠\xEF\xB8\x8F", 51}};
  for (const auto &[texte, code] : lues)
    EXPECT_EQ(texte::LitCarte(texte), code) << texte;
  for (const char *faux : {"", "52", "1♥", "X", "A", "♠", "AX", "11C", "-1", "A♠♠"})
    EXPECT_FALSE(texte::LitCarte(faux).has_value()) << faux;
}

struct Appel {
  int statut;
  std::string sortie, erreurs;
};

Appel Lance(const std::vector<std::string> &arguments) {
  std::ostringstream sortie, erreurs;
  const int statut = CommandeMain(arguments, sortie, erreurs);
  return {statut, sortie.str(), erreurs.str()};
}

TEST(CommandeMain, JsonSurUneLigneEtNiveauxEnClair) {
  const Appel a =
      Lance({"--json", "49", "29", "0", "35", "43", "41", "25", "51", "14", "15", "9", "45", "20"});
  EXPECT_EQ(a.statut, 0) << a.erreurs;
  EXPECT_EQ(a.sortie, "{\"cartes\": [49, 29, 0, 35, 43, 41, 25, 51, 14, 15, 9, 45, 20], "
                      "\"MeilleurRangement\": 21179, \"MeilleureValeur\": 1005.17615, "
                      "\"disposition\": [49, 43, 41, 51, 45, 29, 0, 25, 14, 15, 35, 9, 20], "
                      "\"ToutFlush\": false, \"ToutQuinte\": false, \"SixPaires\": false, "
                      "\"MégaQuinte\": false}\n");
  // The third worked hand, written as a player reads it.
  const Appel b =
      Lance({"A♠", "4P", "R♠", "A♣", "4♣", "3♣", "3♦", "6♦", "6♣", "VP", "5♣", "5♠", "10♦"});
  EXPECT_NE(b.sortie.find("NIVEAU 2 : A♠ 4♠ R♠ V♠ 5♠  FLUSH, 512.7954666666666\n"
                          "NIVEAU 3 : 3♦ 6♦ 10♦  TOUT FLUSH\n"),
            std::string::npos)
      << b.sortie;
  EXPECT_NE(b.sortie.find("Rangement 58640 sur 72072, valeur 6900\nMain spéciale : TOUT FLUSH\n"),
            std::string::npos)
      << b.sortie;
}

TEST(CommandeMain, MauvaisArguments) {
  // Too few, too many, the same card twice, no card, a code past the deck.
  for (const auto &[nombre, dernier] : std::vector<std::pair<int, std::string>>{
           {3, "2"}, {14, "13"}, {13, "2♣"}, {13, "Z♣"}, {13, "52"}}) {
    std::vector<std::string> arguments;
    for (int c = 0; c + 1 < nombre; ++c)
      arguments.push_back(std::to_string(c));
    arguments.push_back(dernier);
    const Appel a = Lance(arguments);
    EXPECT_TRUE(a.statut == 2 && a.sortie.empty() && !a.erreurs.empty()) << dernier;
  }
}

} // namespace

// A pipe or a folder given as the deal is refused without waiting, and a
// layout of the human's cards must hold 13 of them.
TEST(AnalyseDonne, LesArgumentsFautifsSortentAvecLeCodeDeux) {
  DossierEssai d;
  const std::string tube = d.Chemin() + "/tube", tirage = d.Chemin() + "/Tirage";
  ASSERT_EQ(mkfifo(tube.c_str(), 0644), 0);
  d.Écrit("Tirage", TexteDeTirage(DonneDeRéférence));
  alarm(60);
  const std::vector<std::string> fautifs[] = {{"--tirage", tube},
                                              {"--tirage", d.Chemin()},
                                              {"--tirage", "/nonexistent/Tirage"},
                                              {"--tirage", tirage, "--humain", "1", "2"},
                                              {"--tirage"},
                                              {"--inconnu"},
                                              {}};
  for (const auto &arguments : fautifs)
    EXPECT_EQ(CommandeDonne(arguments), 2) << arguments.size();
  alarm(0);
}

TEST(AnalyseDonne, LaDonneExperteDeRéférenceEnJson) {
  DossierEssai dossier;
  // The command plays the human's cards as the file lays them out.
  const auto &d = DonneDeRéférence;
  dossier.Écrit("Tirage", TexteDeTirage({d[0], d[1], d[2], DispositionDeRéférence}));
  const std::string fichier = dossier.Chemin() + "/Tirage";
  testing::internal::CaptureStdout();
  ASSERT_EQ(CommandeDonne({"--expert", "--tirage", fichier, "--json"}), 0);
  const std::string sortie = testing::internal::GetCapturedStdout();
  EXPECT_EQ(sortie.find('\n'), sortie.size() - 1) << "one line";
  EXPECT_NE(sortie.find("\"MeilleurRangement\": [49298, 26192, 13328, 0]"), std::string::npos)
      << sortie;
  EXPECT_NE(sortie.find("\"TotalLabel\": [\"-5\", \"21\", \"-7\", \"-9\"]"), std::string::npos);
  EXPECT_EQ(sortie.find("\"solution\""), std::string::npos) << "no solution view in EXPERT";

  // In DEBUTANT with the human's cards turned round, the view and its way back.
  testing::internal::CaptureStdout();
  ASSERT_EQ(CommandeDonne({"--tirage", fichier, "--json", "--humain", "11", "7", "21", "42", "12",
                           "40", "51", "30", "28", "15", "31", "44", "18"}),
            0);
  const std::string débutant = testing::internal::GetCapturedStdout();
  EXPECT_NE(débutant.find("\"ExtraLabel\": [\"\", \"\", \"\", \"ERREUR !\"]"), std::string::npos);
  const auto solution = débutant.find("\"solution\"");
  ASSERT_NE(solution, std::string::npos);
  const auto retour = débutant.find("\"retour\"");
  ASSERT_NE(retour, std::string::npos);
  EXPECT_GT(débutant.find("ERREUR !", solution), retour) << "the solution is in order";
  EXPECT_NE(débutant.find("ERREUR !", retour), std::string::npos) << "and back to the human's";
}

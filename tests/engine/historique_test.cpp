// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// The history of the scores: its lines, its file and its figures.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "analyse/commande_historique.h"
#include "files/historique.h"
#include "partie_essai.h"

using historique::Entrée;
const Entrée Remise{.date = "2026-11-24 08:00:00", .remise = true};

TEST(Historique, UnFichierAbîméSeLitSansLesLignesFautives) {
  DossierEssai d;
  const std::string bonne = "2026-11-23 21:04:05;DEBUTANT;1;2;3;-6;1;2;3;-6\r\n";
  std::string octets = bonne;
  for (const char *mauvaise : {
           "2026-11-23 21:04:05;DEBUTANT;1;2;3;-6;1;2;3\r\n",      // a field short
           "2026-11-23 21:04:05;DEBUTANT;1;2;3;-6;1;2;3;-6;7\r\n", // one too many
           "2026-13-45 25:61:00;EXPERT;1;2;3;-6;1;2;3;-6\r\n",     // no such date
           "2026-11-23 21:04:05;MOYEN;1;2;3;-6;1;2;3;-6\r\n",      // no such mode
           "2026-11-23 21:04:05;EXPERT;1;2;3;-6;1;2;3;99999999999\r\n",
           "2026-11-23 21:04:05;EXPERT;1;x;3;-6;1;2;3;-6\r\n",
           "2026-11-23 21:04:05;SCORES A 1\r\n",
           "\xff\xfe\x01 binaire\r\n",
       })
    octets += std::string(mauvaise, std::char_traits<char>::length(mauvaise));
  octets += std::string("\0\0\0\r\n", 5) + std::string(100000, 'x') + "\r\n\r\n\r\n";
  octets += bonne + "2026-11-23 21:05:00;EXPERT;4;-4;0"; // cut short by a crash of some tool
  d.Écrit("Historique", octets);

  const auto lecture = historique::Lit(d.Chemin() + "/Historique");
  EXPECT_TRUE(lecture.trouvé);
  EXPECT_EQ(lecture.entrées.size(), 2u);
  EXPECT_EQ(lecture.lignesIgnorées, 11);

  // The next write keeps the good lines and drops the rest.
  ASSERT_TRUE(historique::Ajoute(Remise, d.Chemin() + "/Historique"));
  EXPECT_EQ(d.Lit("Historique"), bonne + bonne + "2026-11-24 08:00:00;SCORES A 0\r\n");
}

TEST(Historique, LeFichierGardeSesDernièresLignes) {
  DossierEssai d;
  const std::string nom = d.Chemin() + "/Historique";
  std::string octets;
  for (std::size_t n = 0; n < historique::LignesGardées; ++n)
    octets +=
        historique::Ligne(Entrée{"2026-11-23 21:04:05", false, 1, {int32_t(n), 0, 0, -int32_t(n)}});
  d.Écrit("Historique", octets);
  ASSERT_TRUE(historique::Ajoute(Remise, nom));
  const auto lecture = historique::Lit(nom);
  ASSERT_EQ(lecture.entrées.size(), historique::LignesGardées);
  EXPECT_EQ(lecture.entrées.front().totaux[0], 1) << "the oldest line went";
  EXPECT_TRUE(lecture.entrées.back().remise);

  // A crash in the rename leaves the old file whole and a leftover that the
  // next start clears.
  ASSERT_TRUE(TuéAuRenommage([&] { historique::Ajoute(Remise, nom); }));
  EXPECT_EQ(historique::Lit(nom).entrées.size(), historique::LignesGardées);
  std::vector<std::string> restes;
  for (const auto &f : std::filesystem::directory_iterator(d.Chemin()))
    if (f.path().filename().string().starts_with("Historique."))
      restes.push_back(f.path().filename().string());
  ASSERT_EQ(restes.size(), 1u);
  PlateformeSansFenêtre p(d.Chemin());
  TroisNiveaux t(p);
  t.Form_Load();
  EXPECT_EQ(d.Existe(restes[0]), GardéCommeCopie(restes[0])) << restes[0];
}

// The figures of each seat, as the analysis command gives them.
TEST(Historique, LesChiffresDeChaqueSiègeEtLaCommandeQuiLesDonne) {
  const std::vector<Entrée> entrées = {
      {"2026-11-23 21:00:00", false, 1, {-5, 21, -7, -9}, {-5, 21, -7, -9}},
      {"2026-11-23 21:05:00", false, 0, {18, -6, -6, -6}, {13, 15, -13, -15}},
      Remise,
      {"2026-11-23 21:09:00", false, 1, {2, 0, 1, -3}, {2, 0, 1, -3}},
  };
  DossierEssai d;
  for (const Entrée &e : entrées)
    ASSERT_TRUE(historique::Ajoute(e, d.Chemin() + "/Historique"));
  std::filesystem::current_path(d.Chemin());
  const auto Résumé = [](const std::vector<std::string> &arguments) {
    std::ostringstream sortie, erreurs;
    const int statut = CommandeHistorique(arguments, sortie, erreurs);
    return std::to_string(statut) + " " + sortie.str();
  };
  EXPECT_EQ(Résumé({"--json"}),
            "0 {\"donnes\": 3, \"remises\": 1, \"lignesIgnorées\": 0, \"sièges\": [{\"nom\": "
            "\"MicroProc\", \"donnes\": 3, \"moyenne\": 5.00, \"meilleure\": 18, \"pire\": -5, "
            "\"score\": 2}, {\"nom\": \"GigaOctets\", \"donnes\": 3, \"moyenne\": 5.00, "
            "\"meilleure\": 21, \"pire\": -6, \"score\": 0}, {\"nom\": \"MégaBytes\", \"donnes\": "
            "3, \"moyenne\": -4.00, \"meilleure\": 1, \"pire\": -7, \"score\": 1}, {\"nom\": "
            "\"Bibi\", \"donnes\": 3, \"moyenne\": -6.00, \"meilleure\": -3, \"pire\": -9, "
            "\"score\": -3}]}\n");
  EXPECT_TRUE(Résumé({}).starts_with("0 Historique : 3 donnes, 1 remise à zéro\n")) << Résumé({});
  EXPECT_EQ(Résumé({"Absent"}), "1 ");
  EXPECT_EQ(Résumé({"--moyenne"}), "2 ");
  EXPECT_EQ(historique::Calcule({entrées[0], Remise}).sièges[1].score, 0)
      << "a reset last leaves the scores at 0";
}

// The history of the scores: its lines, its file, its figures, and the game's
// two calls that feed it.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <sys/stat.h>

#include "analyse/commande_historique.h"
#include "files/historique.h"
#include "partie_essai.h"

namespace {

historique::Entrée Donne(const std::string &date, uint8_t mode, std::array<int32_t, 4> totaux,
                         std::array<int32_t, 4> scores) {
  historique::Entrée e;
  e.date = date;
  e.mode = mode;
  std::copy(totaux.begin(), totaux.end(), e.totaux);
  std::copy(scores.begin(), scores.end(), e.scores);
  return e;
}

historique::Entrée Remise(const std::string &date) {
  historique::Entrée e;
  e.date = date;
  e.remise = true;
  return e;
}

} // namespace

TEST(Historique, LesLignesFontLAllerRetour) {
  const historique::Entrée entrées[] = {
      Donne("2026-11-23 21:04:05", 0, {-5, 21, -7, -9}, {-5, 21, -7, -9}),
      Donne("2026-01-01 00:00:00", 1, {18, -6, -6, -6}, {2147483647, -2147483647 - 1, 0, 12}),
      Remise("2026-12-31 23:59:59")};
  for (const auto &e : entrées) {
    const std::string ligne = historique::Ligne(e);
    ASSERT_TRUE(ligne.ends_with("\r\n")) << ligne;
    EXPECT_EQ(historique::LitLigne(ligne), e) << ligne;
  }
  EXPECT_EQ(historique::Ligne(entrées[0]),
            "2026-11-23 21:04:05;EXPERT;-5;21;-7;-9;-5;21;-7;-9\r\n");
  EXPECT_EQ(historique::Ligne(entrées[2]), "2026-12-31 23:59:59;SCORES A 0\r\n");
}

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

  EXPECT_FALSE(historique::Lit(d.Chemin() + "/Absent").trouvé);
  std::filesystem::create_directory(d.Chemin() + "/Dossier");
  EXPECT_FALSE(historique::Lit(d.Chemin() + "/Dossier").trouvé);

  // The next write keeps the good lines and drops the rest.
  ASSERT_TRUE(historique::Ajoute(Remise("2026-11-24 08:00:00"), d.Chemin() + "/Historique"));
  EXPECT_EQ(d.Lit("Historique"), bonne + bonne + "2026-11-24 08:00:00;SCORES A 0\r\n");
}

TEST(Historique, LeFichierGardeSesDernièresLignes) {
  DossierEssai d;
  const std::string nom = d.Chemin() + "/Historique";
  std::string octets;
  for (std::size_t n = 0; n < historique::LignesGardées; ++n)
    octets += historique::Ligne(
        Donne("2026-11-23 21:04:05", 1, {int32_t(n), 0, 0, -int32_t(n)}, {0, 0, 0, 0}));
  d.Écrit("Historique", octets);
  ASSERT_TRUE(historique::Ajoute(Remise("2026-11-24 08:00:00"), nom));
  const auto lecture = historique::Lit(nom);
  ASSERT_EQ(lecture.entrées.size(), historique::LignesGardées);
  EXPECT_EQ(lecture.entrées.front().totaux[0], 1) << "the oldest line went";
  EXPECT_TRUE(lecture.entrées.back().remise);

  // Where it cannot be written, the file is left whole and the answer is no;
  // a pipe at the name is no file to replace.
  std::filesystem::create_directory(d.Chemin() + "/Dossier");
  EXPECT_FALSE(historique::Ajoute(Remise("2026-11-24 08:00:00"), d.Chemin() + "/Dossier"));
  ASSERT_EQ(mkfifo((d.Chemin() + "/Tube").c_str(), 0644), 0);
  EXPECT_FALSE(historique::Ajoute(Remise("2026-11-24 08:00:00"), d.Chemin() + "/Tube"));
  EXPECT_TRUE(std::filesystem::is_fifo(d.Chemin() + "/Tube"));

  // A crash in the rename leaves the old file whole and a leftover that the
  // next start clears.
  ASSERT_TRUE(TuéAuRenommage([&] { historique::Ajoute(Remise("2026-11-25 08:00:00"), nom); }));
  EXPECT_EQ(historique::Lit(nom).entrées.size(), historique::LignesGardées);
  const auto Restes = [&] {
    return std::distance(std::filesystem::directory_iterator(d.Chemin()), {});
  };
  EXPECT_EQ(Restes(), 6) << "Noms, Scores, Historique, Dossier, Tube and the leftover";
  PlateformeSansFenêtre p(d.Chemin());
  TroisNiveaux t(p);
  t.Form_Load();
  EXPECT_EQ(Restes(), 5);
}

TEST(Historique, LesChiffresDeChaqueSiège) {
  const std::vector<historique::Entrée> entrées = {
      Donne("2026-11-23 21:00:00", 1, {-5, 21, -7, -9}, {-5, 21, -7, -9}),
      Donne("2026-11-23 21:05:00", 0, {18, -6, -6, -6}, {13, 15, -13, -15}),
      Remise("2026-11-23 21:06:00"),
      Donne("2026-11-23 21:09:00", 1, {2, 0, 1, -3}, {2, 0, 1, -3}),
  };
  const historique::Figures f = historique::Calcule(entrées);
  EXPECT_EQ(f.donnes, 3);
  EXPECT_EQ(f.remises, 1);
  EXPECT_EQ(f.sièges[0].donnes, 3);
  EXPECT_DOUBLE_EQ(f.sièges[0].moyenne, 15.0 / 3);
  EXPECT_EQ(f.sièges[0].meilleure, 18);
  EXPECT_EQ(f.sièges[0].pire, -5);
  EXPECT_EQ(f.sièges[1].meilleure, 21);
  EXPECT_EQ(f.sièges[1].pire, -6);
  EXPECT_EQ(f.sièges[3].score, -3);
  EXPECT_EQ(historique::Calcule({entrées[0], entrées[2]}).sièges[1].score, 0)
      << "a reset last leaves the scores at 0";
  EXPECT_EQ(historique::Calcule({}).sièges[2].donnes, 0);
}

// The game writes one line per paid deal, none for the solution view's second
// run, one for SCORES A 0; the analysis command reads the same figures back.
TEST(Historique, LaPartieLAlimenteEtLaCommandeLeRésume) {
  Partie p(0);
  p.Tirage(DonneDeRéférence);
  p.plateforme.script = [&](int tour) {
    if (tour == 1)
      p.Dispose({18, 44, 31, 15, 28, 30, 51, 40, 12, 42, 21, 7, 11});
  };
  p.t.Rejoue_MouseUp();
  p.plateforme.script = nullptr;
  p.t.Mode_MouseUp(); // DEBUTANT: the second deal offers the solution view
  p.t.NouveauJeu_MouseUp();
  p.t.Joue_Click();
  p.t.VoirOrdi_Click(0);
  p.t.VoirOrdi_Click(1);
  p.t.Scoresà0_MouseUp();

  const auto lecture = historique::Lit();
  ASSERT_EQ(lecture.entrées.size(), 3u) << p.dossier.Lit("Historique");
  EXPECT_EQ(lecture.lignesIgnorées, 0);
  const auto &première = lecture.entrées[0];
  EXPECT_EQ(première.mode, 0);
  EXPECT_EQ(std::vector<int32_t>(première.totaux, première.totaux + 4),
            (std::vector<int32_t>{-5, 21, -7, -9}));
  EXPECT_EQ(std::vector<int32_t>(première.scores, première.scores + 4),
            (std::vector<int32_t>{-5, 21, -7, -9}));
  EXPECT_EQ(lecture.entrées[1].mode, 1);
  EXPECT_EQ(lecture.entrées[1].scores[2], première.scores[2] + lecture.entrées[1].totaux[2]);
  EXPECT_TRUE(lecture.entrées[2].remise);
  EXPECT_TRUE(p.plateforme.erreurs.empty());

  const historique::Figures f = historique::Calcule(lecture.entrées);
  std::ostringstream sortie, erreurs;
  ASSERT_EQ(CommandeHistorique({"--json"}, sortie, erreurs), 0) << erreurs.str();
  std::ostringstream attendu;
  attendu << "{\"donnes\": 2, \"remises\": 1, \"lignesIgnorées\": 0, \"sièges\": [";
  for (int s = 0; s <= 3; ++s) {
    char moyenne[32];
    std::snprintf(moyenne, sizeof moyenne, "%.2f", f.sièges[s].moyenne);
    attendu << (s ? ", " : "") << "{\"nom\": \"" << NomsParDéfaut[s] << "\", \"donnes\": 2"
            << ", \"moyenne\": " << moyenne << ", \"meilleure\": " << f.sièges[s].meilleure
            << ", \"pire\": " << f.sièges[s].pire << ", \"score\": 0}";
  }
  EXPECT_EQ(sortie.str(), attendu.str() + "]}\n");

  std::ostringstream texte;
  ASSERT_EQ(CommandeHistorique({}, texte, erreurs), 0);
  EXPECT_NE(texte.str().find("Historique : 2 donnes, 1 remise à zéro"), std::string::npos)
      << texte.str();
  EXPECT_EQ(CommandeHistorique({"Absent"}, texte, erreurs), 1);
  EXPECT_EQ(CommandeHistorique({"--moyenne"}, texte, erreurs), 2);
}

// A history that cannot be written is told once, and the game goes on.
TEST(Historique, UnÉchecDÉcritureNArrêtePasLaPartie) {
  Partie p;
  std::filesystem::create_directory(p.dossier.Chemin() + "/Historique");
  p.t.NouveauJeu_MouseUp();
  p.t.Joue_Click();
  p.t.NouveauJeu_MouseUp();
  p.t.Joue_Click();
  ASSERT_EQ(p.plateforme.erreurs.size(), 1u);
  EXPECT_NE(p.plateforme.erreurs[0].find("Historique"), std::string::npos);
  EXPECT_NE(p.dossier.Lit("Scores"), "0\r\n0\r\n0\r\n0\r\n");
  EXPECT_FALSE(p.t.SessionTerminée);
}

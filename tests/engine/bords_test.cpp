// Two edges: a falling star drawn again at the top, and a session that fails
// to start after the display mode was changed.
#include <gtest/gtest.h>

#include "core/table_state.h"
#include "dossier_essai.h"
#include "platform/sans_fenetre.h"

TEST(Bords, UneÉtoileQuiRetombeResteDansLaFenêtre) {
  PlateformeSansFenêtre p;
  TroisNiveaux t(p);
  t.Fenêtre.Form.Width = 15360;
  t.Fenêtre.Form.Height = 11520;
  // This seed's first draw is 0.9999999753: times the width, it rounds to
  // the width itself as a float.
  t.Générateur = Aléatoire();
  t.Générateur.Réensemence(0x1.d29efp+5f);
  t.EtoileY[1] = 11519;
  t.EtoileVitesse[1] = 500;
  t.EtoilesTimer_Timer();
  EXPECT_EQ(t.EtoileY[1], 0);
  EXPECT_EQ(t.EtoileX[1], 15359.0f);
}

TEST(Bords, UnDémarrageManquéRemetLeModeDAffichage) {
  DossierEssai d;
  d.Écrit("Scores", "0\r\n0\r\n");
  PlateformeSansFenêtre p(d.Chemin());
  p.écran = {1024, 600, 24, 60, 0};
  TroisNiveaux t(p);
  t.Form_Load();
  ASSERT_TRUE(t.DémarrageRefusé);
  ASSERT_EQ(p.changements.size(), 2u);
  EXPECT_EQ(p.changements[0].dmPelsHeight, 768);
  EXPECT_EQ(p.écran.dmPelsHeight, 600) << "the screen is back as it was";
  EXPECT_EQ(p.écran.dmDisplayFrequency, 60);
}

#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>
#include <cstring>
#include <optional>

#include "core/table_state.h"
#include "platform/qt/affichage.h"
#include "platform/sans_fenetre.h"

#ifdef TN_XRANDR
#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>

namespace {

// A virtual X screen whose monitor offers 1024 x 600 and 1024 x 768 at 60 Hz,
// set to the lower one. The server forgets modes made by a client when it
// leaves, so this connection stays open for the whole test.
class ÉcranVirtuel {
public:
  ÉcranVirtuel() {
    const QString xvfb = QStandardPaths::findExecutable("Xvfb");
    if (xvfb.isEmpty())
      return;
    serveur.start(xvfb, {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
    if (!serveur.waitForStarted(10000))
      return;
    QByteArray numéro;
    while (!numéro.contains('\n') && serveur.waitForReadyRead(10000))
      numéro += serveur.readAllStandardOutput();
    nom = ":" + numéro.trimmed().toStdString();
    affichage = XOpenDisplay(nom.c_str());
    if (!affichage)
      return;
    const Window racine = DefaultRootWindow(affichage);
    XRRScreenResources *ressources = XRRGetScreenResources(affichage, racine);
    if (ressources && ressources->noutput > 0) {
      AjouteMode(ressources->outputs[0], 1024, 600, 1344, 625, 50400000);
      AjouteMode(ressources->outputs[0], 1024, 768, 1344, 806, 65000000);
    }
    XRRFreeScreenResources(ressources);
    prêt = Choisit(1024, 600);
  }
  ~ÉcranVirtuel() {
    if (affichage)
      XCloseDisplay(affichage);
    serveur.kill();
    serveur.waitForFinished(5000);
  }
  ÉcranVirtuel(const ÉcranVirtuel &) = delete;
  ÉcranVirtuel &operator=(const ÉcranVirtuel &) = delete;

  // The current size and rate, as the server has them.
  std::pair<int, int> Taille() {
    XRRScreenConfiguration *c = XRRGetScreenInfo(affichage, DefaultRootWindow(affichage));
    int nombre = 0;
    Rotation rotation;
    XRRScreenSize *tailles = XRRConfigSizes(c, &nombre);
    const SizeID actuelle = XRRConfigCurrentConfiguration(c, &rotation);
    const std::pair<int, int> taille{tailles[actuelle].width, tailles[actuelle].height};
    XRRFreeScreenConfigInfo(c);
    return taille;
  }
  // When the mode was last set: unchanged means nothing was sent.
  Time DernierChangement() {
    Time configuration;
    return XRRTimes(affichage, DefaultScreen(affichage), &configuration);
  }

  std::string nom;
  bool prêt = false;

private:
  void AjouteMode(RROutput sortie, unsigned largeur, unsigned hauteur, unsigned totalH,
                  unsigned totalV, unsigned long horloge) {
    std::string texte = std::to_string(largeur) + "x" + std::to_string(hauteur);
    XRRModeInfo mode;
    std::memset(&mode, 0, sizeof mode);
    mode.width = largeur;
    mode.height = hauteur;
    mode.hSyncStart = largeur + 24;
    mode.hSyncEnd = largeur + 160;
    mode.hTotal = totalH;
    mode.vSyncStart = hauteur + 3;
    mode.vSyncEnd = hauteur + 9;
    mode.vTotal = totalV;
    mode.dotClock = horloge;
    mode.name = texte.data();
    mode.nameLength = static_cast<unsigned>(texte.size());
    XRRAddOutputMode(affichage, sortie,
                     XRRCreateMode(affichage, DefaultRootWindow(affichage), &mode));
    XSync(affichage, False);
  }
  bool Choisit(int largeur, int hauteur) {
    XRRScreenConfiguration *c = XRRGetScreenInfo(affichage, DefaultRootWindow(affichage));
    int nombre = 0;
    Rotation rotation;
    XRRScreenSize *tailles = XRRConfigSizes(c, &nombre);
    XRRConfigCurrentConfiguration(c, &rotation);
    bool fait = false;
    for (int i = 0; i < nombre && !fait; ++i)
      if (tailles[i].width == largeur && tailles[i].height == hauteur)
        fait =
            XRRSetScreenConfig(affichage, c, DefaultRootWindow(affichage), static_cast<SizeID>(i),
                               rotation, CurrentTime) == RRSetConfigSuccess;
    XRRFreeScreenConfigInfo(c);
    XSync(affichage, False);
    return fait;
  }

  QProcess serveur;
  Display *affichage = nullptr;
};

// The engine's display procedures over the X11 path of a named display.
class PlateformeX11 : public PlateformeSansFenêtre {
public:
  explicit PlateformeX11(std::string nom) : nom(std::move(nom)) {}
  void EnumDisplaySettings(EnregistrementAffichage &e) override {
    if (const auto lu = LitModeX11(nom.c_str()))
      e = *lu;
  }
  void ChangeDisplaySettings(const EnregistrementAffichage &e) override {
    PlateformeSansFenêtre::ChangeDisplaySettings(e);
    AppliqueModeX11(e, nom.c_str());
  }

private:
  std::string nom;
};

} // namespace

TEST(AffichageX11, UnÉcranDe600PixelsPasseEn1024x768PuisRevient) {
  ÉcranVirtuel écran;
  if (!écran.prêt)
    GTEST_SKIP() << "no virtual X screen with RandR here";
  const auto lu = LitModeX11(écran.nom.c_str());
  ASSERT_TRUE(lu);
  EXPECT_EQ(lu->dmPelsWidth, 1024);
  EXPECT_EQ(lu->dmPelsHeight, 600);
  EXPECT_EQ(lu->dmBitsPerPel, 24);
  EXPECT_EQ(lu->dmDisplayFrequency, 60);

  PlateformeX11 plateforme(écran.nom);
  TroisNiveaux t(plateforme);
  t.VérifieRésolution();
  EXPECT_EQ(plateforme.demandesRésolution, 1);
  EXPECT_EQ(écran.Taille(), std::make_pair(1024, 768));
  t.RestaureRésolution();
  EXPECT_EQ(écran.Taille(), std::make_pair(1024, 600));
}

TEST(AffichageX11, RienNeChangeQuandRienNEstÀChangerOuQueLaTailleManque) {
  ÉcranVirtuel écran;
  if (!écran.prêt)
    GTEST_SKIP() << "no virtual X screen with RandR here";
  const Time avant = écran.DernierChangement();
  EXPECT_TRUE(AppliqueModeX11({1024, 600, 24, 60, 0}, écran.nom.c_str()));
  EXPECT_TRUE(AppliqueModeX11({1024, 600, 24, 0, 0}, écran.nom.c_str()));
  EXPECT_FALSE(AppliqueModeX11({800, 600, 24, 60, 0}, écran.nom.c_str())) << "no such size";
  EXPECT_EQ(écran.DernierChangement(), avant) << "the same mode is never sent again";

  // A rate this size does not offer leaves the choice to the server rather
  // than failing the change.
  EXPECT_TRUE(AppliqueModeX11({1024, 768, 24, 144, 0}, écran.nom.c_str()));
  EXPECT_EQ(écran.Taille(), std::make_pair(1024, 768));
  EXPECT_FALSE(LitModeX11(":4095")) << "no display there";
}

#endif

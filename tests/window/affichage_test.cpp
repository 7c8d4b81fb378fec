// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>
#include <csignal>
#include <optional>
#include <sys/types.h>
#include <tuple>

#include "dossier_essai.h"

#include "platform/qt/bureau/affichage.h"

// Where the table, frame included, does not fit the screen's free area, the
// window is the largest of the same proportions that fits: free area, frame,
// size (a laptop of 1366 x 768 with its panel and title bar, third).
TEST(Affichage, LaFenêtreTientDansLÉcranLibre) {
  for (const auto &[libre, cadre, attendue] :
       {std::tuple<QSize, QMargins, QSize>{{1920, 1050}, {0, 37, 0, 0}, {1024, 768}},
        {{1024, 768}, {}, {1024, 768}},
        {{1366, 740}, {0, 37, 0, 0}, {937, 703}},
        {{1024, 768}, {4, 30, 4, 4}, {978, 734}},
        {{640, 1024}, {}, {640, 480}}})
    EXPECT_EQ(TailleQuiTient({1024, 768}, libre, cadre), attendue) << libre.width();
}

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
      AjouteMode(ressources->outputs[0], 1024, 600);
      AjouteMode(ressources->outputs[0], 1024, 768);
    }
    XRRFreeScreenResources(ressources);
    prêt = Taille({1024, 600}) == std::pair(1024, 600);
  }
  ~ÉcranVirtuel() {
    if (affichage)
      XCloseDisplay(affichage);
    serveur.kill();
    serveur.waitForFinished(5000);
  }

  // The current size; with `voulue`, first sets the screen to it if offered.
  std::pair<int, int> Taille(std::pair<int, int> voulue = {}) {
    XRRScreenConfiguration *c = XRRGetScreenInfo(affichage, DefaultRootWindow(affichage));
    int nombre = 0;
    Rotation rotation;
    XRRScreenSize *tailles = XRRConfigSizes(c, &nombre);
    SizeID actuelle = XRRConfigCurrentConfiguration(c, &rotation);
    for (int i = 0; i < nombre; ++i)
      if (std::pair(tailles[i].width, tailles[i].height) == voulue &&
          XRRSetScreenConfig(affichage, c, DefaultRootWindow(affichage), static_cast<SizeID>(i),
                             rotation, CurrentTime) == RRSetConfigSuccess)
        actuelle = static_cast<SizeID>(i);
    const std::pair<int, int> taille{tailles[actuelle].width, tailles[actuelle].height};
    XRRFreeScreenConfigInfo(c);
    XSync(affichage, False);
    return taille;
  }
  // Cuts off the client that owns this window, as the server does to a
  // program whose connection is lost.
  void CoupeLeClient(unsigned long fenêtre) {
    XKillClient(affichage, fenêtre);
    XSync(affichage, False);
  }
  // When the mode was last set: unchanged means nothing was sent.
  Time DernierChangement() {
    Time configuration;
    return XRRTimes(affichage, DefaultScreen(affichage), &configuration);
  }

  std::string nom;
  bool prêt = false;

private:
  // A mode of exactly 60 Hz: 60 times the whole frame's pixels a second.
  void AjouteMode(RROutput sortie, unsigned largeur, unsigned hauteur) {
    std::string texte = std::to_string(largeur) + "x" + std::to_string(hauteur);
    const unsigned totalH = largeur + 320, totalV = hauteur + 38;
    XRRModeInfo mode{.id = 0,
                     .width = largeur,
                     .height = hauteur,
                     .dotClock = 60UL * totalH * totalV,
                     .hSyncStart = largeur + 24,
                     .hSyncEnd = largeur + 160,
                     .hTotal = totalH,
                     .hSkew = 0,
                     .vSyncStart = hauteur + 3,
                     .vSyncEnd = hauteur + 9,
                     .vTotal = totalV,
                     .name = texte.data(),
                     .nameLength = static_cast<unsigned>(texte.size()),
                     .modeFlags = 0};
    XRRAddOutputMode(affichage, sortie,
                     XRRCreateMode(affichage, DefaultRootWindow(affichage), &mode));
    XSync(affichage, False);
  }

  QProcess serveur;
  Display *affichage = nullptr;
};

// The cut-down session on the virtual screen, in a folder of its own; it has
// changed the mode once it has printed its window.
struct Pilote {
  QProcess processus;
  unsigned long fenêtre = 0;
  Pilote(const ÉcranVirtuel &écran, const DossierEssai &dossier) {
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert("DISPLAY", QString::fromStdString(écran.nom));
    environnement.insert("QT_QPA_PLATFORM", "xcb");
    // Its ways out are abrupt by design: what the toolkit leaves unfreed
    // then is no finding of the leak checker, and a crash of the toolkit
    // must show as a crash, not as the checker's own exit.
    const QString asan = environnement.value("ASAN_OPTIONS");
    environnement.insert("ASAN_OPTIONS", (asan.isEmpty() ? "" : asan + ":") +
                                             "detect_leaks=0:handle_segv=0:handle_abort=0");
    processus.setProcessEnvironment(environnement);
    processus.start(TN_PILOTE_AFFICHAGE, {QString::fromStdString(dossier.Chemin())});
    QByteArray ligne;
    while (!ligne.contains('\n') && processus.waitForReadyRead(20000))
      ligne += processus.readAllStandardOutput();
    fenêtre = ligne.trimmed().toULong();
  }
  // The exit status, or -1 when it did not end by itself.
  int Fin() {
    const bool fini = processus.state() == QProcess::NotRunning || processus.waitForFinished(20000);
    erreurs = processus.readAllStandardError().toStdString();
    if (!fini)
      return -1;
    return processus.exitStatus() == QProcess::NormalExit ? processus.exitCode() : -1;
  }
  std::string erreurs;
};

} // namespace

// The mode read, changed and put back; the same mode is never sent again, a
// size not offered is refused, and a rate not offered is left to the server.
// A session changes the mode as it starts and puts it back however it ends:
// by a signal, the X connection lost, or a start refused after the change.
TEST(AffichageX11, UnÉcranDe600PixelsPasseEn1024x768PuisRevient) {
  ÉcranVirtuel écran;
  if (!écran.prêt)
    GTEST_SKIP() << "no virtual X screen with RandR here";
  const auto bas = std::make_pair(1024, 600), haut = std::make_pair(1024, 768);
  const auto lu = LitModeX11(écran.nom.c_str());
  ASSERT_TRUE(lu);
  EXPECT_EQ(std::tuple(lu->dmPelsWidth, lu->dmPelsHeight, lu->dmBitsPerPel, lu->dmDisplayFrequency),
            std::tuple(1024, 600, 24, 60));
  EXPECT_FALSE(LitModeX11(":4095")) << "no display there";
  EXPECT_TRUE(ModeX11Offert(1024, 768, écran.nom.c_str()));
  EXPECT_FALSE(ModeX11Offert(800, 600, écran.nom.c_str())) << "no dialog for a mode not there";
  const Time avant = écran.DernierChangement();
  EXPECT_TRUE(AppliqueModeX11({1024, 600, 24, 60, 0}, écran.nom.c_str()));
  EXPECT_TRUE(AppliqueModeX11({1024, 600, 24, 0, 0}, écran.nom.c_str()));
  EXPECT_FALSE(AppliqueModeX11({800, 600, 24, 60, 0}, écran.nom.c_str())) << "no such size";
  EXPECT_EQ(écran.DernierChangement(), avant) << "the same mode is never sent again";

  EXPECT_TRUE(AppliqueModeX11({1024, 768, 24, 144, 0}, écran.nom.c_str()));
  EXPECT_EQ(écran.Taille(), haut);
  écran.Taille(bas);

  DossierEssai dossier;
  for (int signal : {SIGTERM, SIGINT, SIGHUP}) {
    Pilote pilote(écran, dossier);
    ASSERT_NE(pilote.fenêtre, 0u) << "signal " << signal;
    EXPECT_EQ(écran.Taille(), haut);
    kill(static_cast<pid_t>(pilote.processus.processId()), signal);
    EXPECT_EQ(pilote.Fin(), 128 + signal);
    EXPECT_EQ(écran.Taille(), bas) << "signal " << signal;
  }

  // The X connection cut: the toolkit exits on its own and the mode comes
  // back. At times the toolkit crashes instead, which no program can catch:
  // such a run is put right by hand and tried again.
  for (int essai = 0; essai < 5; ++essai) {
    Pilote pilote(écran, dossier);
    ASSERT_NE(pilote.fenêtre, 0u);
    EXPECT_EQ(écran.Taille(), haut);
    écran.CoupeLeClient(pilote.fenêtre);
    const int statut = pilote.Fin();
    if (statut < 0 && pilote.processus.exitStatus() == QProcess::CrashExit) {
      écran.Taille({1024, 600});
      continue;
    }
    EXPECT_EQ(statut, 1) << pilote.erreurs;
    EXPECT_EQ(écran.Taille(), bas) << "connection lost";
    break;
  }

  // A Scores damaged after the change: the session does not start.
  dossier.Écrit("Scores", "1\r\nx\r\n");
  Pilote pilote(écran, dossier);
  EXPECT_EQ(pilote.fenêtre, 0u);
  EXPECT_EQ(pilote.Fin(), 1) << pilote.erreurs;
  EXPECT_EQ(écran.Taille(), bas) << "failed start";
}
#endif

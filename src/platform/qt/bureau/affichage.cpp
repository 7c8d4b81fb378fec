// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/bureau/affichage.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#ifdef TN_XRANDR
#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>
#endif

namespace {

EnregistrementAffichage DepuisLÉcran() {
  EnregistrementAffichage e;
  if (const QScreen *écran = QGuiApplication::primaryScreen()) {
    e.dmPelsWidth = static_cast<int16_t>(écran->size().width());
    e.dmPelsHeight = static_cast<int16_t>(écran->size().height());
    e.dmBitsPerPel = static_cast<int16_t>(écran->depth());
    e.dmDisplayFrequency = static_cast<int16_t>(écran->refreshRate() + 0.5);
  }
  return e;
}

bool SurX11() { return QGuiApplication::platformName() == "xcb"; }

#ifdef TN_XRANDR
// The X screen's size table and the current entry, through RandR.
struct ConfigurationX {
  Display *affichage;
  XRRScreenConfiguration *configuration = nullptr;
  explicit ConfigurationX(const char *nom) : affichage(XOpenDisplay(nom)) {
    int évènement, erreur;
    if (affichage && XRRQueryExtension(affichage, &évènement, &erreur))
      configuration = XRRGetScreenInfo(affichage, DefaultRootWindow(affichage));
  }
  ~ConfigurationX() {
    if (configuration)
      XRRFreeScreenConfigInfo(configuration);
    if (affichage)
      XCloseDisplay(affichage);
  }
  ConfigurationX(const ConfigurationX &) = delete;
  ConfigurationX &operator=(const ConfigurationX &) = delete;
};

// Xlib's default handler ends the program on any error; a refused mode must
// only leave the screen as it is.
int erreurX = 0;
int NoteErreurX(Display *, XErrorEvent *e) {
  erreurX = e->error_code;
  return 0;
}

// The asked rate when this size offers it, else the server's choice (0), so
// that a rate of the old size never makes the change fail.
short FréquenceOfferte(XRRScreenConfiguration *configuration, int taille, short voulue) {
  int nombre = 0;
  const short *fréquences = XRRConfigRates(configuration, taille, &nombre);
  for (int i = 0; i < nombre; ++i)
    if (fréquences[i] == voulue)
      return voulue;
  return 0;
}
#endif

} // namespace

std::optional<EnregistrementAffichage> LitModeX11(const char *nomAffichage) {
#ifdef TN_XRANDR
  ConfigurationX x(nomAffichage);
  if (!x.configuration)
    return std::nullopt;
  int nombre = 0;
  Rotation rotation;
  XRRScreenSize *tailles = XRRConfigSizes(x.configuration, &nombre);
  const SizeID actuelle = XRRConfigCurrentConfiguration(x.configuration, &rotation);
  if (!tailles || actuelle >= nombre)
    return std::nullopt;
  EnregistrementAffichage e;
  e.dmPelsWidth = static_cast<int16_t>(tailles[actuelle].width);
  e.dmPelsHeight = static_cast<int16_t>(tailles[actuelle].height);
  e.dmBitsPerPel = static_cast<int16_t>(DefaultDepth(x.affichage, DefaultScreen(x.affichage)));
  e.dmDisplayFrequency = XRRConfigCurrentRate(x.configuration);
  return e;
#else
  (void)nomAffichage;
  return std::nullopt;
#endif
}

bool AppliqueModeX11(const EnregistrementAffichage &e, const char *nomAffichage) {
#ifdef TN_XRANDR
  ConfigurationX x(nomAffichage);
  if (!x.configuration)
    return false;
  int nombre = 0;
  Rotation rotation;
  XRRScreenSize *tailles = XRRConfigSizes(x.configuration, &nombre);
  const SizeID actuelle = XRRConfigCurrentConfiguration(x.configuration, &rotation);
  const short fréquence = XRRConfigCurrentRate(x.configuration);
  for (int i = 0; i < nombre; ++i) {
    if (tailles[i].width != e.dmPelsWidth || tailles[i].height != e.dmPelsHeight)
      continue;
    const short voulue = FréquenceOfferte(
        x.configuration, i, e.dmDisplayFrequency > 0 ? e.dmDisplayFrequency : fréquence);
    if (i == actuelle && (voulue == fréquence || voulue == 0))
      return true; // the same mode as now: nothing to do
    erreurX = 0;
    XSync(x.affichage, False);
    auto *précédent = XSetErrorHandler(NoteErreurX);
    const Status statut =
        XRRSetScreenConfigAndRate(x.affichage, x.configuration, DefaultRootWindow(x.affichage),
                                  static_cast<SizeID>(i), rotation, voulue, CurrentTime);
    XSync(x.affichage, False);
    XSetErrorHandler(précédent);
    return statut == RRSetConfigSuccess && erreurX == 0;
  }
  return false;
#else
  (void)e;
  (void)nomAffichage;
  return false;
#endif
}

bool ModeX11Offert(int largeur, int hauteur, const char *nomAffichage) {
#ifdef TN_XRANDR
  ConfigurationX x(nomAffichage);
  if (!x.configuration)
    return false;
  int nombre = 0;
  const XRRScreenSize *tailles = XRRConfigSizes(x.configuration, &nombre);
  return std::any_of(tailles, tailles + nombre, [&](const XRRScreenSize &t) {
    return t.width == largeur && t.height == hauteur;
  });
#else
  (void)largeur;
  (void)hauteur;
  (void)nomAffichage;
  return false;
#endif
}

bool ModeRéglable(int largeur, int hauteur) {
  return SurX11() && ModeX11Offert(largeur, hauteur, nullptr);
}

QSize TailleQuiTient(QSize voulue, QSize disponible, QMargins cadre) {
  const QSize place = disponible.shrunkBy(cadre).expandedTo({1, 1});
  if (voulue.width() <= place.width() && voulue.height() <= place.height())
    return voulue;
  // In whole pixels, rounded down, so the result never overflows the place.
  if (qint64(place.width()) * voulue.height() <= qint64(place.height()) * voulue.width())
    return {place.width(), int(qint64(place.width()) * voulue.height() / voulue.width())};
  return {int(qint64(place.height()) * voulue.width() / voulue.height()), place.height()};
}

EnregistrementAffichage LitModeAffichage() {
  if (SurX11())
    if (const auto mode = LitModeX11(nullptr))
      return *mode;
  return DepuisLÉcran();
}

namespace {
// The mode before this program's first change, and whether a change of ours
// stands now.
std::optional<EnregistrementAffichage> modeDeDépart;
bool modeChangé = false;
} // namespace

// Only X11 lets a program choose the screen's mode; elsewhere the window
// keeps its fixed size and the screen stays as it is.
void AppliqueModeAffichage(const EnregistrementAffichage &e) {
  if (!SurX11())
    return;
  if (!modeDeDépart)
    modeDeDépart = LitModeX11(nullptr);
  if (!AppliqueModeX11(e, nullptr) || !modeDeDépart)
    return;
  // A server may say yes and keep its mode: what counts is the mode read back.
  const auto lu = LitModeX11(nullptr);
  if (!lu || lu->dmPelsWidth != e.dmPelsWidth || lu->dmPelsHeight != e.dmPelsHeight)
    return;
  modeChangé =
      e.dmPelsWidth != modeDeDépart->dmPelsWidth || e.dmPelsHeight != modeDeDépart->dmPelsHeight;
  // The window is fitted to the screen as Qt knows it, which learns of the
  // new size by an event of its own: give it a moment.
  const QSize taille(e.dmPelsWidth, e.dmPelsHeight);
  const QDeadlineTimer limite(1000);
  while (QCoreApplication::instance() && QGuiApplication::primaryScreen() &&
         QGuiApplication::primaryScreen()->size() != taille && !limite.hasExpired())
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

// Needs no application object: it may run once everything else is gone.
void RemetLeModeDeDépart() {
  if (!modeChangé || !modeDeDépart)
    return;
  modeChangé = false;
  AppliqueModeX11(*modeDeDépart, nullptr);
}

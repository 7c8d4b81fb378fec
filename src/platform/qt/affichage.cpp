#include "platform/qt/affichage.h"

#include <QGuiApplication>
#include <QScreen>

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

#ifdef TN_XRANDR
bool SurX11() { return QGuiApplication::platformName() == "xcb"; }

// The X screen's size table and the current entry, through RandR.
struct ConfigurationX {
  Display *affichage = XOpenDisplay(nullptr);
  XRRScreenConfiguration *configuration = nullptr;
  ConfigurationX() {
    if (affichage)
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
#endif

} // namespace

EnregistrementAffichage LitModeAffichage() {
#ifdef TN_XRANDR
  if (SurX11()) {
    ConfigurationX x;
    if (x.configuration) {
      int nombre = 0;
      Rotation rotation;
      XRRScreenSize *tailles = XRRConfigSizes(x.configuration, &nombre);
      const SizeID actuelle = XRRConfigCurrentConfiguration(x.configuration, &rotation);
      if (tailles && actuelle < nombre) {
        EnregistrementAffichage e;
        e.dmPelsWidth = static_cast<int16_t>(tailles[actuelle].width);
        e.dmPelsHeight = static_cast<int16_t>(tailles[actuelle].height);
        e.dmBitsPerPel = static_cast<int16_t>(DefaultDepth(x.affichage, DefaultScreen(x.affichage)));
        e.dmDisplayFrequency = XRRConfigCurrentRate(x.configuration);
        return e;
      }
    }
  }
#endif
  return DepuisLÉcran();
}

// Only X11 lets a program choose the screen's mode; elsewhere the window
// keeps its fixed size and the screen stays as it is.
void AppliqueModeAffichage(const EnregistrementAffichage &e) {
#ifdef TN_XRANDR
  if (!SurX11())
    return;
  ConfigurationX x;
  if (!x.configuration)
    return;
  int nombre = 0;
  Rotation rotation;
  XRRScreenSize *tailles = XRRConfigSizes(x.configuration, &nombre);
  const SizeID actuelle = XRRConfigCurrentConfiguration(x.configuration, &rotation);
  const short fréquence = XRRConfigCurrentRate(x.configuration);
  for (int i = 0; i < nombre; ++i) {
    if (tailles[i].width != e.dmPelsWidth || tailles[i].height != e.dmPelsHeight)
      continue;
    const short voulue = e.dmDisplayFrequency > 0 ? e.dmDisplayFrequency : fréquence;
    if (i == actuelle && voulue == fréquence)
      return;
    XRRSetScreenConfigAndRate(x.affichage, x.configuration, DefaultRootWindow(x.affichage),
                              static_cast<SizeID>(i), rotation, voulue, CurrentTime);
    XSync(x.affichage, False);
    return;
  }
#else
  (void)e;
#endif
}

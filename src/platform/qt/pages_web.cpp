#include "platform/qt/pages_web.h"

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <cstdlib>
#include <unistd.h>

#ifdef TN_WEBENGINE
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>
#endif

namespace {

QString &BaseConfigurée() {
#ifdef TN_PUB_BASE
  static QString base = QStringLiteral(TN_PUB_BASE);
#else
  static QString base;
#endif
  return base;
}

int refusées = 0;

QString DossierDuProgramme() {
  return QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + "/").toString();
}

#ifdef TN_WEBENGINE
// View geometry in pixels, relative to its panel (twips / 15).
QRect Géométrie(VueWeb vue) {
  switch (vue) {
  case VueWeb::Pub0Web:
    return QRect(0, 14, 816, 157);
  case VueWeb::Pub1Web:
    return QRect(19, 0, 224, 787);
  default:
    return QRect(0, 0, 226, 60);
  }
}

class Filtre : public QWebEngineUrlRequestInterceptor {
public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
  void interceptRequest(QWebEngineUrlRequestInfo &info) override {
    if (!PagesWeb::Permis(info.requestUrl().toString())) {
      ++refusées;
      info.block(true);
    }
  }
};
#endif

} // namespace

void PrépareWebEngine() {
#ifdef TN_WEBENGINE
  // Chromium's sandbox refuses to run as root; nobody else loses it.
  if (geteuid() == 0)
    setenv("QTWEBENGINE_DISABLE_SANDBOX", "1", 0);
  // No traffic of the browser's own: no updates, no sync, no probes.
  QByteArray drapeaux = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
  drapeaux += " --disable-background-networking --disable-component-update --disable-sync"
              " --no-first-run --disable-domain-reliability --disable-breakpad"
              " --no-pings --disable-features=MediaRouter,OptimizationHints";
  qputenv("QTWEBENGINE_CHROMIUM_FLAGS", drapeaux.trimmed());
  // The pages are static: the software scene graph composes them at no cost,
  // where a GL one emulated in software would take most of a core.
  if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
    qputenv("QT_QUICK_BACKEND", "software");
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
#endif
}

QString PagesWeb::Base() {
  const QString &base = BaseConfigurée();
  return base.isEmpty() ? DossierDuProgramme() : base;
}

void PagesWeb::DéfinitBase(const QString &base) { BaseConfigurée() = base; }

bool PagesWeb::Permis(const QString &adresse) {
  const QString logo = DossierDuProgramme() + "logomdc200.htm";
  return adresse.startsWith(Base()) || adresse == logo || adresse.startsWith("data:");
}

int PagesWeb::Refusées() { return refusées; }

struct PagesWeb::Détail {
  QPointer<QWidget> panneaux[3];
#ifdef TN_WEBENGINE
  QWebEngineProfile *profil = nullptr;
  QPointer<QWebEngineView> vues[3];
#endif
};

PagesWeb::PagesWeb(QWidget *panneauPub0, QWidget *panneauPub1, QWidget *panneauLogo)
    : détail(new Détail) {
  détail->panneaux[0] = panneauPub0;
  détail->panneaux[1] = panneauPub1;
  détail->panneaux[2] = panneauLogo;
}

PagesWeb::~PagesWeb() {
#ifdef TN_WEBENGINE
  for (auto &vue : détail->vues)
    delete vue.data();
  delete détail->profil;
#endif
  delete détail;
}

QWidget *PagesWeb::Vue(VueWeb vue) const {
#ifdef TN_WEBENGINE
  return détail->vues[static_cast<int>(vue)].data();
#else
  (void)vue;
  return nullptr;
#endif
}

void PagesWeb::Navigue(VueWeb vue, const std::string &page) {
#ifdef TN_WEBENGINE
  const int n = static_cast<int>(vue);
  QWidget *panneau = détail->panneaux[n];
  if (!panneau)
    return;
  const QUrl adresse(vue == VueWeb::LogoWeb ? DossierDuProgramme() + QString::fromStdString(page)
                                            : Base() + QString::fromStdString(page));
  // The view is made after the window is up, so the first frame never waits
  // for the web engine.
  QTimer::singleShot(0, panneau, [this, n, panneau, adresse] {
    if (!détail->profil) {
      détail->profil = new QWebEngineProfile();
      détail->profil->setUrlRequestInterceptor(new Filtre(détail->profil));
      détail->profil->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
      détail->profil->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    }
    if (!détail->vues[n]) {
      auto *nouvelle = new QWebEngineView(détail->profil, panneau);
      nouvelle->setGeometry(Géométrie(static_cast<VueWeb>(n)));
      nouvelle->setAttribute(Qt::WA_TransparentForMouseEvents);
      nouvelle->setFocusPolicy(Qt::NoFocus);
      nouvelle->setContextMenuPolicy(Qt::NoContextMenu);
      nouvelle->page()->setBackgroundColor(Qt::black);
      détail->vues[n] = nouvelle;
      nouvelle->show();
    }
    détail->vues[n]->load(adresse);
  });
#else
  (void)vue;
  (void)page;
#endif
}

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/panneaux/pages_web.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QNetworkAccessManager>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <QWindow>
#include <cstdlib>
#include <functional>
#include <unistd.h>

#include "platform/qt/bureau/langue.h"
#include "platform/qt/panneaux/vue_texte.h"

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

QString &DossierLocalDéfini() {
  static QString dossier;
  return dossier;
}

// The folder of the game's own pages, as an address ending in a slash.
QString DossierLocal() {
  const QString &défini = DossierLocalDéfini();
  return QUrl::fromLocalFile((défini.isEmpty() ? QCoreApplication::applicationDirPath() : défini) +
                             "/")
      .toString();
}

// The game's own page in the language spoken when it is there ("pub1-en.htm");
// a server's pages are its own affair.
QString PageDansLaLangue(const std::string &page) {
  const QString nom = QString::fromStdString(page);
  if (LangueParlée() == QLatin1String("fr") || PagesWeb::Base() != DossierLocal())
    return nom;
  const QFileInfo fichier(nom);
  const QString traduite =
      fichier.completeBaseName() + "-" + LangueParlée() + "." + fichier.suffix();
  return QFileInfo::exists(QUrl(DossierLocal() + traduite).toLocalFile()) ? traduite : nom;
}

// Opens the panel's page again when the game changes its language.
class SuitLaLangue : public QObject {
public:
  SuitLaLangue(QWidget *panneau, std::function<void()> recharge)
      : QObject(panneau), recharge(std::move(recharge)) {
    setObjectName(Nom);
  }
  // Found by its name: the class has no meta-object of its own.
  static constexpr char Nom[] = "tnSuitLaLangue";

protected:
  bool event(QEvent *e) override {
    if (e->type() == QEvent::LanguageChange)
      recharge();
    return QObject::event(e);
  }

private:
  std::function<void()> recharge;
};

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

#ifdef TN_WEBENGINE

// Calls `suite` once, just after the window has shown its first image: the
// web engine's start (a good tenth of a second) then never delays it.
class Guetteur : public QObject {
public:
  Guetteur(QWidget *fenêtre, std::function<void()> suite)
      : QObject(fenêtre), fenêtre(fenêtre), suite(std::move(suite)) {
    fenêtre->installEventFilter(this);
    if (QWindow *w = fenêtre->windowHandle()) {
      w->installEventFilter(this);
      if (w->isExposed())
        Déclenche();
    }
  }

protected:
  bool eventFilter(QObject *objet, QEvent *e) override {
    QWindow *w = fenêtre->windowHandle();
    if (objet == fenêtre && e->type() == QEvent::Show && w)
      w->installEventFilter(this);
    else if (objet == w && e->type() == QEvent::Expose && w->isExposed())
      Déclenche(); // the image is drawn as this event goes on; we come after
    return false;
  }

private:
  void Déclenche() {
    fenêtre->removeEventFilter(this);
    if (QWindow *w = fenêtre->windowHandle())
      w->removeEventFilter(this);
    QTimer::singleShot(0, this, [this] {
      suite();
      deleteLater();
    });
  }
  QWidget *fenêtre;
  std::function<void()> suite;
};

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
  // Nothing then draws with OpenGL: not loading it on X11 halves the time
  // to the first image.
  if (qEnvironmentVariableIsEmpty("QT_XCB_GL_INTEGRATION"))
    qputenv("QT_XCB_GL_INTEGRATION", "none");
  // The engine would report its whole set-up on every start.
  QLoggingCategory::setFilterRules("qt.webenginecontext.info=false");
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
#endif
}

QString PagesWeb::Base() {
  const QString &base = BaseConfigurée();
  return base.isEmpty() ? DossierLocal() : base;
}

void PagesWeb::DéfinitBase(const QString &base) { BaseConfigurée() = base; }

void PagesWeb::DéfinitDossierLocal(const QString &dossier) { DossierLocalDéfini() = dossier; }

bool PagesWeb::Permis(const QString &adresse) {
  const QString logo = DossierLocal() + "logomdc200.htm";
  return adresse.startsWith(Base()) || adresse == logo || adresse.startsWith("data:");
}

int PagesWeb::Refusées() { return refusées; }

struct PagesWeb::Détail {
  QPointer<QWidget> panneaux[3];
#ifndef TN_WEBENGINE
  QNetworkAccessManager réseau;
  QPointer<VueTexte> vues[3];
#else
  QWebEngineProfile *profil = nullptr;
  QPointer<QWebEngineView> vues[3];
  // Pages asked for before the window's first image; the last one of a
  // view wins.
  QUrl enAttente[3];
  QPointer<Guetteur> guetteur;
  void OuvreEnAttente();
#endif
};

PagesWeb::PagesWeb(QWidget *panneauPub0, QWidget *panneauPub1, QWidget *panneauLogo)
    : détail(new Détail) {
  détail->panneaux[0] = panneauPub0;
  détail->panneaux[1] = panneauPub1;
  détail->panneaux[2] = panneauLogo;
}

PagesWeb::~PagesWeb() {
  for (auto &panneau : détail->panneaux)
    if (panneau)
      delete panneau->findChild<QObject *>(SuitLaLangue::Nom, Qt::FindDirectChildrenOnly);
#ifdef TN_WEBENGINE
  delete détail->guetteur.data();
  for (auto &vue : détail->vues)
    delete vue.data();
  delete détail->profil;
#else
  for (auto &vue : détail->vues)
    delete vue.data();
#endif
  delete détail;
}

QWidget *PagesWeb::Vue(VueWeb vue) const { return détail->vues[static_cast<int>(vue)].data(); }

void PagesWeb::Navigue(VueWeb vue, const std::string &page) {
  const int n = static_cast<int>(vue);
  QWidget *panneau = détail->panneaux[n];
  if (!panneau)
    return;
  const QUrl adresse(vue == VueWeb::LogoWeb ? DossierLocal() + QString::fromStdString(page)
                                            : Base() + PageDansLaLangue(page));
  if (vue != VueWeb::LogoWeb &&
      !panneau->findChild<QObject *>(SuitLaLangue::Nom, Qt::FindDirectChildrenOnly))
    new SuitLaLangue(panneau, [this, vue, page] { Navigue(vue, page); });
#ifdef TN_WEBENGINE
  détail->enAttente[n] = adresse;
  if (!détail->guetteur)
    détail->guetteur = new Guetteur(panneau->window(), [d = détail] { d->OuvreEnAttente(); });
#else
  // Qt's own text view costs next to nothing: it is made at once, and the
  // game's pages are in the window's very first image.
  if (!détail->vues[n]) {
    auto *nouvelle = new VueTexte(panneau, Géométrie(vue), détail->réseau, [](const QUrl &url) {
      if (Permis(url.toString()))
        return true;
      ++refusées;
      return false;
    });
    détail->vues[n] = nouvelle;
    nouvelle->show();
  }
  détail->vues[n]->Ouvre(adresse);
#endif
}

#ifdef TN_WEBENGINE
void PagesWeb::Détail::OuvreEnAttente() {
  guetteur = nullptr; // a page asked for from now on needs a new wait
  if (!profil) {
    profil = new QWebEngineProfile();
    profil->setUrlRequestInterceptor(new Filtre(profil));
    profil->setHttpCacheType(QWebEngineProfile::MemoryHttpCache);
    profil->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
  }
  for (int n = 0; n < 3; ++n) {
    if (enAttente[n].isEmpty() || !panneaux[n])
      continue;
    if (!vues[n]) {
      auto *nouvelle = new QWebEngineView(profil, panneaux[n]);
      nouvelle->setGeometry(Géométrie(static_cast<VueWeb>(n)));
      nouvelle->setAttribute(Qt::WA_TransparentForMouseEvents);
      nouvelle->setFocusPolicy(Qt::NoFocus);
      nouvelle->setContextMenuPolicy(Qt::NoContextMenu);
      nouvelle->page()->setBackgroundColor(Qt::black);
      vues[n] = nouvelle;
      nouvelle->show();
    }
    vues[n]->load(enAttente[n]);
    enAttente[n].clear();
  }
}
#endif

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/jeux/jeux_de_cartes.h"

#include "files/format.h"
#include "platform/qt/bureau/langue.h"
#include "platform/qt/bureau/reglages.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QPainter>
#include <QStandardPaths>
#include <QSvgRenderer>
#include <QThread>
#include <QThreadPool>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <zlib.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

QString ÉlémentDeCarte(int code) {
  static const char *const rangs[13] = {"2", "3",  "4",    "5",     "6",    "7", "8",
                                        "9", "10", "jack", "queen", "king", "1"};
  static const char *const couleurs[4] = {"club", "diamond", "heart", "spade"};
  if (code >= 0 && code <= 51)
    return QString("%1_%2").arg(rangs[code % 13], couleurs[code / 13]);
  if (code == 52)
    return "red_joker";
  if (code == 53)
    return "black_joker";
  if (code == 54)
    return "back";
  return {};
}

std::optional<JeuDeCartes> LitJeu(const QString &dossier) {
  const auto index =
      format::LitFichier(QDir(dossier).filePath("index.desktop").toStdString(), 256 * 1024);
  if (index.état != format::Lecture::Lu || index.tronqué)
    return std::nullopt;
  QString svg;
  QMap<QString, QString> noms; // by language, "" for the name without one
  bool dansLeGroupe = false;
  for (const QString &brute : QString::fromStdString(index.octets).split('\n')) {
    const QString ligne = brute.trimmed();
    if (ligne.startsWith('[')) {
      // Only the first group describes the deck.
      if (dansLeGroupe)
        break;
      dansLeGroupe = true;
      continue;
    }
    const qsizetype égal = ligne.indexOf('=');
    if (égal < 0)
      continue;
    const QString clé = ligne.left(égal).trimmed(), valeur = ligne.mid(égal + 1).trimmed();
    if (clé == "Name")
      noms.insert("", valeur);
    else if (clé.startsWith("Name[") && clé.endsWith(']'))
      noms.insert(clé.mid(5, clé.size() - 6), valeur);
    else if (clé == "SVG")
      svg = valeur;
  }
  // The file must lie in the deck's folder: a name that climbs out is refused.
  if (svg.isEmpty() || svg.contains('/'))
    return std::nullopt;
  // A pipe or a device in its place is passed over as a missing file.
  const QString fichier = QDir(dossier).filePath(svg);
  struct stat état {};
  if (stat(QFile::encodeName(fichier).constData(), &état) != 0 || !S_ISREG(état.st_mode) ||
      état.st_size > TailleMaximaleJeu)
    return std::nullopt;
  JeuDeCartes jeu;
  jeu.id = QDir(dossier).dirName();
  const QString français = noms.value("fr"), sansLangue = noms.value("");
  jeu.nom = !français.isEmpty() ? français : !sansLangue.isEmpty() ? sansLangue : jeu.id;
  jeu.noms = noms;
  jeu.fichier = fichier;
  return jeu;
}

QImage Peint(QSize taille, qreal ratio, const std::function<void(QPainter &)> &dessin) {
  QImage image(taille * ratio, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  image.setDevicePixelRatio(ratio);
  QPainter p(&image);
  p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                   QPainter::SmoothPixmapTransform);
  dessin(p);
  return image;
}

namespace {

QLoggingCategory::CategoryFilter filtrePrécédent = nullptr;

void FiltreSvg(QLoggingCategory *catégorie) {
  if (filtrePrécédent)
    filtrePrécédent(catégorie);
  if (qstrcmp(catégorie->categoryName(), "qt.svg") == 0)
    catégorie->setEnabled(QtWarningMsg, false);
}

// Decks use SVG features that Qt draws without; its warnings say nothing to
// a player. A filter chained to any other keeps the rules set elsewhere.
void TaisLesAvertissementsSvg() {
  static const bool fait = [] {
    filtrePrécédent = QLoggingCategory::installFilter(FiltreSvg);
    return true;
  }();
  (void)fait;
}

} // namespace

namespace {

// Set at the end of the session: the rendering thread gives up at its next step.
std::atomic<bool> abandon = false;

// A gzip stream unpacked by pieces, given up past the bound rather than
// trusting the size the stream announces.
std::optional<QByteArray> Décompresse(const std::string &octets) {
  z_stream flux{};
  if (inflateInit2(&flux, 16 + MAX_WBITS) != Z_OK)
    return std::nullopt;
  flux.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(octets.data()));
  flux.avail_in = static_cast<uInt>(octets.size());
  QByteArray svg;
  char morceau[64 * 1024];
  int r = Z_OK;
  while (r != Z_STREAM_END && !abandon && svg.size() <= TailleMaximaleSvg) {
    flux.next_out = reinterpret_cast<Bytef *>(morceau);
    flux.avail_out = sizeof morceau;
    r = inflate(&flux, Z_NO_FLUSH);
    if (r != Z_OK && r != Z_STREAM_END)
      break; // damaged or cut short
    svg.append(morceau, static_cast<qsizetype>(sizeof morceau - flux.avail_out));
  }
  inflateEnd(&flux);
  if (r != Z_STREAM_END || abandon || svg.size() > TailleMaximaleSvg)
    return std::nullopt;
  return svg;
}

// Every href="..." whose value is neither a place in the document ("#id")
// nor inline data is emptied: the renderer would read any file it names.
void VideLesRéférences(QByteArray &svg) {
  for (qsizetype i = svg.indexOf("href"); i >= 0; i = svg.indexOf("href", i + 1)) {
    qsizetype j = i + 4;
    while (j < svg.size() && QChar::isSpace(svg[j]))
      ++j;
    if (j >= svg.size() || svg[j] != '=')
      continue;
    ++j;
    while (j < svg.size() && QChar::isSpace(svg[j]))
      ++j;
    if (j >= svg.size() || (svg[j] != '"' && svg[j] != '\''))
      continue;
    const qsizetype fin = svg.indexOf(svg[j], j + 1);
    if (fin < 0)
      return;
    const QByteArray valeur = svg.mid(j + 1, fin - j - 1).trimmed();
    if (valeur.startsWith('#') || valeur.startsWith("data:"))
      continue;
    svg.remove(j + 1, fin - j - 1);
  }
}

} // namespace

std::optional<QByteArray> ContenuDuJeu(const QString &fichier) {
  auto lu = format::LitFichier(QFile::encodeName(fichier).toStdString(),
                               static_cast<std::size_t>(TailleMaximaleJeu));
  if (lu.état != format::Lecture::Lu || lu.tronqué || abandon)
    return std::nullopt;
  std::optional<QByteArray> svg;
  if (lu.octets.size() >= 2 && static_cast<unsigned char>(lu.octets[0]) == 0x1f &&
      static_cast<unsigned char>(lu.octets[1]) == 0x8b)
    svg = Décompresse(lu.octets);
  else
    svg = QByteArray::fromStdString(lu.octets);
  if (!svg || svg->contains("<!ENTITY"))
    return std::nullopt;
  VideLesRéférences(*svg);
  return svg;
}

std::optional<std::vector<QImage>> RendJeu(const QString &fichier, QSize taille, qreal ratio,
                                           std::atomic<int> *suivante,
                                           const std::function<void(int, QImage)> &reçue) {
  TaisLesAvertissementsSvg();
  const auto contenu = ContenuDuJeu(fichier);
  QSvgRenderer rendu;
  if (!contenu || !rendu.load(*contenu) || !rendu.isValid() || taille.isEmpty())
    return std::nullopt;
  std::vector<QImage> images(55);
  int seul = 0;
  for (int code; (code = suivante ? suivante->fetch_add(1) : seul++) <= 54;) {
    if (abandon)
      return std::nullopt;
    const QString élément = ÉlémentDeCarte(code);
    if (élément.isEmpty())
      continue;
    if (!rendu.elementExists(élément)) {
      if (code <= 51 || code == 54)
        return std::nullopt;
      if (reçue)
        reçue(code, QImage());
      continue;
    }
    // Drawn whole in the slot, keeping the deck's proportions: a card a
    // little wider than the slot keeps its top edge and its left corner.
    const QRectF bords = rendu.boundsOnElement(élément);
    QRectF cible(QPointF(0, 0), QSizeF(taille));
    if (bords.width() > 0 && bords.height() > 0) {
      const qreal échelle =
          std::min(taille.width() / bords.width(), taille.height() / bords.height());
      cible.setSize(bords.size() * échelle);
      cible.moveLeft((taille.width() - cible.width()) / 2);
    }
    images[code] = Peint(taille, ratio, [&](QPainter &p) { rendu.render(&p, élément, cible); });
    if (reçue)
      reçue(code, std::move(images[code]));
  }
  return images;
}

namespace jeux {

namespace {

struct Rendu {
  QSize taille;
  qreal ratio = 1;
  std::vector<QPixmap> images;
};

struct État {
  QStringList racines;
  bool racinesDonnées = false;
  std::optional<std::vector<JeuDeCartes>> installés;
  int choisi = 0;
  // Bumped at every choice: pictures of an earlier choice that arrive late
  // are dropped. The rendering thread reads it too.
  std::atomic<int> génération = 0;
  std::vector<Rendu> rendus;
  // One size is rendered at a time; a size asked meanwhile waits as the next
  // one, so a window dragged through many sizes costs two renders, not one
  // per size it passed by.
  std::optional<std::pair<QSize, qreal>> enCours, suivante;
  std::function<void(bool)> prêt;
  std::function<void()> nouvellesImages;
  QSize dernièreTaille{90, 135};
  qreal dernierRatio = 0;
  QThreadPool *fil = nullptr;
};

État &état() {
  static État e;
  return e;
}

QThreadPool &Fil() {
  État &e = état();
  if (!e.fil) {
    // One deck at a time, each shared out over the cores: a deck chosen
    // meanwhile waits rather than halve the cores with the previous one.
#ifdef __GLIBC__
    // Fixed thresholds: glibc raises them after the first large block a deck
    // frees, and from then on keeps in its render threads' heaps what every
    // later deck freed.
    mallopt(M_MMAP_THRESHOLD, 256 * 1024);
    mallopt(M_TRIM_THRESHOLD, 512 * 1024);
#endif
    e.fil = new QThreadPool(QCoreApplication::instance());
    e.fil->setMaxThreadCount(1);
  }
  return *e.fil;
}

// The other cores' helpers, in a pool of their own that the end of the
// session waits for too. First asked for from the render thread, so it can
// have no parent in the application's thread.
QThreadPool &Aides() {
  static QThreadPool *const aides = [] {
    auto *pool = new QThreadPool;
    pool->setMaxThreadCount(std::clamp(QThread::idealThreadCount(), 1, 4));
    return pool;
  }();
  return *aides;
}

// A heavy deck takes most of a second on one core: each core reads the file
// for itself (a renderer is not to be shared between threads), then takes
// the next card not yet drawn. The deck is ready when every card is, even if
// a core slowed by other work is still reading: it then finds none left.
std::optional<std::vector<QImage>> RendSurLesCœurs(const QString &fichier, QSize taille,
                                                   qreal ratio) {
  struct Partage {
    std::atomic<int> suivante = 0;
    std::mutex verrou;
    std::condition_variable fait;
    std::vector<QImage> images = std::vector<QImage>(55);
    int reçues = 0, finis = 0;
    bool échec = false;
  };
  const int fils = std::clamp(QThread::idealThreadCount(), 1, 4);
  auto partage = std::make_shared<Partage>();
  const auto travaille = [fichier, taille, ratio](std::shared_ptr<Partage> p) {
    const bool réussi = RendJeu(fichier, taille, ratio, &p->suivante, [&p](int code, QImage image) {
                          const std::lock_guard garde(p->verrou);
                          p->images[code] = std::move(image);
                          ++p->reçues;
                        }).has_value();
    const std::lock_guard garde(p->verrou);
    p->échec |= !réussi;
    ++p->finis;
    p->fait.notify_all();
  };
  for (int k = 1; k < fils; ++k)
    Aides().start([travaille, partage] { travaille(partage); });
  travaille(partage);
  std::unique_lock garde(partage->verrou);
  partage->fait.wait(
      garde, [&] { return partage->échec || partage->reçues == 55 || partage->finis == fils; });
  if (partage->échec || partage->reçues < 55)
    return std::nullopt;
  return std::move(partage->images);
}

// Freed pictures and parsed decks go back to the system rather than wait in
// the heap, where a tour of the decks would leave tens of megabytes.
void RendLaMémoire() {
#ifdef __GLIBC__
  malloc_trim(0);
#endif
}

qint64 Octets(const std::vector<Rendu> &rendus) {
  qint64 octets = 0;
  for (const Rendu &r : rendus)
    for (const QPixmap &image : r.images)
      octets += qint64(image.width()) * image.height() * 4;
  return octets;
}

void Demande(QSize taille, qreal ratio) {
  État &e = état();
  if (e.choisi <= 0 || e.choisi > static_cast<int>(Installés().size()))
    return;
  if (e.enCours) {
    if (*e.enCours != std::pair(taille, ratio))
      e.suivante = std::pair(taille, ratio);
    else
      e.suivante.reset();
    return;
  }
  e.enCours = std::pair(taille, ratio);
  const QString fichier = Installés()[e.choisi - 1].fichier;
  const int génération = e.génération;
  Fil().start([fichier, taille, ratio, génération] {
    auto images = std::make_shared<std::optional<std::vector<QImage>>>();
    if (génération == état().génération) // a later choice makes this one moot
      *images = RendSurLesCœurs(fichier, taille, ratio);
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [images, taille, ratio, génération] {
          État &e = état();
          if (génération != e.génération) {
            images->reset();
            RendLaMémoire();
            return;
          }
          e.enCours.reset();
          const bool premier = e.rendus.empty();
          if (!*images) {
            // Unreadable, even at a later size (the file gone meanwhile):
            // the game's own deck, rather than a new try at every paint.
            e.choisi = 0;
            ++e.génération;
            e.suivante.reset();
            e.rendus.clear();
          } else {
            Rendu r{taille, ratio, {}};
            r.images.reserve((*images)->size());
            for (const QImage &image : **images)
              r.images.push_back(image.isNull() ? QPixmap() : QPixmap::fromImage(image));
            // The window's size and the last few it passed by, within the
            // same bound as the game's own pictures.
            e.rendus.push_back(std::move(r));
            while (e.rendus.size() > 1 && Octets(e.rendus) > 64LL * 1024 * 1024)
              e.rendus.erase(e.rendus.begin());
            const auto suivante = std::exchange(e.suivante, std::nullopt);
            if (suivante && std::none_of(e.rendus.begin(), e.rendus.end(), [&](const Rendu &r) {
                  return std::pair(r.taille, r.ratio) == *suivante;
                }))
              Demande(suivante->first, suivante->second);
          }
          if (premier && e.prêt) {
            auto prêt = std::move(e.prêt);
            e.prêt = nullptr;
            prêt(images->has_value());
          }
          if (e.nouvellesImages)
            e.nouvellesImages();
          images->reset();
          RendLaMémoire();
        },
        Qt::QueuedConnection);
  });
}

} // namespace

void DéfinitRacines(const QStringList &racines) {
  État &e = état();
  e.racines = racines;
  e.racinesDonnées = true;
  e.installés.reset();
}

const std::vector<JeuDeCartes> &Installés() {
  État &e = état();
  if (e.installés)
    return *e.installés;
  QStringList racines = e.racines;
  if (!e.racinesDonnées)
    racines = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, "carddecks",
                                        QStandardPaths::LocateDirectory);
  std::vector<JeuDeCartes> jeux;
  for (const QString &racine : racines) {
    const QDir dossier(racine);
    for (const QString &nom : dossier.entryList({"svg-*"}, QDir::Dirs, QDir::Name)) {
      auto jeu = LitJeu(dossier.filePath(nom));
      // A deck installed in two places is listed once, the user's own first.
      if (jeu && std::none_of(jeux.begin(), jeux.end(),
                              [&](const JeuDeCartes &j) { return j.id == jeu->id; }))
        jeux.push_back(std::move(*jeu));
    }
  }
  std::stable_sort(jeux.begin(), jeux.end(), [](const JeuDeCartes &a, const JeuDeCartes &b) {
    return QString::localeAwareCompare(a.nom, b.nom) < 0;
  });
  e.installés = std::move(jeux);
  return *e.installés;
}

int Choisi() { return état().choisi; }

QString NomDuChoix(int numéro) {
  if (numéro >= 1 && numéro <= static_cast<int>(Installés().size())) {
    // In another language than French, the deck's name in it, else its
    // name without a language (English, in the decks of the desktop).
    const JeuDeCartes &jeu = Installés()[numéro - 1];
    for (const QString &langue : {LangueParlée(), QString()})
      if (LangueParlée() != "fr" && !jeu.noms.value(langue).isEmpty())
        return jeu.noms.value(langue);
    return jeu.nom;
  }
  return QCoreApplication::translate("Jeux", "Jeu de TroisNiveaux");
}

void Choisit(int numéro, std::function<void(bool)> prêt) {
  État &e = état();
  if (numéro < 0 || numéro > static_cast<int>(Installés().size()))
    numéro = 0;
  e.choisi = numéro;
  ++e.génération;
  e.rendus.clear();
  e.enCours.reset();
  e.suivante.reset();
  e.prêt = std::move(prêt);
  RendLaMémoire();
  if (numéro == 0) {
    if (e.prêt)
      std::exchange(e.prêt, nullptr)(true);
    if (e.nouvellesImages)
      e.nouvellesImages();
    return;
  }
  qreal ratio = e.dernierRatio;
  if (ratio <= 0)
    ratio = qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
  Demande(e.dernièreTaille, ratio);
}

void Retient(int numéro) {
  RéglagesDuJoueur()->setValue("cartes/jeu",
                               numéro >= 1 && numéro <= static_cast<int>(Installés().size())
                                   ? Installés()[numéro - 1].id
                                   : QString());
}

int Retrouve() {
  const QString id = RéglagesDuJoueur()->value("cartes/jeu").toString();
  const auto &jeux = Installés();
  for (std::size_t n = 0; n < jeux.size(); ++n)
    if (!id.isEmpty() && jeux[n].id == id)
      return static_cast<int>(n) + 1;
  return 0;
}

void QuandNouvellesImages(std::function<void()> rappel) {
  état().nouvellesImages = std::move(rappel);
}

QPixmap Image(int code, QSize taille, qreal ratio) {
  État &e = état();
  if (code < 0 || code > 54)
    return {};
  e.dernièreTaille = taille;
  e.dernierRatio = ratio;
  if (e.choisi == 0)
    return {};
  for (const Rendu &r : e.rendus)
    if (r.taille == taille && r.ratio == ratio)
      return r.images[code];
  Demande(taille, ratio);
  if (e.rendus.empty() || e.rendus.back().images[code].isNull())
    return {};
  // Until the exact size comes, the nearest one stretched: a blur for a
  // moment rather than a pause.
  QPixmap étirée = e.rendus.back().images[code].scaled(taille * ratio, Qt::IgnoreAspectRatio,
                                                       Qt::SmoothTransformation);
  étirée.setDevicePixelRatio(ratio);
  return étirée;
}

void AttendsLeRendu() {
  for (int tour = 0; tour < 1000 && état().enCours; ++tour) {
    Fil().waitForDone();
    QCoreApplication::sendPostedEvents(QCoreApplication::instance(), QEvent::MetaCall);
  }
}

int FinDuRendu(int code) {
  abandon = true;
  QDeadlineTimer limite(500);
  État &e = état();
  if ((e.fil && !e.fil->waitForDone(int(limite.remainingTime()))) ||
      !Aides().waitForDone(int(limite.remainingTime()))) {
    std::fflush(nullptr);
    std::_Exit(code);
  }
  return code;
}

} // namespace jeux

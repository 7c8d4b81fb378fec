#include "platform/qt/jeux/choix_du_jeu.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/qt/jeux/jeux_de_cartes.h"

namespace {

// The name of the deck, a moment over the middle of the table; it follows
// the window's size and lets the clicks through.
class ÉtiquetteNom : public QLabel {
public:
  explicit ÉtiquetteNom(QWidget *fenêtre) : QLabel(fenêtre) {
    setObjectName("nomDuJeu");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    setStyleSheet("QLabel { color: white; background: rgba(0, 0, 0, 190); "
                  "border: 1px solid rgb(200, 200, 200); border-radius: 6px; }");
    minuterie.setSingleShot(true);
    minuterie.setInterval(2000);
    connect(&minuterie, &QTimer::timeout, this, &QWidget::hide);
    fenêtre->installEventFilter(this);
    hide();
  }

  void Montre(const QString &texte) {
    setText(texte);
    Place();
    show();
    raise();
    minuterie.start();
  }

protected:
  bool eventFilter(QObject *objet, QEvent *e) override {
    if (objet == parent() && e->type() == QEvent::Resize && isVisible())
      Place();
    return false;
  }

private:
  QTimer minuterie;

  void Place() {
    const QWidget *fenêtre = parentWidget();
    QFont f("Liberation Sans");
    f.setBold(true);
    f.setPixelSize(std::max(10, static_cast<int>(std::lround(fenêtre->height() * 0.035))));
    setFont(f);
    const QSize texte = QFontMetrics(f).size(0, text());
    const QSize taille(texte.width() + f.pixelSize() * 2, texte.height() + f.pixelSize());
    move((fenêtre->width() - taille.width()) / 2, fenêtre->height() * 2 / 5);
    resize(taille);
  }
};

// Resident memory of the process in kB, from /proc.
long MémoireRésidente() {
  QFile statut("/proc/self/status");
  if (!statut.open(QIODevice::ReadOnly))
    return -1;
  for (const QByteArray &ligne : statut.readAll().split('\n'))
    if (ligne.startsWith("VmRSS:"))
      return ligne.mid(6).trimmed().split(' ').front().toLong();
  return -1;
}

// TN_MESURE_JEUX=1: every installed deck chosen in turn, with the time until
// its pictures are in, the longest wait of the event loop meanwhile and the
// resident memory; then the game's own deck again, and the program ends.
void MesureLesJeux(QWidget *fenêtre) {
  struct Mesure {
    QTimer sonde;
    QElapsedTimer depuisSonde, chrono;
    qint64 plusLongRetard = 0;
    int numéro = 0;
  };
  auto m = std::make_shared<Mesure>();
  m->sonde.setTimerType(Qt::PreciseTimer);
  QObject::connect(&m->sonde, &QTimer::timeout, [m = m.get()] {
    if (m->depuisSonde.isValid())
      m->plusLongRetard = std::max(m->plusLongRetard, m->depuisSonde.elapsed() - 5);
    m->depuisSonde.restart();
  });
  m->sonde.start(5);
  // TN_MESURE_JEUX=svg-oxygen measures that deck alone.
  const QString seul = QString::fromLocal8Bit(std::getenv("TN_MESURE_JEUX"));
  auto suivant = std::make_shared<std::function<void()>>();
  *suivant = [m, suivant, fenêtre, seul] {
    const int nombre = static_cast<int>(jeux::Installés().size());
    if (m->numéro == 0)
      std::fprintf(stderr, "jeu de TroisNiveaux : mémoire résidente %ld ko\n", MémoireRésidente());
    ++m->numéro;
    while (m->numéro <= nombre && seul != "1" && jeux::Installés()[m->numéro - 1].id != seul)
      ++m->numéro;
    if (m->numéro > nombre) {
      jeux::Choisit(0);
      QTimer::singleShot(500, fenêtre, [] {
        std::fprintf(stderr, "retour au jeu de TroisNiveaux : mémoire résidente %ld ko\n",
                     MémoireRésidente());
        QCoreApplication::exit(0);
      });
      return;
    }
    m->plusLongRetard = 0;
    m->chrono.start();
    jeux::Choisit(m->numéro, [m, suivant, fenêtre](bool réussi) {
      const qint64 durée = m->chrono.elapsed();
      // The table repaints with the new cards before the figure is taken.
      fenêtre->repaint();
      std::fprintf(stderr,
                   "%-26s %s en %5lld ms, attente maximale des événements %3lld ms, "
                   "mémoire résidente %ld ko\n",
                   jeux::NomDuChoix(m->numéro).toUtf8().constData(), réussi ? "prêt " : "ÉCHEC",
                   static_cast<long long>(durée), static_cast<long long>(m->plusLongRetard),
                   MémoireRésidente());
      QTimer::singleShot(200, fenêtre, *suivant);
    });
  };
  QTimer::singleShot(4000, fenêtre, *suivant);
}

// Where F8 stands in the list: a deck that fails to load is passed over,
// not started over from the first.
int curseur = 0;

} // namespace

QLabel *ÉtiquetteDuJeu(QWidget *fenêtre) { return fenêtre->findChild<QLabel *>("nomDuJeu"); }

void JeuSuivant(QWidget *fenêtre) {
  auto *étiquette = static_cast<ÉtiquetteNom *>(ÉtiquetteDuJeu(fenêtre));
  const int nombre = static_cast<int>(jeux::Installés().size());
  if (nombre == 0) {
    étiquette->Montre(QCoreApplication::translate(
        "Jeux", "Jeu de TroisNiveaux : aucun autre jeu de cartes installé"));
    return;
  }
  curseur = (curseur + 1) % (nombre + 1);
  const int numéro = curseur;
  const QString nom = jeux::NomDuChoix(numéro);
  étiquette->Montre(nom);
  QPointer<ÉtiquetteNom> suivie(étiquette);
  jeux::Choisit(numéro, [numéro, nom, suivie](bool réussi) {
    jeux::Retient(réussi ? numéro : 0);
    if (!réussi && suivie)
      suivie->Montre(QCoreApplication::translate(
                         "Jeux", "Le jeu « %1 » ne peut pas être lu : jeu de TroisNiveaux")
                         .arg(nom));
  });
}

void InstalleChoixDuJeu(QWidget *fenêtre) {
  new ÉtiquetteNom(fenêtre);
  QPointer<QWidget> suivie(fenêtre);
  // New pictures: every card on the table is painted again, once.
  jeux::QuandNouvellesImages([suivie] {
    if (suivie)
      for (QWidget *w : suivie->findChildren<QWidget *>())
        w->update();
  });
  curseur = jeux::Retrouve();
  // TN_JEU=svg-oxygen plays that deck this once, for screenshots and scripts.
  if (const char *id = std::getenv("TN_JEU"))
    for (std::size_t n = 0; n < jeux::Installés().size(); ++n)
      if (jeux::Installés()[n].id == QString::fromLocal8Bit(id))
        curseur = static_cast<int>(n) + 1;
  jeux::Choisit(curseur);
  if (std::getenv("TN_MESURE_JEUX"))
    MesureLesJeux(fenêtre);
}

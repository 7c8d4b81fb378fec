// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
// troisniveaux-mesures: the game as a player starts it, steered from the
// command line for the figures and the README's screenshots. Built beside the
// game, never installed: nothing a player runs can be steered this way.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <functional>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/qt/fenetre/partie.h"
#include "platform/qt/jeux/choix_du_jeu.h"
#include "platform/qt/jeux/jeux_de_cartes.h"
#include "platform/qt/panneaux/pages_web.h"

namespace {

const char Aide[] =
    "Utilisation : troisniveaux-mesures [OPTION]...\n"
    "Le jeu tel qu'un joueur le lance, piloté pour les chiffres et les captures d'écran.\n"
    "\n"
    "  --duree-balayage S          secondes du balayage d'un siège (0 : sans pause)\n"
    "  --plein-ecran               la table en plein écran, même sans gestionnaire de fenêtres\n"
    "  --taille LxH                la fenêtre à cette taille\n"
    "  --jeu ID                    joue le jeu de cartes installé ID (svg-oxygen...) cette fois\n"
    "  --mesures                   affiche le premier affichage et la plus longue attente\n"
    "                              des événements pendant un balayage (sonde de 5 ms)\n"
    "  --mesure-jeux [ID]          choisit chaque jeu installé (ou ID seul) puis revient au jeu\n"
    "                              de TroisNiveaux : durées, attentes, mémoire ; puis s'arrête\n"
    "  --joue-auto                 lance une donne 3 s après le départ\n"
    "  --presse-apres MS           presse l'ordinateur MS ms après cette donne, affiche le\n"
    "                              temps jusqu'à GO\n"
    "  --quitte-apres MS           QUITTER au bout de MS ms\n"
    "  --capture FICHIER           joue une donne sans pause, enregistre la table, s'arrête\n"
    "  --capture-historique FICHIER  ouvre l'historique (F9), enregistre la fenêtre, s'arrête\n"
    "  -h, --help                  affiche cette aide\n";

struct Options {
  std::optional<double> duréeBalayage;
  bool pleinÉcran = false, mesures = false, joueAuto = false;
  QSize taille;
  QString jeu, capture, captureHistorique;
  std::optional<QString> mesureJeux; // empty: every deck
  int presseAprès = -1, quitteAprès = -1;
};

// The options are read before Qt sees the rest (-platform and the like).
std::optional<int> LitOptions(int &argc, char **argv, Options &o) {
  int gardés = 1;
  for (int i = 1; i < argc; ++i) {
    const std::string_view a = argv[i];
    const auto valeur = [&]() -> const char * {
      if (i + 1 >= argc) {
        std::fprintf(stderr, "troisniveaux-mesures : « %s » attend une valeur\n", argv[i]);
        std::exit(2);
      }
      return argv[++i];
    };
    if (a == "-h" || a == "--help") {
      std::fputs(Aide, stdout);
      return 0;
    } else if (a == "--duree-balayage")
      o.duréeBalayage = std::atof(valeur());
    else if (a == "--plein-ecran")
      o.pleinÉcran = true;
    else if (a == "--taille") {
      int l = 0, h = 0;
      if (std::sscanf(valeur(), "%dx%d", &l, &h) != 2 || l <= 0 || h <= 0) {
        std::fprintf(stderr, "troisniveaux-mesures : taille attendue LxH\n");
        return 2;
      }
      o.taille = QSize(l, h);
    } else if (a == "--jeu")
      o.jeu = QString::fromLocal8Bit(valeur());
    else if (a == "--mesures")
      o.mesures = true;
    else if (a == "--mesure-jeux")
      o.mesureJeux =
          i + 1 < argc && argv[i + 1][0] != '-' ? QString::fromLocal8Bit(argv[++i]) : QString();
    else if (a == "--joue-auto")
      o.joueAuto = true;
    else if (a == "--presse-apres")
      o.presseAprès = std::atoi(valeur());
    else if (a == "--quitte-apres")
      o.quitteAprès = std::atoi(valeur());
    else if (a == "--capture")
      o.capture = QString::fromLocal8Bit(valeur());
    else if (a == "--capture-historique")
      o.captureHistorique = QString::fromLocal8Bit(valeur());
    else
      argv[gardés++] = argv[i];
  }
  argc = gardés;
  return std::nullopt;
}

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

// A timer asked for every 5 ms: how late it comes is how long a click would
// have waited for its handler.
struct Sonde {
  QTimer minuterie;
  QElapsedTimer depuis;
  qint64 plusLongRetard = 0;
  std::function<bool()> compte = [] { return true; };
  Sonde() {
    minuterie.setTimerType(Qt::PreciseTimer);
    QObject::connect(&minuterie, &QTimer::timeout, [this] {
      if (depuis.isValid() && compte())
        plusLongRetard = std::max(plusLongRetard, depuis.elapsed() - 5);
      depuis.restart();
    });
    minuterie.start(5);
  }
};

void Sauve(QWidget &fenêtre, const QString &fichier) {
  const bool réussi = fenêtre.grab().save(fichier);
  std::fprintf(stderr, "%s %s\n",
               réussi ? "Capture :" : "Capture impossible :", fichier.toLocal8Bit().constData());
  QCoreApplication::exit(réussi ? 0 : 1);
}

// The human's cards laid out as the computer's own search of them (made in
// DEBUTANT), with the clicks a player would make: a screenshot then shows a
// sound layout rather than one left as dealt.
void PoseCommeLOrdinateur(FenêtreTable &fenêtre, TroisNiveaux &t) {
  if (t.MeilleurRangement[3] < 1)
    return;
  const auto &rangée = t.Rangements[t.MeilleurRangement[3]];
  for (int place = 0; place <= 12; ++place) {
    const uint8_t voulue = t.Mains[3][rangée[place]];
    for (int autre = place + 1; autre <= 12; ++autre)
      if (t.Mains[4][autre] == voulue) {
        fenêtre.Événement([&t, place] { t.CartesJeu_MouseUp(39 + place); });
        fenêtre.Événement([&t, autre] { t.CartesJeu_MouseUp(39 + autre); });
        break;
      }
  }
}

// One deal at full speed, the table saved after the showdown. The wait
// before the grab lets the web panels load their pages.
void Capture(Partie &partie, const QString &fichier) {
  QTimer::singleShot(300, &partie.fenêtre, [&partie, fichier] {
    auto &t = partie.table;
    const double durée = partie.plateforme.duréeParSiège;
    partie.plateforme.duréeParSiège = 0;
    partie.fenêtre.Événement([&t] { t.NouveauJeu_MouseUp(); });
    PoseCommeLOrdinateur(partie.fenêtre, t);
    partie.fenêtre.Événement([&t] { t.Joue_Click(); });
    partie.plateforme.duréeParSiège = durée;
    QTimer::singleShot(1500, &partie.fenêtre,
                       [&partie, fichier] { Sauve(partie.fenêtre, fichier); });
  });
}

// Every installed deck (or the one named) chosen in turn, with the time until
// its pictures are in, the longest wait of the event loop meanwhile and the
// resident memory; then the game's own deck again, and the program ends.
void MesureLesJeux(QWidget *fenêtre, const QString &seul) {
  struct Mesure {
    Sonde sonde;
    QElapsedTimer chrono;
    int numéro = 0;
  };
  auto m = std::make_shared<Mesure>();
  auto suivant = std::make_shared<std::function<void()>>();
  *suivant = [m, suivant, fenêtre, seul] {
    const int nombre = static_cast<int>(jeux::Installés().size());
    if (m->numéro == 0)
      std::fprintf(stderr, "jeu de TroisNiveaux : mémoire résidente %ld ko\n", MémoireRésidente());
    ++m->numéro;
    while (m->numéro <= nombre && !seul.isEmpty() && jeux::Installés()[m->numéro - 1].id != seul)
      ++m->numéro;
    if (m->numéro > nombre) {
      jeux::Choisit(0);
      QTimer::singleShot(500, fenêtre, [] {
        std::fprintf(stderr, "retour au jeu de TroisNiveaux : mémoire résidente %ld ko\n",
                     MémoireRésidente());
#ifdef __GLIBC__
        const struct mallinfo2 tas = mallinfo2();
        std::fprintf(stderr, "  tas : %zu ko en usage, %zu ko libres gardés, %zu ko en mmap\n",
                     tas.uordblks / 1024, tas.fordblks / 1024, tas.hblkhd / 1024);
#endif
        QCoreApplication::exit(0);
      });
      return;
    }
    m->sonde.plusLongRetard = 0;
    m->chrono.start();
    jeux::Choisit(m->numéro, [m, suivant, fenêtre](bool réussi) {
      const qint64 durée = m->chrono.elapsed();
      // The table repaints with the new cards before the figure is taken.
      fenêtre->repaint();
      std::fprintf(stderr,
                   "%-26s %s en %5lld ms, attente maximale des événements %3lld ms, "
                   "mémoire résidente %ld ko\n",
                   jeux::NomDuChoix(m->numéro).toUtf8().constData(), réussi ? "prêt " : "ÉCHEC",
                   static_cast<long long>(durée), static_cast<long long>(m->sonde.plusLongRetard),
                   MémoireRésidente());
      QTimer::singleShot(200, fenêtre, *suivant);
    });
  };
  QTimer::singleShot(4000, fenêtre, *suivant);
}

} // namespace

int main(int argc, char *argv[]) {
  QElapsedTimer depuisLeDébut;
  depuisLeDébut.start();
  Options o;
  if (const auto fin = LitOptions(argc, argv, o))
    return *fin;
  PrépareWebEngine();
  QApplication application(argc, argv);
  if (!PrépareLaPartie())
    return 1;
  Partie partie;
  if (const auto fin = partie.Démarre())
    return *fin;
  auto &fenêtre = partie.fenêtre;
  auto &table = partie.table;
  auto &plateforme = partie.plateforme;
  if (o.duréeBalayage)
    plateforme.duréeParSiège = *o.duréeBalayage;
  if (!o.jeu.isEmpty() && !JoueCeJeu(o.jeu))
    std::fprintf(stderr, "jeu « %s » non installé\n", o.jeu.toLocal8Bit().constData());

  std::unique_ptr<Sonde> sonde;
  if (o.mesures) {
    sonde = std::make_unique<Sonde>();
    sonde->compte = [&table] { return table.BalayageEnCours; };
    QObject::connect(&application, &QApplication::aboutToQuit, [&] {
      std::fprintf(stderr, "plus longue attente des événements : %lld ms\n",
                   static_cast<long long>(
                       std::max(sonde->plusLongRetard, plateforme.plusLongSansÉvénements)));
    });
    fenêtre.PremierAffichage([&depuisLeDébut] {
      std::fprintf(stderr, "premier affichage : %lld ms\n",
                   static_cast<long long>(depuisLeDébut.elapsed()));
    });
  }
  if (o.taille.isValid())
    fenêtre.resize(o.taille);
  // Full screen also on a virtual screen with no window manager to size it.
  if (o.pleinÉcran) {
    fenêtre.setGeometry(fenêtre.screen()->geometry());
    fenêtre.BasculePleinÉcran();
  }
  fenêtre.show();
  if (!o.capture.isEmpty())
    Capture(partie, o.capture);
  if (!o.captureHistorique.isEmpty())
    QTimer::singleShot(2000, &fenêtre, [&fenêtre, fichier = o.captureHistorique] {
      QKeyEvent f9(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier);
      QCoreApplication::sendEvent(&fenêtre, &f9);
      Sauve(fenêtre, fichier);
    });
  if (o.mesureJeux)
    MesureLesJeux(&fenêtre, *o.mesureJeux);
  if (o.joueAuto)
    QTimer::singleShot(3000, &fenêtre, [&fenêtre, &table] {
      fenêtre.Événement([&table] { table.NouveauJeu_MouseUp(); });
    });
  // A hurry so many milliseconds into that deal: how long until GO shows.
  QTimer guetteGo;
  if (o.presseAprès >= 0) {
    QTimer::singleShot(3000 + o.presseAprès, &fenêtre, [&] {
      plateforme.Presse();
      if (plateforme.pressé) // else the search was already over
        guetteGo.start(1);
    });
    QObject::connect(&guetteGo, &QTimer::timeout, [&] {
      if (!table.Fenêtre.Joue.Visible)
        return;
      guetteGo.stop();
      std::fprintf(stderr, "de la pression à GO : %lld ms\n",
                   static_cast<long long>(plateforme.depuisPression.elapsed()));
    });
  }
  if (o.quitteAprès >= 0)
    QTimer::singleShot(o.quitteAprès, &fenêtre, [&fenêtre, &table] {
      fenêtre.Événement([&table] { table.Fin_MouseUp(); });
    });
  return application.exec();
}

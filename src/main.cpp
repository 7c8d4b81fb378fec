// The game: the table in its window, over the engine.
#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unistd.h>

#include "core/table_state.h"
#include "platform/qt/fenetre/fenetre_table.h"
#include "platform/qt/bureau/identite.h"
#include "platform/qt/bureau/langue.h"
#include "platform/qt/bureau/messages.h"
#include "platform/qt/bureau/ligne_de_commande.h"
#include "platform/qt/panneaux/pages_web.h"
#include "platform/qt/fenetre/plateforme_qt.h"
#include "platform/qt/bureau/sortie.h"
#include "platform/qt/jeux/jeux_de_cartes.h"

namespace {

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

// TN_CAPTURE=file.png plays one deal at full speed, saves the table after the
// showdown and quits: the screenshot of the README is made this way. The wait
// before the grab lets the web panels load their pages.
void Capture(FenêtreTable &fenêtre, TroisNiveaux &t, PlateformeQt &p, const QString &fichier) {
  QTimer::singleShot(300, &fenêtre, [&fenêtre, &t, &p, fichier] {
    const double durée = p.duréeParSiège;
    p.duréeParSiège = 0;
    fenêtre.Événement([&t] { t.NouveauJeu_MouseUp(); });
    PoseCommeLOrdinateur(fenêtre, t);
    fenêtre.Événement([&t] { t.Joue_Click(); });
    p.duréeParSiège = durée;
    QTimer::singleShot(1500, &fenêtre, [&fenêtre, fichier] {
      const bool réussi = fenêtre.grab().save(fichier);
      std::fprintf(stderr, "%s %s\n", réussi ? "Capture :" : "Capture impossible :",
                   fichier.toLocal8Bit().constData());
      QCoreApplication::exit(réussi ? 0 : 1);
    });
  });
}

} // namespace

int main(int argc, char *argv[]) {
  QElapsedTimer depuisLeDébut;
  depuisLeDébut.start();
  if (const auto fin = TraiteLigneDeCommande(argc, argv))
    return *fin;
  PrépareWebEngine();
  QApplication application(argc, argv);
  ParleLangue(LangueDeDépart(LangueDeLaLigneDeCommande()));
  if (!PrépareDémarrage())
    return 1;

  PlateformeQt plateforme;
  TroisNiveaux table(plateforme);
  GardeLesSorties(table);
  FenêtreTable fenêtre(table, plateforme);
  plateforme.pages = std::make_unique<PagesWeb>(fenêtre.Vue(table.Fenêtre.Pub0Pic),
                                                fenêtre.Vue(table.Fenêtre.Pub1Pic),
                                                fenêtre.Vue(table.Fenêtre.LogoFondPic));
  if (const char *durée = std::getenv("TN_DUREE_BALAYAGE"))
    plateforme.duréeParSiège = std::atof(durée);

  // A failed start is told by one modal message, after which the game ends.
  plateforme.dialogues = false;
  table.Form_Load();
  plateforme.dialogues = true;
  if (table.DémarrageRefusé) {
    if (table.ErreurDémarrage.empty())
      return 0; // the player refused the change of display mode
    if (QGuiApplication::platformName() != "offscreen")
      QMessageBox::critical(nullptr, "TroisNiveaux", TraduitMessage(table.ErreurDémarrage));
    return 1;
  }
  fenêtre.Synchronise();
  fenêtre.RetrouveTaille();

  // A probe that fires every 5 ms: how late it comes during a sweep is how
  // long a click can wait for its handler.
  QTimer sonde;
  QElapsedTimer depuisSonde;
  qint64 plusLongRetard = 0;
  if (std::getenv("TN_MESURES")) {
    sonde.setTimerType(Qt::PreciseTimer);
    QObject::connect(&sonde, &QTimer::timeout, [&] {
      if (table.BalayageEnCours && depuisSonde.isValid())
        plusLongRetard = std::max(plusLongRetard, depuisSonde.elapsed() - 5);
      depuisSonde.restart();
    });
    sonde.start(5);
    static_cast<void>(QObject::connect(&application, &QApplication::aboutToQuit, [&] {
      std::fprintf(
          stderr, "plus longue attente des événements : %lld ms\n",
          static_cast<long long>(std::max(plusLongRetard, plateforme.plusLongSansÉvénements)));
    }));
  }
  fenêtre.PremierAffichage([&depuisLeDébut] {
    if (std::getenv("TN_MESURES"))
      std::fprintf(stderr, "premier affichage : %lld ms\n",
                   static_cast<long long>(depuisLeDébut.elapsed()));
  });
  // For the figures script and the README's screenshot: the table full
  // screen, also on a virtual screen that has no window manager to size it.
  if (std::getenv("TN_PLEIN_ECRAN")) {
    fenêtre.setGeometry(fenêtre.screen()->geometry());
    fenêtre.BasculePleinÉcran();
  }
  fenêtre.show();
  if (const char *fichier = std::getenv("TN_CAPTURE"))
    Capture(fenêtre, table, plateforme, QString::fromLocal8Bit(fichier));
  // For the figures script: a deal started by itself, and a session that
  // ends by itself after so many milliseconds.
  if (std::getenv("TN_JOUE_AUTO"))
    QTimer::singleShot(3000, &fenêtre, [&fenêtre, &table] {
      fenêtre.Événement([&table] { table.NouveauJeu_MouseUp(); });
    });
  // And a hurry so many milliseconds into that deal: how long until GO shows.
  QTimer guetteGo;
  if (const char *délai = std::getenv("TN_PRESSE_APRES")) {
    QTimer::singleShot(3000 + std::atoi(délai), &fenêtre, [&] {
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
  if (const char *délai = std::getenv("TN_QUITTE_APRES"))
    QTimer::singleShot(std::atoi(délai), &fenêtre, [&fenêtre, &table] {
      fenêtre.Événement([&table] { table.Fin_MouseUp(); });
    });
  return jeux::FinDuRendu(application.exec());
}

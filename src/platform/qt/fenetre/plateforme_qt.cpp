// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/fenetre/plateforme_qt.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QTime>
#include <QTimer>
#include <QWidget>
#include <cstdio>

#include "core/table_state.h"
#include "platform/qt/bureau/affichage.h"
#include "platform/qt/bureau/dossier_donnees.h"
#include "platform/qt/bureau/messages.h"
#include "platform/qt/bureau/reseau.h"
#include "platform/qt/panneaux/dialogue_resolution.h"
#include "platform/qt/panneaux/pages_web.h"

PlateformeQt::PlateformeQt() { depuisDernierTour.start(); }
PlateformeQt::~PlateformeQt() = default;

void PlateformeQt::TourDeBoucle() {
  if (sansTour)
    return;
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  if (aprèsTour)
    aprèsTour();
}

// The computation runs at full speed; the window then waits, handling events,
// until this group's moment in an even schedule over the seat's sweep, so the
// bar fills smoothly and the human has time to lay out cards.
void PlateformeQt::TourDeBalayage(int siège, int groupe) {
  if (siège == 0 && groupe == 0)
    pressé = false;
  // Only the stretches inside a sweep count: before it the table was idle.
  if (groupe == 0)
    débutDuSiège.start();
  else
    plusLongSansÉvénements = std::max(plusLongSansÉvénements, depuisDernierTour.elapsed());
  TourDeBoucle();
  depuisDernierTour.restart();
  if (duréeParSiège <= 0 || pressé || !débutDuSiège.isValid())
    return;
  const qint64 échéance = static_cast<qint64>(duréeParSiège * 1000.0 * (groupe + 1) / 1287);
  for (;;) {
    if (quitté || pressé || !table || table->SessionTerminée || !table->Fenêtre.Arrêt.Enabled)
      return;
    const qint64 reste = échéance - débutDuSiège.elapsed();
    if (reste <= 0)
      return;
    QEventLoop attente;
    QTimer::singleShot(static_cast<int>(std::min<qint64>(reste, 10)), Qt::PreciseTimer, &attente,
                       &QEventLoop::quit);
    attente.exec();
    depuisDernierTour.restart();
    if (aprèsTour)
      aprèsTour();
  }
}

void PlateformeQt::Presse() {
  if (!table || !table->BalayageEnCours || pressé)
    return;
  pressé = true;
  depuisPression.start();
}

void PlateformeQt::Quitte() {
  quitté = true;
  QCoreApplication::exit(0);
}

float PlateformeQt::SecondesDepuisMinuit() {
  return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay()) / 1000.0f;
}

std::string PlateformeQt::DossierDesDonnées() {
  return DossierDeCetteSession().dossier.toStdString();
}

void PlateformeQt::EnumDisplaySettings(EnregistrementAffichage &enregistrement) {
  const EnregistrementAffichage lu = LitModeAffichage();
  enregistrement.dmPelsWidth = lu.dmPelsWidth;
  enregistrement.dmPelsHeight = lu.dmPelsHeight;
  enregistrement.dmBitsPerPel = lu.dmBitsPerPel;
  enregistrement.dmDisplayFrequency = lu.dmDisplayFrequency;
}

void PlateformeQt::ChangeDisplaySettings(const EnregistrementAffichage &enregistrement) {
  AppliqueModeAffichage(enregistrement);
}

// Only a change that can happen is asked for. Where the screen has no such
// mode, or the desktop lets no program set one, the session goes on without
// a word: the window is then fitted to the screen.
bool PlateformeQt::DemandeChangementRésolution() {
  return !ModeRéglable(1024, 768) || DemandeAccordRésolution();
}

bool PlateformeQt::EstConnecté() { return MachineEnLigne(); }

void PlateformeQt::Navigue(VueWeb vue, const std::string &adresse) {
  if (pages)
    pages->Navigue(vue, adresse);
}

void PlateformeQt::SignaleErreur(const std::string &message) {
  const QString traduit = TraduitMessage(message);
  std::fprintf(stderr, "TroisNiveaux : %s\n", traduit.toUtf8().constData());
  if (!dialogues)
    return;
  // Not modal: the game goes on behind the message.
  auto *boîte = new QMessageBox(QMessageBox::Warning, "TroisNiveaux", traduit);
  boîte->setAttribute(Qt::WA_DeleteOnClose);
  boîte->setModal(false);
  boîte->show();
}

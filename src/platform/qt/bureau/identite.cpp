// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "platform/qt/bureau/identite.h"

#include <QApplication>
#include <QIcon>
#include <QMessageBox>
#include <cstdio>

#include "platform/qt/bureau/dossier_donnees.h"
#include "platform/qt/bureau/messages.h"

#ifndef TN_ID_APPLICATION
#define TN_ID_APPLICATION "io.github.troisniveaux.TroisNiveaux"
#endif
#ifndef TN_VERSION
#define TN_VERSION "0"
#endif

bool PrépareDémarrage() {
  // No organisation: the data folder is then ~/.local/share/troisniveaux.
  QCoreApplication::setApplicationName(NomDuProgramme);
  QCoreApplication::setApplicationVersion(TN_VERSION);
  QGuiApplication::setApplicationDisplayName("Trois Niveaux");
  QGuiApplication::setDesktopFileName(TN_ID_APPLICATION);
  QIcon icône = QIcon::fromTheme(TN_ID_APPLICATION);
  if (icône.isNull())
    for (int taille : {32, 64, 128, 256})
      icône.addFile(QString(":/icones/troisniveaux-%1.png").arg(taille));
  QApplication::setWindowIcon(icône);

  const DossierDesDonnéesChoisi &choix = DossierDeCetteSession();
  if (choix.erreur.isEmpty())
    return true;
  const QString message =
      TraduitMessage(choix.erreur) +
      QCoreApplication::translate("Messages", " La partie ne peut pas commencer.");
  std::fprintf(stderr, "TroisNiveaux : %s\n", message.toLocal8Bit().constData());
  if (QGuiApplication::platformName() != "offscreen")
    QMessageBox::critical(nullptr, "TroisNiveaux", message);
  return false;
}

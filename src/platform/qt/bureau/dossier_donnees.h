// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// Where the data files live, decided once at start. Portable: a `Noms` lies
// beside the program (a build tree, a copied folder) and every file is read
// and written there. Installed: the player's own data folder, made on the
// first run from the defaults installed with the program.
#include <QString>
#include <QStringList>

struct DossierDesDonnéesChoisi {
  QString dossier; // where Noms, Scores, Temps1, Temps2 and Tirage lie
  QString pages;   // where the game's own web pages lie
  bool portable = false;
  bool créé = false; // the player's folder was made during this choice
  QString erreur;    // why the player's folder could not be made, in French
};

// The choice itself. `programme` is the program's folder, `personnel` the
// player's data folder, `installés` the folders that may hold the installed
// defaults and pages, best first.
DossierDesDonnéesChoisi ChoisitDossierDesDonnées(const QString &programme, const QString &personnel,
                                                 const QStringList &installés);

// The installed folders of this program: ../share/<name> from the program's
// own folder (so a DESTDIR or relocated install works), then <name> under
// each system data folder (XDG_DATA_DIRS).
QStringList DossiersInstallés();

// The choice of this run, made on the first call (after the application
// object exists) and kept for the whole session.
const DossierDesDonnéesChoisi &DossierDeCetteSession();

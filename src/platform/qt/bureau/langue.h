// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The language the game speaks. French is its own and needs no file; any
// other is a translation (troisniveaux_xx.qm) in the data folder's
// "traductions", or beside the program in a build tree. The texts stay
// French in the game: they are translated only where they are shown.

#include <QString>
#include <QStringList>

// The folder of the translations, or an empty string when there is none.
QString DossierDesTraductions();
// "fr" first, then every language a translation exists for.
QStringList LanguesDisponibles();
// The language of this session: the command line's, else the one the player
// chose last, else the desktop's first language that the game speaks, else
// French.
QString LangueDeDépart(const QString &demandée);
// Speaks `langue` from now on (the windows redraw their texts); false, and
// French, when it cannot be loaded.
bool ParleLangue(const QString &langue);
QString LangueParlée();
// The next language available, kept in the player's settings.
void LangueSuivante();
// A translation of `texte` in `contexte` without the application object,
// for the command line.
QString TraduitAvantLaSession(const QString &langue, const char *contexte, const char *texte);

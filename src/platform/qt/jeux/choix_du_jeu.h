// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// F8 on the table: the next card deck, its name shown a moment over the
// table, the choice kept for the next session.

class QLabel;
class QString;
class QWidget;

// Sets the remembered deck going; F8 (bound by the window) calls JeuSuivant.
void InstalleChoixDuJeu(QWidget *fenêtre);
// The deck after the chosen one, as F8 does it; the label that shows its
// name, for tests.
void JeuSuivant(QWidget *fenêtre);
QLabel *ÉtiquetteDuJeu(QWidget *fenêtre);
// Plays the installed deck of that folder name this once, not remembered;
// false when no such deck is installed.
bool JoueCeJeu(const QString &id);

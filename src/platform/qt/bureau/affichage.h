// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The display mode on this desktop: read it, set one for this run.
#include <QMargins>
#include <QSize>
#include <optional>

#include "platform/plateforme.h"

EnregistrementAffichage LitModeAffichage();
void AppliqueModeAffichage(const EnregistrementAffichage &enregistrement);

// The X11 path on a named display (null: the one of the environment), for
// tests on a virtual screen. Empty or false when there is no RandR at hand.
std::optional<EnregistrementAffichage> LitModeX11(const char *nomAffichage);
bool AppliqueModeX11(const EnregistrementAffichage &enregistrement, const char *nomAffichage);
// Whether the X screen offers a mode of this size.
bool ModeX11Offert(int largeur, int hauteur, const char *nomAffichage);

// Whether the display can really be switched to this size for the session:
// on X11 only, and only to a size the screen offers. Elsewhere (Wayland, an
// X server without it) the window is fitted to the screen instead.
bool ModeRéglable(int largeur, int hauteur);

// The window's size on a screen whose free area (desktop panels left out)
// is `disponible`, with a frame of `cadre` round it: `voulue` when it fits,
// else the largest size of the same proportions that fits.
QSize TailleQuiTient(QSize voulue, QSize disponible, QMargins cadre);

// The screen's mode as this program found it, put back if a change of ours
// still stands. For ways out that never reach the game's own end (an exit
// from deep inside the toolkit when the X connection is lost).
void RemetLeModeDeDépart();

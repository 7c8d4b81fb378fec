// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The game's pictures, drawn by the game itself at the size and device pixel
// ratio they are shown at, so they stay sharp on any screen.

#include <QPixmap>
#include <QSize>

// Picture `index` (0..54 the cards by code, or an ImageBouton) at `taille`
// logical pixels. Pictures are cached by index, size and ratio.
QPixmap Image(int index, QSize taille, qreal ratio);

// The same picture painted straight into an image, for tests and captures.
QImage ImageBrute(int index, QSize taille, qreal ratio);

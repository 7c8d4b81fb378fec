// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// The dialog that asks leave to switch the display to 1024 x 768.
// Returns true for "Je suis d'accord".
bool DemandeAccordRésolution();

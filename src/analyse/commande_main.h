// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// `troisniveaux-analyse main`: the layout the computer plays for 13 cards.

#include <ostream>
#include <string>
#include <vector>

// The arguments after "main". Returns the exit status: 0, or 2 for bad
// arguments (with a message on `erreurs` and nothing on `sortie`).
int CommandeMain(const std::vector<std::string> &arguments, std::ostream &sortie,
                 std::ostream &erreurs);

// How to call it, in French.
extern const char *const AideMain;

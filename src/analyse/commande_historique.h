// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// `troisniveaux-analyse historique`: the figures of the history of the scores.

#include <ostream>
#include <string>
#include <vector>

// The arguments after "historique". Returns 0, 1 when the file cannot be
// read, 2 for bad arguments.
int CommandeHistorique(const std::vector<std::string> &arguments, std::ostream &sortie,
                       std::ostream &erreurs);

extern const char *const AideHistorique;

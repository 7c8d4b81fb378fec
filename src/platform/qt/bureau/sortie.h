// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#pragma once
// Every way out of the program that can be caught ends the session as
// QUITTER does, so that a changed display mode is always put back: SIGTERM,
// SIGINT and SIGHUP (kill, a closed terminal, a logout), the end of the
// desktop session, and an exit from anywhere else.

class TroisNiveaux;

// Call once, after the application object and before the display mode can
// change. A signal ends the session from the event loop, never inside its
// handler; the program then exits with 128 + the signal's number.
void GardeLesSorties(TroisNiveaux &table);

// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The TroisNiveaux developers
#include "core/table_state.h"

bool TroisNiveaux::NetworkStatus() { return plateforme.EstConnecté(); }

// Off line, the notice comes back at every test, however often it is
// dismissed; on line, a notice already up stays until OK.
void TroisNiveaux::NonConnectéTimer_Timer() {
  if (NetworkStatus())
    return;
  plateforme.Navigue(VueWeb::LogoWeb, "logomdc200.htm");
  Fenêtre.NonConnectéPic.Visible = true;
}

void TroisNiveaux::NonConnectéCmd_Click() { Fenêtre.NonConnectéPic.Visible = false; }

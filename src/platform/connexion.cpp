#include "core/table_state.h"

// Placeholder until this subsystem is written.
bool TroisNiveaux::NetworkStatus() { return true; }
void TroisNiveaux::NonConnectéTimer_Timer() {}
void TroisNiveaux::NonConnectéCmd_Click() {}

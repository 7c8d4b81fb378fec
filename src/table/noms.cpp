#include "core/table_state.h"

// Placeholder until this subsystem is written.
void TroisNiveaux::NomsJoueurs_MouseUp() {}
void TroisNiveaux::EnregistreNoms_MouseUp() {}
void TroisNiveaux::AnnuleNoms_MouseUp() {}

#include "core/table_state.h"

// Placeholder until this subsystem is written.
void TroisNiveaux::NouveauJeu_MouseUp() {}
void TroisNiveaux::Arrêt_MouseUp() {}
void TroisNiveaux::Mode_MouseUp() {}
void TroisNiveaux::Scoresà0_MouseUp() {}

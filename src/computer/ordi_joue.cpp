#include "core/table_state.h"

// Placeholder until this subsystem is written.
void TroisNiveaux::OrdiJoue() {}
void TroisNiveaux::OrdiJoueLittéral() {}
void TroisNiveaux::ComptePaires(uint8_t) {}
void TroisNiveaux::ChercheSiège(uint8_t) {}

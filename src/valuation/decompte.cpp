#include "core/table_state.h"

// Placeholder until this subsystem is written.
void TroisNiveaux::Décompte1() {}
void TroisNiveaux::Décompte2() {}
void TroisNiveaux::Décompte3() {}

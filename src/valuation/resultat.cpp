#include "core/table_state.h"

// Placeholder until this subsystem is written.
void TroisNiveaux::Résultat1() {}
void TroisNiveaux::Résultat2() {}
void TroisNiveaux::Résultat3() {}

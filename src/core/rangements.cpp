#include "core/table_state.h"

// Placeholder until this subsystem is written.
void TroisNiveaux::ConstruitRangements() {}

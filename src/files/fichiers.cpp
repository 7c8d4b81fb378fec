#include "core/table_state.h"

// Placeholder until this subsystem is written.
bool TroisNiveaux::LitNoms() { return true; }
bool TroisNiveaux::LitScores() { return true; }
void TroisNiveaux::ÉcritNoms(const std::string (&)[4]) {}
void TroisNiveaux::ÉcritScores() {}
void TroisNiveaux::LitTempsDuMode() {}
void TroisNiveaux::ÉcritTempsDuMode() {}
void TroisNiveaux::ÉcritTirage() {}
void TroisNiveaux::LitTirage() {}

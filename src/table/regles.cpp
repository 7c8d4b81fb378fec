#include "core/table_state.h"

// Placeholder until this subsystem is written.
void TroisNiveaux::ComposeTextesRègles() {}
void TroisNiveaux::VoirRègles_Click(int) {}
void TroisNiveaux::TextScroll_Click(int) {}

#include "core/table_state.h"

// Placeholder until this subsystem is written.
void TroisNiveaux::VérifieRésolution() {}
void TroisNiveaux::RestaureRésolution() {}
void TroisNiveaux::ChangeRésolution(const int16_t &, const int16_t &, const int16_t &, const int16_t &) {}
void TroisNiveaux::MémoriseRésolution(int16_t, int16_t, int16_t, int16_t, const std::string &) {}

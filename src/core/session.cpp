#include "core/table_state.h"

// Placeholder until this subsystem is written.
TroisNiveaux::TroisNiveaux(Plateforme &plateforme) : plateforme(plateforme) {}
const char *const NomsParDéfaut[4] = {"MicroProc", "GigaOctets", "MégaBytes", "Bibi"};
void TroisNiveaux::Form_Load() {}
void TroisNiveaux::Form_QueryUnload() {}
void TroisNiveaux::Fin_MouseUp() {}
void TroisNiveaux::PlaceLesÉtoiles() {}
void TroisNiveaux::MontreCarte(int, int) {}

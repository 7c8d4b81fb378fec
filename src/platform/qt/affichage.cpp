#include "platform/qt/affichage.h"

// Placeholder: a screen of 1024 x 768 that never changes.
EnregistrementAffichage LitModeAffichage() { return {1024, 768, 32, 60, 0}; }
void AppliqueModeAffichage(const EnregistrementAffichage &) {}

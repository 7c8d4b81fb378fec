#include "platform/qt/dialogue_resolution.h"

// Placeholder.
bool DemandeAccordRésolution() { return true; }

#include "platform/qt/reseau.h"

// Placeholder.
bool MachineEnLigne() { return true; }

#pragma once
// The display mode on this desktop: read it, set one for this run.
#include "platform/plateforme.h"

EnregistrementAffichage LitModeAffichage();
void AppliqueModeAffichage(const EnregistrementAffichage &enregistrement);

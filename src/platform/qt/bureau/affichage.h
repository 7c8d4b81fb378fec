#pragma once
// The display mode on this desktop: read it, set one for this run.
#include <optional>

#include "platform/plateforme.h"

EnregistrementAffichage LitModeAffichage();
void AppliqueModeAffichage(const EnregistrementAffichage &enregistrement);

// The X11 path on a named display (null: the one of the environment), for
// tests on a virtual screen. Empty or false when there is no RandR at hand.
std::optional<EnregistrementAffichage> LitModeX11(const char *nomAffichage);
bool AppliqueModeX11(const EnregistrementAffichage &enregistrement, const char *nomAffichage);

// The screen's mode as this program found it, put back if a change of ours
// still stands. For ways out that never reach the game's own end (an exit
// from deep inside the toolkit when the X connection is lost).
void RemetLeModeDeDépart();

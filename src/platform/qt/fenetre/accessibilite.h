#pragma once
// What screen readers learn of the table: every control the game paints
// gives a role and a name through Qt's accessibility interfaces.

#include <QString>

#include "table/controles.h"

// Installs the interfaces for the table's controls (once per program).
void InstalleAccessibilité();

// The name a control goes by: a button by its caption (or what its picture
// means), a label by its text, a card slot by its card and level ("dix de
// cœur, niveau 1") or "carte cachée".
QString NomAccessible(const Contrôle &c);

// A card in words: "as de pique".
QString NomDeCarte(int code);

#include "table/controles.h"

Contrôles::Contrôles() {}

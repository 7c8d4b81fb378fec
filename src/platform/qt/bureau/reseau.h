#pragma once
// Whether the machine is on line.
bool MachineEnLigne();

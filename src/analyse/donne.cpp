// `troisniveaux-analyse donne`: placeholder.
#include <string>
#include <vector>

int CommandeDonne(const std::vector<std::string> &) { return 2; }

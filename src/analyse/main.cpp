// Command-line analysis of a hand or a deal.
#include <string>
#include <vector>

int CommandeDonne(const std::vector<std::string> &arguments);

int main() { return 0; }

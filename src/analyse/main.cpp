// Command-line analysis of a hand or a deal.
int main() { return 0; }

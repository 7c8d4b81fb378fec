// The game's entry: the window is created by the Qt layer.
int main() { return 0; }

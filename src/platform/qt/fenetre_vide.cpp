// Placeholder until the window is written.

#pragma once

// Registers the screens of this floor by name, and the key that takes the last total of the tape.
void registerToolScreens();

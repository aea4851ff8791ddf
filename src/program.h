#pragma once

// What the program has before it starts: its name, its looks, and the screens of every floor by name. The
// application object is there already. Then Main() of foundation/start.h starts it.
void setUpProgram();

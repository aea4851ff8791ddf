#include "shell/register.h"

void registerShellScreens() {}

#include "foundation/register.h"

void registerFoundationScreens() {}

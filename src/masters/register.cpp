#include "masters/register.h"

void registerMasterScreens() {}

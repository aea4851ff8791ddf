#include "purchases/register.h"

void registerPurchaseScreens() {}

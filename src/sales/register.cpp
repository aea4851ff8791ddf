#include "sales/register.h"

void registerSalesScreens() {}

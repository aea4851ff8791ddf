#include "documents/register.h"

void registerDocumentScreens() {}

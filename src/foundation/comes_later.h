#pragma once
#include "platform/box.h"

// What a person hears who asks for paper before this program prints.
inline Box printingComesLater() {
    return information("Zevrin!", "Printing comes with a later version of this program.");
}

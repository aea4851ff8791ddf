#pragma once
#include "platform/box.h"

// What a person hears who asks for something, by its name in the menu, that this version lacks.
inline Box notInThisVersion(const QString& name) {
    return information("Zevrin!", QString("\"%1\" is not part of this version yet.").arg(name));
}

#pragma once
#include "platform/outcome.h"

// What the checks of a line answer before it enters its list. Done: it may.
struct LineCheck {
    Outcome outcome;
    bool closesPopup = false;  // after its fault: there is nothing to mend
};

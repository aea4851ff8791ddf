#pragma once
#include <QtGlobal>
#include <functional>

namespace check {

struct Growth {
    qint64 bytes = 0;    // of allocated memory
    qint64 widgets = 0;  // that stayed behind
};

// What the program grew by from the tenth to the last time that this was done. Each time ends with everything
// settled.
Growth growthOf(const std::function<void()>& openAndClose, int times = 100);

}  // namespace check

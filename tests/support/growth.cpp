#include "support/growth.h"

#include "support/screen_driver.h"

#include <QApplication>
#include <QPixmapCache>

#include <malloc.h>

namespace check {

// The cache of pictures has a limit of its own, twice what is asked for here, and fills up to it.
static qint64 bytesInUse() {
    QPixmapCache::clear();
    const auto memory = mallinfo2();
    return static_cast<qint64>(memory.uordblks + memory.hblkhd);
}

Growth growthOf(const std::function<void()>& openAndClose, int times) {
    Growth before;
    for (int time = 1; time <= times; ++time) {
        openAndClose();
        person::settle();
        if (time == 10) before = {bytesInUse(), QApplication::allWidgets().size()};
    }
    return {bytesInUse() - before.bytes, QApplication::allWidgets().size() - before.widgets};
}

}  // namespace check

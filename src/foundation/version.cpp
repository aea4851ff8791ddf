#include "foundation/version.h"

QString versionText() {
    return QString("%1.%2%3").arg(ZEVRIN_VERSION_MAJOR).arg(ZEVRIN_VERSION_MINOR).arg(ZEVRIN_VERSION_PATCH);
}

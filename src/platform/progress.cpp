#include "platform/progress.h"

Progress& Progress::none() {
    static Progress nothing;
    return nothing;
}

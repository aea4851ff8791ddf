#include "platform/ui/key_filters.h"

bool KeyFilter::passes(QChar key) const {
    const bool listed = characters.contains(key, Qt::CaseInsensitive);
    return kind == All || listed == (kind == Allow);
}

#pragma once
#include "platform/search_field.h"
#include "platform/ui/key_filters.h"

// The keys that a search text takes while this field is chosen; of no field, free text.
inline KeyFilter searchKeys(const SearchField* field) {
    if (field && field->kind == SearchField::Date) return keys::date();
    if (field && field->kind == SearchField::Amount) return keys::amount();
    return keys::freeText();
}

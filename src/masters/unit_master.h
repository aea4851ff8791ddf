#pragma once
#include "platform/outcome.h"
#include "platform/store/connection.h"

#include <QStringList>
#include <optional>

// The unit codes that an item may use. Without a window; failures are StoreError.

// Every code, trimmed.
QStringList UnitCodes(Connection& store);

// What a unit field holds when it is left: the first code that begins with the text, upper-cased; empty for
// an empty text. None: the unit is not on file. Then the screen asks unknownUnit(), and on Yes calls
// AddUnitCode, which gives the code; on No the field is emptied. (unit_field.h does all that for a text box.)
std::optional<QString> MatchUnitCode(Connection& store, const QString& text);
Box unknownUnit();
// Adds the code, upper-cased and trimmed, unless it is there. Gives the code.
QString AddUnitCode(Connection& store, const QString& text);

// Saves what was typed: a new code, or the new text of currentUnit; one that is there already is a fault, and
// so is a currentUnit that someone else has renamed or deleted meanwhile. Faults send the focus to "txtUnit".
// What else the store refuses is passed over, and only a busy store is thrown.
Outcome SaveUnit(Connection& store, const QString& typed, bool addMode, const QString& currentUnit);
// Items that carry the unit keep it.
void DeleteUnit(Connection& store, const QString& code);

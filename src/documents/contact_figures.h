#pragma once
#include "platform/currency.h"
#include "platform/store/connection.h"

// What all the documents of a contact come to: what it owes, or is owed.
using ContactBalance = Currency (*)(Connection&, const QString& contactId);

// What of a contact stands on a document, as texts. Empty, or "0.00", for an unknown one.
struct ContactFigures {
    QString term;  // "30 Days"
    QString balance = "0.00";
    QString creditLimit = "0.00";
};
ContactFigures contactFigures(Connection& store, ContactBalance balance, const QString& contactId);
bool contactExists(Connection& store, const QString& contactName);
// Empty for an unknown name.
QString contactIdOf(Connection& store, const QString& contactName);
// What the two ask of the store, to be read ahead.
Sql contactExistsQuery(const QString& contactName);
Sql contactIdQuery(const QString& contactName);
// And back; empty for an unknown id.
QString contactNameOf(Connection& store, const QString& contactId);

#pragma once
#include <QStringList>

class Connection;

// What of the store's tables, indexes and triggers is missing or other than the schema steps of this program
// make them: "missing index tblChecks_CheckNo". Nothing is written to the store.
QStringList schemaFaults(Connection& store);

#pragma once
#include <QString>
#include <QStringList>

// A statement of the house in the words of the server. Besides what engineStatement does: '?' becomes $1, $2,
// ...; a sort puts nulls first, as the file does; LIKE folds all letters; a sum of whole numbers is one, or
// fails; the types of a table are those of prepareServer; its keys are unique indexes in the order of sorts;
// a trigger gets a function. Statements about tables may come out as several.
QString serverStatement(const QString& statement);

// What stands in the database after a statement of the house that makes a table, an index or a trigger:
// "column tblchecks.amount currency_integer", "index tblchecks_checkno".
QStringList serverDefinitions(const QString& statement);

// What those words stand on, run once in an empty database.
QStringList serverGround();

// The type of a column in the words of the house: "CURRENCY_INTEGER"; as it is for any other.
QString houseType(const QString& serverType);

#pragma once
#include <QList>
#include <QStringList>

class Connection;

// Adds a user with this password and these menu rights, and these flags set: "POSSuper", "EndofDay", ... The
// full name is the code and "Santos".
void addUser(Connection& store, const QString& code, const QString& password, const QList<int>& rights = {},
             const QStringList& flags = {});

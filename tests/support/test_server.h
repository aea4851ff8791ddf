#pragma once
#include <QString>

#include <gtest/gtest.h>

class Connection;

// The tests run on files, or on the PostgreSQL server whose URI is in ZEVRIN_TEST_SERVER: each test store is
// a database of its own there, made after the delivered one.
bool onTestServer();

// The URI of a new database with the delivered store. It goes when the test is over.
QString newTestDatabase();
// The URI of a new copy of another one, which nobody has open. It goes likewise.
QString newCopyOf(const QString& uri);
// The URI of a new database with nothing in it, likewise.
QString newEmptyDatabase();

// A delivered store for the program in this folder, file or database; its place.
QString newStoreIn(const QString& folder);
// Sees to that. Called once by a test program.
void watchTestDatabases();

// From now on the store refuses these writes, "UPDATE OF Printed ON tblChecks", where the condition on NEW
// holds.
void refuseWrites(Connection& store, const QString& writes, const QString& condition = "1 = 1");

// What only a file has.
#define SKIP_ON_SERVER() \
    if (onTestServer()) GTEST_SKIP() << "This is about the file."

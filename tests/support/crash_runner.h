#pragma once
#include "platform/store/connection.h"

#include <functional>

// What a sudden end of the program leaves in its store.

struct CrashPoint {
    int statement;      // the writing statement, from 1, that was not reached
    bool acknowledged;  // the action had returned before the program was killed
};

// A copy of a closed store for this folder, which may be the program's; its place.
QString copyOfStore(const QString& place, const QString& folder);

// Runs the action in a process of its own, on a fresh copy of the program's store each time, killed before
// its first writing statement, its second, and so on (a commit counts as one), and at last right after it has
// returned. Each time the store is opened again as the session's connection, with its folder as the
// program's, and handed to the check. Gives the number of writing statements.
//
// The store must be closed, and so must the session's connection. The action gets the session's connection;
// what it throws fails the test.
int crashAtEveryStatement(const std::function<void(Connection&)>& action,
                          const std::function<void(Connection&, const CrashPoint&)>& check);

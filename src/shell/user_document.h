#pragma once
#include "platform/outcome.h"
#include "platform/store/connection.h"

#include <QDate>
#include <QSet>
#include <vector>

// The users of the program and what each may do. Without a window; failures are StoreError.

// A window right: a flag of tblUserMaster, and the check box that gives it.
struct AccessRight {
    const char* column;
    const char* control;
    const char* caption;
    const char* spoken;      // where the caption alone does not tell; empty: the caption
    const char* needs = "";  // the check box without which it is not given
};
const std::vector<AccessRight>& accessRights();

struct UserListRow {
    QString code;
    QString fullName;
    QString description;
};
QList<UserListRow> listUsers(Connection& store);

struct MenuEntry {
    int code;
    QString name;
};
// What can be granted, in the order of the codes.
QList<MenuEntry> listMenuRights(Connection& store);

// A user as on the screen.
struct UserProfile {
    QString code;
    QString fullName;
    QString description;
    QString password;
    QString confirm;
    QString updatedBy;
    QDate dateUpdated;
    QSet<QString> flags;  // the columns that are true
    QSet<int> menus;
    bool operator==(const UserProfile&) const = default;
};
// A user to fill in, and one from the store. StoreError noCurrentRow for a code that is not there.
UserProfile newUser();
UserProfile loadUser(Connection& store, const QString& code);

// Checks and writes a user as one unit. before: what the screen loaded; null: the user is added.
Outcome saveUser(Connection& store, const UserProfile& user, const UserProfile* before);

// Asks first ("delete"); the user ADMIN is never deleted.
Outcome deleteUser(Connection& store, const QString& code, const Answers& answers);

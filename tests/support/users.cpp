#include "support/users.h"

#include "foundation/encryption.h"
#include "platform/store/connection.h"

void addUser(Connection& store, const QString& code, const QString& password, const QList<int>& rights,
             const QStringList& flags) {
    Recordset user = store.openTable("tblUserMaster");
    user.addNew();
    user.set("UserCode", code);
    user.set("FullName", code + " Santos");
    user.set("Password", EncryptText(password));
    for (const QString& flag : flags) user.set(flag, true);
    user.update();
    for (const int right : rights)
        store.run({"INSERT INTO tblUserDetails (UserID, MenuID) VALUES (?, ?)", {code, right}});
}

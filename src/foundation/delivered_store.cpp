#include "foundation/encryption.h"
#include "foundation/new_store.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "platform/clock.h"
#include "platform/parsing.h"
#include "platform/store/connection.h"

#include <QRandomGenerator>

const std::vector<MenuRight>& menuRights() {
    static const std::vector<MenuRight> rights{
        {100, "Transactions"},
        {101, "Sales Order Entry..."},
        {102, "Payment Receipt Entry..."},
        {103, "Purchase Order Entry..."},
        {104, "Disbursement Entry..."},
        {105, "Accounts Receivable Payments"},
        {106, "Accounts Payable Payments"},
        {200, "Maintenance"},
        {201, "Product Master File..."},
        {202, "Contact Master File..."},
        {203, "Unit Master File..."},
        {300, "Administration"},
        {301, "System User Profile..."},
        {302, "Transaction Record Lock..."},
        {303, "Repair Report Analyzer..."},
        {304, "Company Parameter Setup..."},
        {305, "Change Date and Time Settings..."},
        {400, "Report"},
        {401, "Print Quotation"},
        {402, "Print Purchase Order"},
        {403, "Print Delivery Receipt"},
        {404, "Print Sales Invoice"},
        {405, "Print Check and Voucher"},
        {406, "Print Receivable Outstanding Balance"},
        {407, "Print Receivable Log Book"},
        {408, "Print Receivable Due Checks"},
        {409, "Print Payable Outstanding Balance"},
        {410, "Print Payable Log Book"},
        {411, "Print Payable Due Checks"},
        {412, "Print Sales Report"},
        {413, "Print Payment Receipt Report"},
        {414, "Print Purchase Report"},
        {415, "Print Disbursement Report"},
        {416, "Print Sales Profitability Report"},
        {417, "Print Customer Sales Quota"},
        {418, "Print Item Stock Card"},
        {419, "Print Item Inventory Listing"},
        {420, "Print Contact Directory Listing"},
        {421, "Print Audit Trail"},
        {422, "Print Point of Sale Audit"},
        {423, "Print Bar Code"},
    };
    return rights;
}

namespace {
void addProfile(Connection& store) {
    store.run({"INSERT INTO tblSystemProfile (CompanyName) VALUES (?)", {"Zevrin"}});
}

void addMenuRights(Connection& store) {
    std::vector<QVariantList> rows;
    for (const MenuRight& right : menuRights()) rows.push_back({right.code, QString(right.name)});
    store.runMany("INSERT INTO tblUserMenu (MenuCode, MenuName) VALUES (?, ?)", rows);
}

void addUnits(Connection& store) {
    store.runMany("INSERT INTO tblUnitMaster (UnitCode) VALUES (?)",
                  {{"BAG"}, {"BOX"}, {"DOZ"}, {"KG"}, {"PACK"}, {"PC"}, {"ROLL"}, {"SET"}});
}

// A password whose scrambled form ends in a blank would be lost to the trim of its readers.
QString randomPassword() {
    QString password;
    do {
        password.clear();
        for (int i = 0; i < 20; ++i) password += QChar(u'a' + QRandomGenerator::system()->bounded(26));
    } while (trim(EncryptText(password)) != EncryptText(password));
    return password;
}

void addUser(Connection& store, const QString& code, const QString& description, const QString& password,
             bool endOfDay) {
    Recordset user = store.openTable("tblUserMaster");
    user.addNew();
    const auto types = store.columnTypes("tblUserMaster");
    for (auto type = types.begin(); type != types.end(); ++type)
        if (*type == "BOOLEAN") user.set(type.key(), true);
    user.set("UserCode", code);
    user.set("FullName", "ADMIN");
    user.set("Description", description);
    user.set("Password", EncryptText(password));
    user.set("UpdatedBy", "ADMIN");
    user.set("DateUpdated", Clock::today());
    user.set("EndofDay", endOfDay);
    user.update();
    store.run({"INSERT INTO tblUserDetails (UserID, MenuID) SELECT ?, MenuCode FROM tblUserMenu", {code}});
}
}  // namespace

void fillDeliveredStore(Connection& store) {
    addProfile(store);
    addMenuRights(store);
    addUnits(store);
    addUser(store, "ADMIN", "System Administrator", "admin", true);
    addUser(store, masterUserCode, "Master Login", randomPassword(), false);
}

void makeDeliveredStore(const QString& place) { makeStore(place, fillDeliveredStore); }

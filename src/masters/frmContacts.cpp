#include "masters/frmContacts.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "platform/ui/text_box.h"

namespace {
using F = MasterField;

// control, label, column, kind, capacity, access, blank, survives a clear, line, pair, pairs
QList<MasterField> contactFields() {
    return {
        {"txtName", "&Name :", "ContactName", F::Text, width::contactName, F::Open, "", false, 0, 0, 2},
        {"txtAddress", "Addre&ss :", "Address", F::Text, width::address, F::Open, "", false, 1, 0, 3},
        {"txtTelNo", "Tele&phone No. :", "TelNo", F::Text, width::telNo, F::Open, "", false, 2, 0},
        {"txtEmail", "Ema&il :", "eMail", F::Text, width::eMail, F::Open, "", false, 2, 1, 2},
        {"txtTerm", "Terms (da&ys) :", "Terms", F::Days, width::number, F::Open, "0", false, 3, 0},
        {"txtCreditLimit", "&Credit Limit :", "CreditLimit", F::Amount, width::number, F::Open, "0.00", false,
         3, 1},
        {"txtDiscount", "Discount, Percenta&ge :", "Discount", F::Percent, width::number, F::Open, "0", false,
         3, 2},
        {"chkCustomer", "C&ustomer", "IsCustomer", F::Flag, 0, F::Open, "", false, 4, 0},
        {"chkSupplier", "Supp&lier", "IsSupplier", F::Flag, 0, F::Open, "", false, 4, 1},
        {"txtLastUpdate", "Last Update :", "DateUpdate", F::Date, width::date, F::Never, "", false, 4, 2},
        {"txtRemarks", "Remar&ks :", "Remarks", F::Text, width::remarks, F::Open, "", false, 5, 0, 2},
        {"txtUpdatedBy", "Updated By :", "UpdatedBy", F::Text, width::userCode, F::Never, "", false, 5, 2},
    };
}

MasterDescriptor contactDescriptor() {
    const QString none = "System Found No Items in your Contact Information File";
    const QString some = "System Found %1 Items in your Contact Information File";
    return {
        .name = "frmContacts",
        .caption = "Contact Master File . . .",
        .master = contactMaster,
        .fields = contactFields(),
        .firstField = "txtName",
        .columns = {{"Name", "ContactName", GridColumn::Text, 46, " ORDER BY ContactName ASC"},
                    {"Address", "Address", GridColumn::Text, 60, " ORDER BY Address ASC"},
                    {"Telephone No.", "TelNo", GridColumn::Text, 24, " ORDER BY TelNo ASC"}},
        .defaultOrder = " ORDER BY ContactName",
        .listedNone = none,
        .listed = some,
        .countedNone = none,
        .counted = some,
        .allCaption = "Reload &All Contacts",
        .searchFields = contactSearchFields(),
        .initialField = "Name",
        .types = {"Supplier", "Customer"},
        .locksOnShow = false,
        .editShowsLast = true,
        .listsAfterSave = true,
    };
}
}  // namespace

frmContacts::frmContacts() : WalkingMaster(contactDescriptor()) {
    connect(fields().box("txtRemarks"), &TextBox::entered, this, [this] { SaveRecord(); });
}

// A new contact draws its id inside the save; a duplicate shows none either, but draws it at once.
QString frmContacts::drawKey(bool duplicate) {
    return duplicate ? NextContactID(StoreConnection()) : QString();
}

ContactEntry frmContacts::entry() const {
    const auto typed = [this](const char* control) { return fields().text(control); };
    return {
        .ContactName = typed("txtName"),
        .Address = typed("txtAddress"),
        .TelNo = typed("txtTelNo"),
        .eMail = typed("txtEmail"),
        .Terms = typed("txtTerm"),
        .Remarks = typed("txtRemarks"),
        .CreditLimit = typed("txtCreditLimit"),
        .Discount = typed("txtDiscount"),
        .IsCustomer = fields().flag("chkCustomer"),
        .IsSupplier = fields().flag("chkSupplier"),
        .edit = edit(),
    };
}

Outcome frmContacts::save(QString& key) { return SaveContact(StoreConnection(), entry(), mblnAddmode, key); }

Outcome frmContacts::remove(const QString& key) { return DeleteContact(StoreConnection(), key); }

SearchCondition frmContacts::typeCondition(const QString& type) { return contactTypeCondition(type); }

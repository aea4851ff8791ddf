#include "masters/contact_document.h"

#include "foundation/shared_routines.h"
#include "platform/parsing.h"
#include "platform/store/transaction.h"

namespace {
using Check = std::optional<Fault>;

Check entryFault(const ContactEntry& entry) {
    if (!isNumeric(entry.Terms)) return errorFault("Invalid Term Entered!", "txtTerm");
    if (!isNumeric(entry.CreditLimit)) return errorFault("Invalid Credit Limit Amount!", "txtCreditLimit");
    const auto discount = parseNumber(entry.Discount);
    if (!discount) return errorFault("Invalid Discount Percentage!", "txtDiscount");
    // A discount of exactly 100 is refused, too.
    if (*discount >= Currency::fromInteger(100))
        return Fault{Box{{}, "Discount Should Not Be Greater Than 100 Percent!", BoxIcon::None},
                     "txtDiscount"};
    if (!entry.IsCustomer && !entry.IsSupplier)
        return errorFault("Please Select At Least One Contact Category!", "chkCustomer");
    return {};
}

ColumnValues columnsOf(const ContactEntry& entry, const QString& contactId) {
    return {{"ContactID", contactId},
            {"ContactName", trim(entry.ContactName)},
            {"Address", trim(entry.Address)},
            {"TelNo", trim(entry.TelNo)},
            {"Terms", bound(*parseNumber(entry.Terms))},
            {"Remarks", trim(entry.Remarks)},
            {"eMail", trim(entry.eMail)},
            {"CreditLimit", bound(*parseNumber(entry.CreditLimit))},
            {"Discount", bound(*parseNumber(entry.Discount))},
            {"IsCustomer", entry.IsCustomer},
            {"IsSupplier", entry.IsSupplier}};
}

// The id is drawn inside the unit of the write: no other workstation draws it, too.
Outcome writeContact(Connection& store, const ContactEntry& entry, bool addMode, QString& contactId) {
    Transaction save(store);
    if (addMode) {
        contactId = NextContactID(store);
        if (nameFound(store, "tblContactMaster", "ContactName", entry.ContactName))
            return errorFault("Contact Name Already Exist!", "txtName");
    }
    const QString id = trim(contactId);
    if (const Check fault = writeRecord(store, contactMaster, addMode, id, columnsOf(entry, id), entry.edit))
        return *fault;
    save.commit();
    return Done{};
}
}  // namespace

Outcome SaveContact(Connection& store, const ContactEntry& entry, bool addMode, QString& contactId) {
    if (const Check found = entryFault(entry)) return *found;
    if (!addMode && trim(contactId).isEmpty()) return Done{};
    try {
        return writeContact(store, entry, addMode, contactId);
    } catch (const StoreError& error) {
        return Fault{saveErrorBox(error), {}};
    }
}

Outcome DeleteContact(Connection& store, const QString& contactId) {
    static const QList<DeleteGuard> guards{
        {"tblChecks", "ContactNo", "You Cannot Delete This Contact, You have Issued a Check to this Payee!"},
        {"tblSalesMaster", "ContactNo",
         "You Cannot Delete This Contact, You have Sales Order for this Customer!"},
        {"tblReceiptMaster", "CustomerNo",
         "You Cannot Delete This Contact, You have Received Payment from this Customer!"},
        {"tblPurchaseMaster", "ContactNo",
         "You Cannot Delete This Contact, You have Purchase Order for this Supplier!"},
        {"tblDisbursementMaster", "ContactNo",
         "You Cannot Delete This Contact, You have Issued Payment Voucher to this Payee!"},
        {"tblItemMaster", "SupplierCode",
         "You Cannot Delete This Contact, it is a Default Supplier in one of the Products!"},
    };
    return deleteRecord(store, contactMaster, guards, contactId,
                        "You cannot delete this customer because this is used in the packing list!");
}

QString NextContactID(Connection& store) {
    const QString last = lastRecord(store, contactMaster);
    if (last.isEmpty()) return "1000000001";
    const auto number = parseNumber(last);
    if (!number)
        throw StoreError(StoreError::typeMismatch, "The last contact code \"" + last + "\" is not a number.");
    return (*number + Currency::fromInteger(1)).toPlainText();
}

const QList<SearchField>& contactSearchFields() {
    static const QList<SearchField> fields{
        {"Name", "ContactName"},
        {"Address", "Address"},
        {"Tel. No.", "TelNo"},
        {"Terms", "Terms", SearchField::Amount},
        {"Type", "", SearchField::Choice},
        {"Remarks", "Remarks"},
        {"Who Updated", "UpdatedBy", SearchField::Whole},
    };
    return fields;
}

SearchCondition contactTypeCondition(const QString& type) {
    if (type == "Customer") return Sql(" WHERE IsCustomer = True");
    if (type == "Supplier") return Sql(" WHERE IsSupplier = True");
    return exclamation("Error!", "Please Select Proper Contact Type!");
}

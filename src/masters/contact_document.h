#pragma once
#include "masters/master_records.h"

// The rules of the contact master. Without a window; failures are StoreError unless said otherwise.

inline constexpr MasterTable contactMaster{"tblContactMaster", "ContactID"};

// A contact as typed.
struct ContactEntry {
    QString ContactName = {};
    QString Address = {};
    QString TelNo = {};
    QString eMail = {};
    QString Terms = {};
    QString Remarks = {};
    QString CreditLimit = {};
    QString Discount = {};
    bool IsCustomer = false;
    bool IsSupplier = false;
    MasterEdit edit = {};  // of an old contact
};

// Checks, in the system's order, and writes: a new contact, or what of the one of contactId was changed. All
// or nothing. For a new one the id is drawn here and put into contactId, the duplicate test coming after. An
// edit with an empty id passes the checks and writes nothing. One of a contact that someone else has changed
// meanwhile, in any column, is a Fault. A failing store is a Fault.
Outcome SaveContact(Connection& store, const ContactEntry& entry, bool addMode, QString& contactId);

// Fault when a document, a check or an item refers to the contact.
Outcome DeleteContact(Connection& store, const QString& contactId);

// The highest id, in the order of texts, plus 1; "1000000001" for an empty table. Nothing is kept, so the id
// of a deleted highest contact comes again.
QString NextContactID(Connection& store);

const QList<SearchField>& contactSearchFields();
// The condition of the type picked, "Customer" or "Supplier".
SearchCondition contactTypeCondition(const QString& type);

#include "documents/contact_figures.h"

#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "platform/parsing.h"

ContactFigures contactFigures(Connection& store, ContactBalance balance, const QString& contactId) {
    ContactFigures figures;
    figures.balance = formatNumber(balance(store, contactId), mask::amount);
    const Recordset contact = store.execute(
        {"SELECT Terms, CreditLimit FROM tblContactMaster WHERE ContactID = ?", {trimRight(contactId)}});
    if (contact.eof()) return figures;
    figures.term = contact.currency("Terms").toPlainText() + " Days";
    figures.creditLimit = formatNumber(contact.currency("CreditLimit"), mask::amount);
    return figures;
}

bool contactExists(Connection& store, const QString& contactName) {
    return RecordFound(store, "tblContactMaster", "ContactName", trim(contactName));
}

QString contactIdOf(Connection& store, const QString& contactName) {
    return LookupField(store, "ContactID", "tblContactMaster", "ContactName", trim(contactName),
                       LookupMode::PrimaryKey);
}

Sql contactExistsQuery(const QString& contactName) {
    return recordFoundQuery("tblContactMaster", "ContactName", trim(contactName));
}

Sql contactIdQuery(const QString& contactName) {
    return lookupQuery("ContactID", "tblContactMaster", "ContactName", trim(contactName),
                       LookupMode::PrimaryKey);
}

QString contactNameOf(Connection& store, const QString& contactId) {
    return LookupField(store, "ContactID", "tblContactMaster", "ContactName", contactId,
                       LookupMode::DisplayText);
}

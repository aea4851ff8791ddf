#include "books/contact_balances.h"

#include "books/balance_figures.h"
#include "books/balances.h"
#include "books/passed_over.h"
#include "platform/store/bulk.h"

namespace {
// One side of the books: what its contacts bought or were bought from, and what was paid. Both give a contact
// and three sums, of which each fills its own.
struct Side {
    const char* documents;
    const char* documentContact;
    const char* payments;
    const char* paymentContact;
    Currency (*figure)(Term documents, Term paid, Term granted);
    Currency (*ofOne)(Connection& store, const QString& contactId);
};

const Side customers{
    "SELECT ContactNo, SUM(TotalAmount), NULL, NULL FROM tblSalesMaster",
    "ContactNo",
    "SELECT CustomerNo, NULL, SUM(PaymentAmount), SUM(TotalDiscAmount) FROM tblReceiptMaster",
    "CustomerNo",
    receivableFigure,
    CustomerBalance};

const Side suppliers{
    "SELECT ContactNo, SUM(PurchaseAmount), NULL, NULL FROM tblPurchaseMaster",
    "ContactNo",
    "SELECT tblDisbursementMaster.ContactNo, NULL, SUM(tblDisbursementDetails.PayAmount), NULL FROM "
    "tblDisbursementMaster INNER JOIN tblDisbursementDetails ON tblDisbursementMaster.VoucherNo = "
    "tblDisbursementDetails.VoucherID AND tblDisbursementDetails.DirectPayment = 0",
    "tblDisbursementMaster.ContactNo",
    [](Term documents, Term paid, Term) { return differenceFigure(documents, paid); },
    SupplierBalance};

Sql sumsOf(const char* rows, const QString& contact, const Sql& contacts) {
    Sql sums(rows);
    if (!contacts.isEmpty()) sums += Sql(" WHERE " + contact + " IN (") + contacts + Sql(")");
    return sums + Sql(" GROUP BY " + contact);
}

struct Terms {
    Term of[3];
};

QHash<QByteArray, Terms> termsOf(Connection& store, const Side& side, const Sql& contacts) {
    QHash<QByteArray, Terms> terms;
    BulkReader row(store, sumsOf(side.documents, side.documentContact, contacts) + Sql(" UNION ALL ") +
                              sumsOf(side.payments, side.paymentContact, contacts));
    while (row.next()) {
        Terms& contact = terms[foldedKey(row.bytes(0))];
        for (int term = 0; term < 3; ++term)
            if (!row.isNull(term + 1)) contact.of[term] = row.currency(term + 1);
    }
    return terms;
}

KeyedFigures oneByOne(Connection& store, const Side& side, const Sql& contacts) {
    KeyedFigures balances;
    const Sql all = contacts.isEmpty() ? Sql("SELECT ContactID FROM tblContactMaster") : contacts;
    for (Recordset row = store.execute(all); !row.eof(); row.moveNext())
        balances[row.text("ContactID").toUtf8()] = side.ofOne(store, row.text("ContactID"));
    return balances;
}

// One contact whose sum leaves the range would fail the statement for all: there each is computed by itself.
KeyedFigures balancesOf(Connection& store, const Side& side, const Sql& contacts) {
    QHash<QByteArray, Terms> terms;
    if (!passOverRead([&] { terms = termsOf(store, side, contacts); }))
        return oneByOne(store, side, contacts);
    KeyedFigures balances;
    for (auto contact = terms.cbegin(); contact != terms.cend(); ++contact)
        balances[contact.key()] = side.figure(contact->of[0], contact->of[1], contact->of[2]);
    return balances;
}
}  // namespace

KeyedFigures CustomerBalances(Connection& store, const Sql& contacts) {
    return balancesOf(store, customers, contacts);
}

KeyedFigures SupplierBalances(Connection& store, const Sql& contacts) {
    return balancesOf(store, suppliers, contacts);
}

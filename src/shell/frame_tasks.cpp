#include "shell/frame_tasks.h"

#include "books/balances.h"
#include "books/posting_queue.h"
#include "foundation/comes_later.h"
#include "foundation/session.h"
#include "platform/clock.h"
#include "platform/ui/boxes.h"
#include "platform/ui/frmStatus.h"

namespace {

// Checks that have come due and are not cleared; the columns stand in the table of this name.
Sql dueChecks(const QString& from, const QString& table) {
    return {QString("SELECT tblContactMaster.ContactName, %1.* FROM %2 WHERE %1.CheckNo <> 'Cash' AND "
                    "%1.Negotiated = 0 AND %1.CheckDate <= ? ORDER BY %1.CheckDate ASC")
                .arg(table, from),
            {bound(Clock::today())}};
}

// A list without a selection screen: its own handler shows an error's text.
void printList(const Sql& set, const QString& name) {
    guarded([&] {
        if (StoreConnection().execute(set).eof())
            showBox(information("Nothing to Print!", "No Records to Print..."));
        else
            showBox(notInThisVersion(name));
    });
}

}  // namespace

void recomputeBalances() {
    if (!askYes(question("Continue?",
                         "It May Take a Long Time to Re-Compute Balances! Do you want to Continue?")))
        return;
    frmStatus status;
    guarded([&] {
        RecomputeInventoryBalances(StoreConnection(), status);
        RecomputePayableBalances(StoreConnection(), status);
        RecomputeReceivableBalances(StoreConnection(), status);
    });
}

bool goesOnWithPendingRows() {
    return !HasPendingPosting(StoreConnection()) ||
           askYes(question("Zevrin!",
                           "There are Still Transactions for Posting! Do you still want to Continue?"));
}

void printReceivableDueChecks() {
    printList(dueChecks("(tblContactMaster INNER JOIN tblReceiptMaster ON tblContactMaster.ContactID = "
                        "tblReceiptMaster.CustomerNo) INNER JOIN tblReceiptDetails ON "
                        "tblReceiptMaster.PayNo = tblReceiptDetails.PayCode",
                        "tblReceiptDetails"),
              "Print Receivable Due Checks");
}

void printPayableDueChecks() {
    printList(dueChecks("tblContactMaster INNER JOIN tblChecks ON tblContactMaster.ContactID = "
                        "tblChecks.ContactNo",
                        "tblChecks"),
              "Print Payable Due Checks");
}

void printContactList() {
    printList("SELECT * FROM tblContactMaster ORDER BY ContactName ASC", "Print Contact Directory Listing");
}

void remindOfEndOfDay() {
    if (HasPendingPosting(StoreConnection()))
        showBox(information("Zevrin!", "Please Don't Forget to Process End of Day Transactions!"));
}

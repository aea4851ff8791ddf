#include "shell/lock_document.h"

#include "foundation/shared_routines.h"
#include "platform/parsing.h"

#include <algorithm>

const std::vector<LockJournal>& lockJournals() {
    static const std::vector<LockJournal> journals{
        {"Sales Order Entry", salesBook, "Enter Delivery Receipt No. :", "This will Lock D.R. No. ",
         "Delivery Receipt No. Does Not Exist!"},
        {"Payments Receipt Entry", receiptBook, "Enter Payment No. :", "This will Lock Payment No. ",
         "Payment No. Does Not Exist!"},
        {"Purchase Order Entry", purchaseBook, "Enter Purchase Order No. :", "This will Lock P.O. No. ",
         "Purchase Order No. Does Not Exist!"},
        {"Disbursement Entry", disbursementBook, "Enter Voucher No. :", "This will Lock Voucher No. ",
         "Voucher No. Does Not Exist!"},
    };
    return journals;
}

const LockJournal* findLockJournal(const QString& name) {
    const auto found = std::ranges::find(lockJournals(), name, &LockJournal::name);
    return found == lockJournals().end() ? nullptr : &*found;
}

DocumentLock documentLock(Connection& store, const LockJournal& journal, const QString& number) {
    if (!RecordFound(store, journal.book.table, journal.book.key, number)) return DocumentLock::Missing;
    return FlagFieldSet(store, journal.book.table, journal.book.key, number, "RecordLock")
               ? DocumentLock::Locked
               : DocumentLock::Free;
}

Box missingDocument(const LockJournal& journal) { return exclamation("Error!", journal.missing); }

Outcome changeLock(Connection& store, LockChange change, const QString& journalName, const QString& number,
                   const Answers& answers) {
    const bool locks = change == LockChange::Lock;
    if (number.isEmpty())
        return Fault{exclamation("No Record!", locks ? "Please Select a Record to Lock!"
                                                     : "Please Select a Record to UnLock!"),
                     "cboSelection"};
    const LockJournal* journal = findLockJournal(journalName);
    if (!journal) return errorFault("Please Select Transaction Journal First!", "cboJournal");
    if (documentLock(store, *journal, number) == DocumentLock::Missing)
        return Fault{missingDocument(*journal), "cboSelection"};
    if (!answers.contains("lock"))
        return Question{"lock",
                        question("Are you Sure?", journal->question + number +
                                                      "! Please Make Sure That There is No One Editing "
                                                      "or Printing Record at the Moment!")};
    if (answers.value("lock") != BoxAnswer::Yes) return Fault{};
    setRecordLock(store, journal->book, trimRight(number), locks);
    return Done{{locks ? information("Locked!", "Record Successfully Locked!")
                       : information("Released!", "Record Successfully Released!")}};
}

#include "shell/frame_tasks.h"

#include "books/balances.h"
#include "books/posting_queue.h"
#include "foundation/session.h"
#include "platform/ui/boxes.h"
#include "platform/ui/frmStatus.h"

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

void remindOfEndOfDay() {
    if (HasPendingPosting(StoreConnection()))
        showBox(information("Zevrin!", "Please Don't Forget to Process End of Day Transactions!"));
}

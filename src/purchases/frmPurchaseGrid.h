#pragma once
#include "documents/journal.h"

// The purchase journal: what tells it from the others, and the screen.
const JournalBook& purchaseJournal();

class frmPurchaseGrid : public Journal {
    Q_OBJECT
  public:
    frmPurchaseGrid() : Journal(purchaseJournal()) {}
};

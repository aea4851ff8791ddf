#pragma once
#include "documents/journal.h"

// The receipt journal: what tells it from the others, and the screen.
const JournalBook& receiptJournal();

class frmReceiptGrid : public Journal {
    Q_OBJECT
  public:
    frmReceiptGrid() : Journal(receiptJournal()) {}
};

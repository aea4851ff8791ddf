#pragma once
#include "documents/journal.h"

// The disbursement journal: what tells it from the others, and the screen.
const JournalBook& disbursementJournal();

class frmDisbursementGrid : public Journal {
    Q_OBJECT
  public:
    frmDisbursementGrid() : Journal(disbursementJournal()) {}
};

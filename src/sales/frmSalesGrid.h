#pragma once
#include "documents/journal.h"

// The sales journal: what tells it from the others, and the screen.
const JournalBook& salesJournal();

class frmSalesGrid : public Journal {
    Q_OBJECT
  public:
    frmSalesGrid() : Journal(salesJournal()) {}
};

#pragma once
#include "books/record_lock.h"
#include "documents/document_delete.h"
#include "documents/journal_query.h"
#include "platform/ui/child_screen.h"
#include "platform/ui/data_grid.h"

// A column of a journal, and the order that a click on its header gives.
struct JournalColumn {
    GridColumn grid;
    const char* order;
};

// A sort option: its name, its caption, and the order that it gives.
struct JournalSort {
    const char* name;
    const char* caption;
    const char* order;
};

// All that tells one journal from another.
struct JournalBook {
    const char* screen;
    const char* caption;
    const char* entryScreen;
    LockableBook lock;
    JournalTables tables;
    DeletionRules deletion;
    const char* printRight;
    ChildScreen* (*print)(const QString& number);  // shows the paper; null: there is none
    const char* deleteRight;
    const char* initialCategory;
    QList<JournalSort> sorts;
    QList<JournalColumn> columns;
};

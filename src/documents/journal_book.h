#pragma once
#include "books/record_lock.h"
#include "documents/document_delete.h"
#include "documents/journal_query.h"
#include "platform/ui/child_screen.h"
#include "platform/ui/data_grid.h"

// A sort option: its name, its caption, and the order that it gives.
struct JournalSort {
    const char* name;
    const char* caption;
    const char* order;
};

// What the Edit command of the frame, a button of its own, Enter and a double click do with the current row.
struct JournalRowCommand {
    const char* name = "cmdEdit";
    const char* caption = "&Edit";
    const char* icon = "edit";
    const char* nothing = "Please select proper record to EDIT! There's nothing to EDIT!";
    // Makes a popup about the row that the grid stands on; null: the document is locked and opened.
    ChildScreen* (*popup)(const DataGrid& grid) = nullptr;
};

// All that tells one journal from another.
struct JournalBook {
    enum KeyKind { TextKey, NumberKey };

    const char* screen;
    const char* caption;
    const char* entryScreen;
    LockableBook master;
    KeyKind keyKind = TextKey;
    JournalTables tables;
    JournalRowCommand rowCommand = {};
    DeletionRules deletion;
    const char* deleteRight;
    bool saysNoDeleteRight = true;  // with a box; else the button and the menu, being disabled, are all
    const char* printRight;
    // Shows the paper of a document, null when it has no rows; a book without the function has no paper.
    ChildScreen* (*print)(const QString& number);
    Box nothingToPrint = exclamation("Nothing to Print!", "No Records to Print...");
    const char* initialField;
    QList<JournalSort> sorts;
    QList<GridColumn> columns;
};

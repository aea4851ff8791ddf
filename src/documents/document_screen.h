#pragma once
#include "books/record_lock.h"
#include "documents/contact_figures.h"
#include "documents/number_entry.h"
#include "platform/box.h"
#include "platform/ui/list_view.h"

class ChildScreen;

// The words and habits that the entry screens of documents differ in.
struct DocumentScreen {
    const char* name;
    const char* caption;
    LockableBook master;
    NumberRule number;
    ContactBalance contactBalance;

    // The controls: their names where they are not the same everywhere, and their texts.
    const char* dateName = "txtRefDate";
    const char* searchName = "cmdSearch";
    const char* totalName = "txtAmount";
    const char* invalidDate = "Invalid Date Value!";  // as the save says it
    const char* codeLabel;
    const char* dateLabel;
    const char* contactLabel;
    const char* balanceLabel;
    const char* searchText;
    const char* incrementText;
    const char* listLabel;
    const char* countLabel;
    const char* addCaption;
    const char* editCaption;
    const char* removeCaption;
    QList<ListColumn> columns;
    int totalColumn;  // of the list: sums up to the document's total

    // The contact. A line is added or changed only for one that is in the file.
    struct ContactMissing {
        const char* notChosen;
        const char* unknown;
    };
    const char* contactFilter;
    ContactMissing missingToAdd;
    ContactMissing missingToEdit;
    BoxIcon unknownIcon = BoxIcon::Exclamation;
    const char* noContactEntered;

    // After the save: the papers that the user with the right is asked about, in order.
    struct Paper {
        const char* question;
        ChildScreen* (*show)(const QString& number);  // its preview, or null: there is none
    };
    const char* printRight;
    QList<Paper> papers;
    const char* saved = "Record Successfully Saved!";

    bool newShowsUser;  // a new document shows the current user
};

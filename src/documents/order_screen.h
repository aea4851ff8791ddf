#pragma once
#include "documents/line_owner.h"

#include <QStringList>

// The words and habits that the sales and the purchase entry screens differ in.
struct OrderScreen {
    const OrderBook* book;
    LineWords words;
    const char* name;
    const char* caption;

    const char* codeLabel;
    const char* dateLabel;
    const char* contactLabel;
    const char* balanceLabel;
    const char* searchText;
    const char* incrementText;
    const char* quantityHeading;  // of the list's fourth column
    const char* lastHeading;      // of a column that stays empty, or null
    const char* serveName;
    const char* serveCaption;
    bool showsCreditLimit;

    const char* contactFilter;
    const char* selectContactFirst;
    const char* noContactToAdd;
    const char* noContactToEdit;
    BoxIcon noContactIcon;

    const char* printRight;
    const char* printQuestion;
    ChildScreen* (*print)(const QString& number);  // shows the paper; null: there is none

    QStringList dirtyingFields;  // whose key presses raise mblnUpdated
    bool sortDirties;            // so does a click on a column header
    bool newShowsUser;           // a new document shows the current user
};

#pragma once
#include "reports/frame/report_events.h"

class Connection;

// A list report: one table of columns makes its heads, its lines and its total line.
//
//     const ReportLayout layout = listLayout({.name = "prtItemList",
//                                             .caption = "Item Listing...",
//                                             .page = letterPortrait(600, 500, 11055),
//                                             .heading = {companyLine(), titleLine("Item Inventory
//                                             Listing")}, .headsTop = 1620, .columns = {{"Code", 90, 900,
//                                             "ItemCode"},
//                                                         {"Inventory", 7830, 1350, "Balance", Amount}}});

// One column. Its head is the label lblItemCode, its field txtItemCode.
struct ReportColumn {
    enum Kind { Text, Centred, Date, DateTime, Count, Number, Amount, SignedAmount, Price };

    const char* head;
    int left, width;
    const char* column;           // of the rows; "txtNet": a field that the report's event fills
    Kind kind = Text;             // Text grows; Number is in plain digits
    const char* total = nullptr;  // the field of the total line; null: it is not totalled
};

struct ListReport {
    const char* name;
    const char* caption;
    PageSetup page;
    QList<ReportControl> heading;  // one line below the other, from the top
    int headsTop;
    QList<ReportColumn> columns;
    const char* total = "Total = ";
    QList<ReportControl> foot = {};  // beside the page text
};

ReportLayout listLayout(const ListReport& list);

// Lines of a heading. The company's are filled by companyTexts.
ReportControl companyLine();
ReportControl addressLine();
ReportControl phoneLine();
ReportControl titleLine(const char* title);
ReportControl runDateLine();
ReportControl rangeLine();

// "Run Date :  " and the present moment.
QString runDateText();

// The company's name, address, telephone number and logo, for lblCompany, lblAddress, lblTelNo and imgCheck.
RunTexts companyTexts(Connection& store);

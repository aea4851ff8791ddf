#pragma once
#include "reports/frame/report_events.h"

#include <optional>

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
    enum Kind { Text, Code, Centred, Date, DateTime, Count, Number, Amount, SignedAmount, Price, Percent };

    const char* head;
    int left, width;
    const char* column;  // of the rows; "txtNet": a field that the report's event fills
    Kind kind =
        Text;  // Text grows; Code is never broken; Number is in plain digits; a sign follows a Percent
    const char* total = nullptr;     // the field of the total line; null: it is not totalled
    const char* subTotal = nullptr;  // and of its group's
};

// The rows of one value of a column under a heading of their own, and a total line below them.
struct ReportGroup {
    const char* column;
    QList<ReportControl> heading = {};
    const char* total = "Sub Total = ";
};

struct ListHeights {
    int heading = 0;  // 0: up to the heads
    int line = 285;
    int pageFooter = 360;
    int total = 360;
    int heads = 225;  // 450: of two lines
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
    int totalLeft = 0;               // of the words of the total line; 0: close by its first figure
    ListHeights heights = {};
    QList<ReportControl> beside = {};  // more of the heading, at places of their own
    std::optional<ReportGroup> group = {};
};

ReportLayout listLayout(const ListReport& list);

// The page text, "Page: 2 of  3", with what a report has beside it.
ReportSection pageFooter(const QList<ReportControl>& more = {});

// Lines of a heading. The company's are filled by companyTexts.
ReportControl companyLine();
ReportControl addressLine();
ReportControl phoneLine();
ReportControl titleLine(const char* title);
ReportControl runDateLine();
ReportControl rangeLine();
// "No. of Records = " and their number, side by side at this top.
QList<ReportControl> recordsLine(int top);
// At the right of the fifth line of a heading this wide: lblCount, which comes with the run.
ReportControl countLine(int printWidth);

// "Run Date :  " and the present moment.
QString runDateText();

// Name, address and telephone number below each other, with the logo at their left.
QList<ReportControl> companyBlock(int top, int logoHeight = 1170);

// The company's name, address, telephone number and logo, for lblCompany, lblAddress, lblTelNo and imgCheck.
RunTexts companyTexts(Connection& store);

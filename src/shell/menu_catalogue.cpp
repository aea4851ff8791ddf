#include "shell/menu_catalogue.h"

namespace {

constexpr const char* separator = "-";
using enum FrameCommand;

MenuTable fileMenu() {
    return {"mnuFile",
            "mnuFileItem",
            "&File",
            0,
            "",
            {
                {0, "Process End of Day Transactions...", OpenScreen{"frmForUpload"}},
                {1, separator},
                {2, "&Re-Compute Balances...", RecomputeBalances},
                {3, separator},
                {4, "Set Default &Form Setup...", OpenScreen{"frmReceipts"}},
                {5, separator},
                {6, "Printer &Setup...", SetUpPrinter},
                {7, separator},
                {8, "Log&off...", LogOff},
                {9, "E&xit", Exit},
            }};
}

MenuTable editMenu() {
    return {"mnuEdit",
            "mnuEditItem",
            "&Edit",
            0,
            "",
            {
                {2, "Cu&t", Cut, "Ctrl+X"},
                {3, "&Copy", Copy, "Ctrl+C"},
                {4, "&Paste", Paste, "Ctrl+V"},
                {6, separator},
                {7, "Select &All", SelectAll, "Ctrl+A"},
            }};
}

MenuTable viewMenu() {
    return {"mnuView",
            "mnuViewItem",
            "&View",
            0,
            "",
            {
                {0, "&Toolbar", ToggleToolbar, "", 0, false, true},
                {1, "&Status Bar", ToggleStatusBar, "", 0, false, true},
                {2, separator},
                {3, "&Refresh", RecordCommand{"RefreshRecord"}, "F5"},
                {4, separator},
                {5, "&Calculator", OpenScreen{"frmCalculator"}},
                {6, separator},
                {7, "Re-Order &Level", OpenScreen{"frmReorder"}},
                {8, separator},
                {9, "&Data Discrepancy", OpenScreen{"prtDiscrepancy"}},
            }};
}

MenuTable recordMenu() {
    return {"mnuRecord",
            "mnuRecordItem",
            "&Record",
            0,
            "",
            {
                {0, "&New...", RecordCommand{"NewRecord"}, "Ctrl+N"},
                {1, separator},
                {2, "&Edit", RecordCommand{"EditRecord"}, "Ctrl+E"},
                {3, "&Delete", RecordCommand{"DeleteRecord"}, "Shift+Del"},
                {4, "&Save", RecordCommand{"SaveRecord"}, "Ctrl+S"},
                {5, "&Close", RecordCommand{"CloseRecord"}, "Ctrl+W"},
                {6, separator},
                {7, "&First", RecordCommand{"FirstRecord"}},
                {8, "&Previous", RecordCommand{"PrevRecord"}},
                {9, "Ne&xt", RecordCommand{"NextRecord"}},
                {10, "&Last", RecordCommand{"LastRecord"}},
                {11, separator},
                {12, "Searc&h...", OpenScreen{"frmSearch"}, "Ctrl+F"},
            }};
}

MenuTable transactionMenu() {
    return {"mnuTransaction",
            "mnuTransactionItem",
            "&Transactions",
            100,
            "",
            {
                {2, "&Sales Order Entry...", OpenScreen{"frmSalesGrid"}, "", 101},
                {3, "Payment &Receipt Entry...", OpenScreen{"frmReceiptGrid"}, "", 102},
                {4, separator},
                {5, "Purchase &Order Entry...", OpenScreen{"frmPurchaseGrid"}, "", 103},
                {6, "&Disbursement Entry...", OpenScreen{"frmDisbursementGrid"}, "", 104},
                {7, separator},
                {8, "&Manage Payments"},
            }};
}

MenuTable manageCheckMenu() {
    return {"mnuManageCheck",
            "mnuManageCheckItem",
            "",
            0,
            "mnuTransactionItem_8",
            {
                {0, "Accounts Receivable Payments", OpenScreen{"frmNegReceivableChecks"}, "", 105},
                {1, "Accounts Payable Payments", OpenScreen{"frmNegPayableChecks"}, "", 106},
            }};
}

MenuTable maintenanceMenu() {
    return {"mnuMaintenance",
            "mnuMaintenanceItem",
            "&Maintenance",
            200,
            "",
            {
                {0, "&Product Master File...", OpenScreen{"frmItem"}, "", 201},
                {1, separator},
                {2, "&Contact Master File...", OpenScreen{"frmContacts"}, "", 202},
                {3, separator},
                {4, "&Unit Master File...", OpenScreen{"frmUnitGrid"}, "", 203},
                {5, separator},
                {6, "Cash &Register Maintenance...", OpenScreen{"frmPOSCash"}},
            }};
}

MenuTable adminMenu() {
    return {"mnuAdmin",
            "mnuAdminItem",
            "&Administration",
            300,
            "",
            {
                {0, "&System User Profile...", OpenScreen{"frmUserGrid"}, "", 301},
                {1, separator, {}, "", 0, true},
                {2, "S&QL Server Setup...", {}, "", recordLockRight, true},
                {3, separator},
                {4, "&Repair Report Analyzer...", RepairReportAnalyzer, "", 303},
                {5, separator},
                {6, "&Company Parameter Setup...", OpenScreen{"frmCompanySetup"}, "", 304},
                {7, separator},
                {8, "Change &Date and Time Settings...", OpenScreen{"frmDateChecker"}, "", 305},
            }};
}

OpenScreen transactionReport(const char* kind, const char* caption, const char* choice) {
    return {"frmPrintTransactions", kind, caption, choice};
}

MenuTable reportMenu() {
    return {
        "mnuReport",
        "mnuReportItem",
        "Rep&ort",
        400,
        "",
        {
            {0, "Print Quotation", OpenScreen{"frmPrintQuotation"}, "", 401},
            {1, separator},
            {2, "Print Purchase Order", OpenScreen{"frmPrint", "PO"}, "", 402},
            {3, "Print Delivery Receipt", OpenScreen{"frmPrint", "DR"}, "", 403},
            {4, "Print Sales Invoice", OpenScreen{"frmPrint", "SI"}, "", 404},
            {5, "Print Check and Voucher", OpenScreen{"frmPrint", "CV"}, "", 405},
            {6, separator},
            {7, "Print Receivable Outstanding Balance", OpenScreen{"frmPrintOutstanding", "R"}, "", 406},
            {8, "Print Receivable Log Book",
             OpenScreen{"frmPrintLogBook", "R", "Print Receivable Log Book..."}, "", 407},
            {9, "Print Receivable Due Checks", OpenScreen{"prtReceivableDueChecks"}, "", 408},
            {10, separator},
            {11, "Print Payable Outstanding Balance", OpenScreen{"frmPrintOutstanding", "P"}, "", 409},
            {12, "Print Payable Log Book", OpenScreen{"frmPrintLogBook", "P", "Print Payable Log Book..."},
             "", 410},
            {13, "Print Payable Due Checks", OpenScreen{"prtPayableDueChecks"}, "", 411},
            {14, separator},
            {15, "Print Sales Report", transactionReport("S", "Print Sales Report...", "optSummary"), "",
             412},
            {16, "Print Payment Receipt Report",
             transactionReport("R", "Print Payment Receipt Report...", "optDetailed"), "", 413},
            {17, "Print Purchase Report", transactionReport("P", "Print Purchase Report...", "optSummary"),
             "", 414},
            {18, "Print Disbursement Report",
             transactionReport("D", "Print Disbursement Report...", "optDetailed"), "", 415},
            {19, separator},
            {20, "Print Sales Profitability Report",
             OpenScreen{"frmPrintTransactions", "PROFIT", "Print Sales Profitability Report...",
                        "optDetailed", true},
             "", 416},
            {21, "Print Customer Sales Quota", OpenScreen{"frmPrintSalesQuota"}, "", 417},
            {22, separator},
            {23, "Print Item Stock Card", OpenScreen{"frmPrintStockCard", "", "", "", true}, "", 418},
            {24, "Print Item Inventory Listing", OpenScreen{"frmPrintInventory", "", "", "", true}, "", 419},
            {25, "Print Contact Directory Listing", OpenScreen{"prtContactList"}, "", 420},
            {26, separator},
            {27, "Print Audit Trail", OpenScreen{"frmPrintAudit"}, "", 421},
            {28, "Print Point of Sale Audit", OpenScreen{"frmPrintPOS"}, "", 422},
            {29, separator},
            {30, "Print Bar Code", OpenScreen{"frmBarSelection"}, "", 423},
        }};
}

MenuTable windowMenu() {
    return {"mnuWindow",
            "mnuWindowItem",
            "&Window",
            0,
            "",
            {
                {0, "Tile &Horizontally", TileHorizontally},
                {1, "Tile &Vertically", TileVertically},
                {2, "&Cascade", Cascade},
                {3, "&Arrange Icons", ArrangeIcons},
                {4, "C&lose All", CloseAll},
            }};
}

MenuTable helpMenu() {
    return {"mnuHelp",
            "mnuHelpItem",
            "&Help",
            0,
            "",
            {
                {1, "&Search For Help On...", Help},
                {2, "&Contact Support...", ContactSupport},
                {3, separator},
                {4, "&About...", OpenScreen{"frmAbout"}},
            }};
}

}  // namespace

const std::vector<MenuTable>& menuCatalogue() {
    static const std::vector<MenuTable> menus{
        fileMenu(),        editMenu(),  viewMenu(),   recordMenu(), transactionMenu(), manageCheckMenu(),
        maintenanceMenu(), adminMenu(), reportMenu(), windowMenu(), helpMenu()};
    return menus;
}

const std::vector<MenuItem>& spareRows() {
    static const std::vector<MenuItem> rows{{2, recordLockCaption, OpenScreen{"frmRecordLock"}}};
    return rows;
}

MenuAction actionOf(const MenuTable& menu, const QString& caption) {
    for (const auto* rows : {&menu.rows, &spareRows()})
        for (const MenuItem& row : *rows)
            if (caption == row.caption) return row.action;
    return {};
}

QString plainCaption(const QString& caption) {
    QString plain = caption;
    return plain.remove('&').remove("...");
}

const std::vector<ToolRow>& toolCatalogue() {
    static const std::vector<ToolRow> tools{
        {"Copy", "Copy", "copy", "mnuEditItem_3"},
        {"Cut", "Cut", "cut", "mnuEditItem_2"},
        {"Paste", "Paste", "paste", "mnuEditItem_4"},
        {"New", "New Record", "new", "mnuRecordItem_0", {""}, true},
        {"Delete", "Delete Record", "delete", "mnuRecordItem_3"},
        {"Edit", "Edit Record", "edit", "mnuRecordItem_2"},
        {"Save", "Save Record", "save", "mnuRecordItem_4"},
        {"Close", "Close Record", "close", "mnuRecordItem_5"},
        {"First", "Go to First Record", "first", "mnuRecordItem_7", {""}, true},
        {"Previous", "Go to Previous Record", "previous", "mnuRecordItem_8"},
        {"Next", "Go to Next Record", "next", "mnuRecordItem_9"},
        {"Last", "Go to Last Record", "last", "mnuRecordItem_10"},
        {"Print", "Print Record", "print", "", {"PrintRecord"}, true},
        {"Search", "Search Record", "search", "mnuRecordItem_12"},
        {"Refresh", "Refresh Record", "refresh", "mnuViewItem_3"},
        {"Exit", "Exit System", "exit", "mnuFileItem_9", {""}, true},
    };
    return tools;
}

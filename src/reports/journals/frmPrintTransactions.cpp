#include "reports/journals/frmPrintTransactions.h"

#include "reports/journals/transaction_reports.h"

static const PrintBook& book() {
    static const PrintBook transactions{
        .screen = "frmPrintTransactions",
        .caption = "Print Sales Report...",
        .optionFrame = "Print Parameters :",
        .periodFrame = "Date Range :",
        .invalidDate = invalidDateEntered,
        .excluded = "Excluded",
        .hidesReportMenu = true,
        .noFile = exclamation("No File!", "Please specify a valid Filename and Location!"),
        .check = transactionFault,
        .report = transactionReport};
    return transactions;
}

frmPrintTransactions::frmPrintTransactions() : PrintScreen(book()) {}

bool frmPrintTransactions::receive(const ScreenArguments& arguments) {
    ScreenArguments journal = arguments;
    if (journal.kind.isEmpty()) journal.kind = "S";
    return PrintScreen::receive(journal);
}

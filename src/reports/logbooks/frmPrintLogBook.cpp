#include "reports/logbooks/frmPrintLogBook.h"

#include "reports/logbooks/log_book_reports.h"

static const PrintBook& book() {
    static const PrintBook logBook{.screen = "frmPrintLogBook",
                                   .caption = "Print Log Book...",
                                   .fields = {{.name = "cboContact",
                                               .caption = "C&ustomer :",
                                               .typed = &PrintRequest::contact,
                                               .picker = PickedFrom::ContactsOfKind,
                                               .search = "cmdSearch",
                                               .whenEmpty = "All Contacts",
                                               .captionOfSupplier = "S&upplier :"}},
                                   .periodFrame = "Date Range :",
                                   .invalidDate = invalidDateEntered,
                                   .excluded = "Excluded",
                                   .check = logBookFault,
                                   .report = logBookReport};
    return logBook;
}

frmPrintLogBook::frmPrintLogBook() : PrintScreen(book()) {}

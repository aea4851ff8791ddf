#include "reports/outstanding/frmPrintOutstanding.h"

#include "platform/box.h"
#include "reports/outstanding/outstanding_reports.h"

static const PrintBook& book() {
    static const PrintBook outstanding{
        .screen = "frmPrintOutstanding",
        .caption = "Print Outstanding Report...",
        .optionFrame = "Print Parameters :",
        .printsFromPreview = true,
        .badTextFile = exclamation("No File!", "Please Specify a valid Filename and Location!"),
        .check = [](Connection&, const PrintRequest&) { return std::optional<Fault>(); },
        .report = outstandingReport};
    return outstanding;
}

frmPrintOutstanding::frmPrintOutstanding() : PrintScreen(book()) {}

#include "demo/demo_firm.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/logbooks/log_book_reports.h"
#include "reports/outstanding/outstanding_reports.h"
#include "reports/pdf_words.h"
#include "support/test_store.h"

namespace {
// A text and where it begins: in twips from the left margin and from the top of its section.
struct Place {
    const char* text;
    int left, top;
};
struct Paper {
    std::optional<ReportJobParts> (*report)(Connection& store, const PrintRequest& request);
    const char *kind, *selection;
    int margin;
    std::vector<Place> heading;
    int footTop;  // from the top of the paper; 0: that of the first text of the foot
    std::vector<Place> foot = {};
};

const Paper papers[] = {{outstandingReport,
                         "R",
                         "optDetailed",
                         750,
                         {{"Accounts Receivable Outstanding Balance", 90, 90},
                          {"Run Date :", 90, 360},
                          {"No. of Records =", 90, 630},
                          {"Reference", 90, 1170},
                          {"Ref Date", 1710, 1170},
                          {"Due Date", 2790, 1170},
                          {"Term", 3870, 1170},
                          {"Customer Name", 4950, 1170}},
                         14505,
                         {{"Page:", 90, 90}}},
                        {outstandingReport,
                         "P",
                         "optSummary",
                         1000,
                         {{"Summary of Outstanding Accounts Payable", 90, 90},
                          {"Supplier Name", 90, 1170},
                          {"Telephone No.", 4140, 1170},
                          {"Term", 6030, 1170}},
                         0,
                         {{"Total Amount =", 6840, 90}}},
                        {logBookReport,
                         "R",
                         nullptr,
                         500,
                         {{"Date Printed :", 6840, 90},
                          {"Talisay Builders' Mercantile", 1530, 450},
                          {"Cebu South Road, Tabunok, Talisay City, Cebu", 1530, 720},
                          {"(032) 555-0100", 1530, 990},
                          {"Statement of Account", 1530, 1260},
                          {"Aling Nena Sari-Sari Store", 990, 1890},
                          {"Pardo, Cebu City", 990, 2160},
                          {"D.R. No.", 90, 2610},
                          {"D.R. Date", 1530, 2610},
                          {"Remarks", 6840, 2610}},
                         0,
                         {{"Total Outstanding :", 6750, 0},
                          {"IMPORTANT :", 90, 630},
                          {"1.)", 1170, 900},
                          {"TO OUR ACCOUNTING OFFICE.", 1440, 1170},
                          {"2.)", 1170, 1440},
                          {"RECEIPT OF GOODS.", 1440, 1710},
                          {"3.)", 1170, 1980},
                          {"CERTIFIED BY :", 1440, 2520},
                          {"Teresa Lim", 1440, 2970},
                          {"AUTHORIZED SIGNATRURE", 1440, 3330},
                          {"RECEIVED BY :", 6750, 2520},
                          {"SIGNATURE OVER PRINTED NAME", 6750, 3330}}},
                        {logBookReport,
                         "P",
                         nullptr,
                         500,
                         {{"Talisay Builders' Mercantile", 90, 90},
                          {"Date Printed :", 6930, 90},
                          {"Accounts Payable Log Book", 90, 360},
                          {"P.O. No.", 90, 1080},
                          {"P.O. Date", 1800, 1080},
                          {"Due Date", 2880, 1080},
                          {"Remarks", 7200, 1080}},
                         14010,
                         {{"Page:", 90, 90}, {"Authorized Signature", 7380, 720}}}};
}  // namespace

// Read back from the file: the words of the demo firm's papers stand where people look for them.
TEST(OwedPapers, WordsStandAtTheirPlaces) {
    TestStore store;
    fillDemoFirm(store.connection(), QDate(2026, 3, 31));
    for (const Paper& paper : papers) {
        auto parts = paper.report(store.connection(),
                                  {.kind = paper.kind, .selection = paper.selection, .allDays = true});
        ASSERT_TRUE(parts);
        const auto words = pdfWords(reportOutput::pdf(runReport(*parts)));
        const auto check = [&](const std::vector<Place>& places, double sectionTop) {
            for (const Place& place : places) {
                const std::optional<QPointF> corner = cornerOf(place.text, words);
                ASSERT_TRUE(corner) << place.text;
                EXPECT_NEAR(corner->x(), (paper.margin + place.left) / 20.0, 2) << place.text;
                EXPECT_NEAR(corner->y(), sectionTop + place.top / 20.0, 2) << place.text;
            }
        };
        check(paper.heading, 750 / 20.0);
        const std::optional<QPointF> foot = cornerOf(paper.foot.front().text, words);
        ASSERT_TRUE(foot);
        check(paper.foot, paper.footTop ? paper.footTop / 20.0 : foot->y() - paper.foot.front().top / 20.0);
    }
}

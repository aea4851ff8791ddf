#include "demo/demo_firm.h"
#include "reports/documents/prtDelivery.h"
#include "reports/documents/prtPurchase.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/pdf_words.h"
#include "support/test_store.h"

namespace {
// A label that begins at its left edge, and its place from the left margin and from the top of its section.
struct Place {
    const char* text;
    int left, top;
};

struct Paper {
    const char* details;
    std::optional<ReportJobParts> (*report)(Connection&, const QString&);
    std::vector<Place> heading, foot;
};
const Paper papers[] = {{"tblSalesDetails",
                         deliveryReport,
                         {{"Talisay Builders' Mercantile", 1530, 90},
                          {"Cebu South Road, Tabunok, Talisay City, Cebu", 1530, 360},
                          {"(032) 555-0100", 1530, 630},
                          {"Delivery Receipt", 7650, 990},
                          {"Sold To :", 90, 1350},
                          {"D.R. No. :", 7650, 1350},
                          {"D.R. Date :", 7650, 1620},
                          {"Terms :", 7650, 1890},
                          {"Item Code", 2790, 2340},
                          {"Description", 3870, 2340}},
                         {{"PREPARED BY:", 90, 810},
                          {"Maria Dizon", 90, 1530},
                          {"CHECKED BY:", 3330, 810},
                          {"Jun Abella", 3330, 1530},
                          {"RECEIVED THE ABOVE ARTICLES IN GOOD CONDITION :", 6120, 810},
                          {"BY :", 6120, 1080},
                          {"CUSTOMER SIGNATURE / REPRESENTATIVE SIGNATURE", 6120, 1890}}},
                        {"tblPurchaseDetails",
                         purchaseReport,
                         {{"Talisay Builders' Mercantile", 1530, 90},
                          {"Cebu South Road, Tabunok, Talisay City, Cebu", 1530, 360},
                          {"(032) 555-0100", 1530, 630},
                          {"Purchase Order", 7650, 990},
                          {"Supplier :", 90, 1350},
                          {"P.O. No. :", 7650, 1350},
                          {"P.O. Date :", 7650, 1620},
                          {"Terms :", 7650, 1890},
                          {"Item Code", 2970, 2340},
                          {"Description", 4050, 2340}},
                         {{"PREPARED BY:", 90, 810},
                          {"Maria Dizon", 90, 1530},
                          {"CHECKED BY:", 3510, 810},
                          {"Jun Abella", 3510, 1530},
                          {"APPROVED BY:", 6930, 810},
                          {"Teresa Lim", 6930, 1530}}}};

// A document with as many lines as can be, none of them so long that it breaks.
std::pair<QString, int> documentOf(Connection& store, const QString& details) {
    Recordset found = store.execute("SELECT Reference, COUNT(*) AS Lines FROM " + details +
                                    " INNER JOIN tblItemMaster ON ItemCode = ItemID GROUP BY Reference "
                                    "HAVING MAX(LENGTH(Description)) < 20 ORDER BY Lines DESC, Reference");
    return {found.text("Reference"), static_cast<int>(found.integer("Lines"))};
}
}  // namespace

// Read back from the file: the labels of the demo firm's papers stand where people look for them.
TEST(DemoPapers, LabelsStandAtTheirPlaces) {
    TestStore store;
    fillDemoFirm(store.connection(), QDate(2026, 3, 31));
    for (const Paper& paper : papers) {
        const auto [number, lines] = documentOf(store.connection(), paper.details);
        std::optional<ReportJobParts> parts = paper.report(store.connection(), number);
        ASSERT_TRUE(parts);
        const auto words = pdfWords(reportOutput::pdf(runReport(*parts)));
        const auto check = [&](const std::vector<Place>& places, int sectionTop) {
            for (const Place& place : places) {
                const std::optional<QPointF> corner = cornerOf(place.text, words);
                ASSERT_TRUE(corner) << place.text;
                EXPECT_NEAR(corner->x(), (650 + place.left) / 20.0, 2) << place.text;
                EXPECT_NEAR(corner->y(), (sectionTop + place.top) / 20.0, 2) << place.text;
            }
        };
        check(paper.heading, 750);
        check(paper.foot, 750 + 2670 + lines * 285);
    }
}

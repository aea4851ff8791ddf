#include "tools/search/search_report.h"

#include "reports/frame/report_job.h"
#include "support/test_store.h"

namespace {

class SearchReportTest : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addContact(store(), {.id = "1", .name = "Rizal Mill", .terms = amount(30)});
        addItem(store(), {.code = "1001", .description = "RICE", .cost = amount(7)});
        const std::vector<LineRow> lines{{.item = "1001", .quantity = amount(5), .price = amount(7)}};
        addSale(store(), {.number = "03-1", .date = QDate(2026, 3, 2), .contactId = "1", .lines = lines});
        addPurchase(store(), {.number = "03-2", .date = QDate(2026, 3, 2), .contactId = "1", .lines = lines});
        insertRow(store(), "tblReceiptMaster", "PayNo, PaymentDate, CustomerNo, PaymentAmount",
                  {17, QDate(2026, 3, 2), "1", bound(amount(12))});
    }
    // The print-out as plain text, blanks in one; empty: there is nothing to print.
    QString paper(const SearchRequest& request) {
        auto report = searchReport(store(), std::get<Search>(prepareSearch(request)));
        if (!report) return {};
        ReportJob job(std::move(*report));
        while (job.layOutPage()) {
        }
        return reportOutput::plainText(job.pages()).simplified();
    }
};

TEST_F(SearchReportTest, PrintsWhatTheListShows) {
    const std::pair<SearchRequest, QStringList> papers[] = {
        {{"Inquire Item", {}, {"", "ric"}, {}},
         {"Item Inventory Listing", "There are 1 Records in the Item Master File Database...",
          "1001 RICE PC 7.00", "Total Inventory Amount ="}},
        {{"Inquire Contact Balance", {}, {"mill"}, {}},
         {"Contact Directory", "There are 1 Records in the Contact Master File Database...", "Rizal Mill",
          "30 Days 0.00 23.00 35.00"}},
        {{"Inquire Transaction Balance", "Sales Journal", {"03"}, {}},
         {"Sales Journal Search", "03-1 03/02/2026 30 Days 04/01/2026 35.00 35.00 Rizal Mill"}},
        {{"Inquire Transaction Balance", "Receipt Journal", {"17"}, {}},
         {"17 03/02/2026 ---NA--- ---NA--- 12.00 ---NA--- Rizal Mill"}},
    };
    for (const auto& [request, texts] : papers) {
        const QString printed = paper(request);
        for (const QString& text : texts)
            EXPECT_TRUE(printed.contains(text)) << qPrintable(text) << "\n" << qPrintable(printed);
    }
    EXPECT_EQ(paper({"Inquire Item", {}, {"moon"}, {}}), "");
}

}  // namespace

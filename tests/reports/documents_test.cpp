#include "platform/clock.h"
#include "platform/store/connection.h"
#include "reports/audit/prtAudit.h"
#include "reports/documents/prtDelivery.h"
#include "reports/documents/prtPurchase.h"
#include "reports/frame/page_lines.h"
#include "reports/frame/report_fonts.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/golden.h"
#include "reports/inventory/prtReorder.h"
#include "reports/inventory/prtStockCard.h"
#include "reports/journals/transaction_reports.h"
#include "reports/lists/prtContactList.h"
#include "reports/lists/prtItemList.h"
#include "reports/logbooks/log_books.h"
#include "reports/outstanding/outstanding_reports.h"
#include "reports/pdf_words.h"
#include "support/test_store.h"

#include <QFontMetrics>

namespace {
using Report = std::function<std::optional<ReportJobParts>(Connection&, const QString&)>;

ReportPages pagesOf(std::optional<ReportJobParts> report) {
    if (!report) return {};
    return runReport(*report);
}

// The heading, signatures and masters that the papers are made from.
void fillFirm(Connection& store) {
    store.run("DELETE FROM tblSystemProfile");
    store.run(
        {"INSERT INTO tblSystemProfile (CompanyName, CompanyAddress, CompanyTelNo, Prepared, Checked, "
         "Approved) VALUES (?, ?, ?, ?, ?, ?)",
         {"Mabini Trading", "12 Colon Street, Cebu City", "(032) 255-0101", "Maria Dizon", "Jun Abella",
          "Rosa Abella"}});
    addContact(store, {.id = "C1", .name = "Ana Cruz & Sons", .terms = amount(30)});
    store.run({"UPDATE tblContactMaster SET Address = ?, TelNo = ?", {"7 Mango Avenue", "0917 555 0101"}});
    addItem(store, {.code = "NAIL-2", .description = "Common nail 2 inch", .unit = "KG"});
    addItem(store, {.code = "CEM-40", .description = "Portland cement in a bag of forty kilograms"});
}

// The document of one kind of paper, its lines as a table: item, quantity, price, discount.
struct Paper {
    const char* name;
    Report report;
    void (*add)(Connection&, const DocumentRow&);
    const char* lines;
    const char* master;
};
const Paper papers[] = {{"delivery", deliveryReport, addSale, "tblSalesDetails", "tblSalesMaster"},
                        {"purchase", purchaseReport, addPurchase, "tblPurchaseDetails", "tblPurchaseMaster"}};

class Documents : public ::testing::TestWithParam<Paper> {
  protected:
    void SetUp() override { fillFirm(store()); }
    Connection& store() { return store_.connection(); }
    void add(std::vector<LineRow> lines) {
        GetParam().add(store(), {"000123", QDate(2026, 3, 9), "C1", std::move(lines)});
    }
    void run(const QString& statement, const QVariantList& values = {}) { store().run({statement, values}); }
    ReportPages pages() { return pagesOf(GetParam().report(store(), "000123")); }
    QString golden(const char* what) { return QString("%1_%2.txt").arg(GetParam().name, what); }

    TestStore store_;
};
}  // namespace

TEST_P(Documents, LinesAndTotalAsOnThePaper) {
    const Paper& paper = GetParam();
    add({{"NAIL-2", amount(2), amount(100), amount(10)},
         {"CEM-40", amount(12.5), amount(1234.5678)},
         {"GONE", amount(1), amount(0.0001), amount(50)},
         {"NAIL-2", amount(3), amount(80)}});
    run(QString("UPDATE %1 SET Discount = NULL WHERE UnitPrice = ?").arg(paper.lines), {bound(amount(80))});
    run(QString("UPDATE %1 SET Remarks = ?").arg(paper.master), {"Deliver before noon.\nRing twice."});
    compareWithGolden(golden("lines"), reportOutput::plainText(pages()));
}

TEST_P(Documents, ThreePages) {
    add(std::vector<LineRow>(85, {"NAIL-2", amount(1), amount(10)}));
    const ReportPages three = pages();
    EXPECT_EQ(three.pages.size(), 3u);
    compareWithGolden(golden("three_pages"), reportOutput::plainText(three));
}

// Wherever the first page happens to end, the last one has a line above the signatures, and no line is lost.
TEST_P(Documents, NoPageHasSignaturesAlone) {
    for (int lines = 28; lines <= 44; ++lines) {
        run(QString("DELETE FROM %1").arg(GetParam().lines));
        run(QString("DELETE FROM %1").arg(GetParam().master));
        add(std::vector<LineRow>(static_cast<size_t>(lines), {"NAIL-2", amount(1), amount(10)}));
        const ReportPages paper = pages();
        const QStringList texts = reportOutput::plainText(paper).split('\f');
        ASSERT_EQ(texts.size(), lines <= 32 ? 1 : 2) << lines;
        EXPECT_EQ(texts.join("").count("NAIL-2"), lines);
        EXPECT_TRUE(texts.last().contains("NAIL-2") && texts.last().contains("PREPARED BY:")) << lines;
        EXPECT_EQ(texts.last().contains("Page 2 of 2"), texts.size() == 2) << lines;
        EXPECT_EQ(texts.first().contains("Page "), texts.size() == 2) << lines;
        for (const ReportPage& page : paper.pages)
            for (const PageItem& item : page.items) EXPECT_LE(item.place.bottom(), 15840 - 750);
    }
}

TEST_P(Documents, NothingForANumberWithoutLines) {
    add({});
    EXPECT_FALSE(GetParam().report(store(), "000123"));
    EXPECT_FALSE(GetParam().report(store(), "' OR '1'='1"));
}

// On paper of either rendering every word stands within its control, though letters of a fixed pitch are
// broad and these figures are long.
TEST_P(Documents, NoWordLeavesItsControl) {
    add({{"NAIL-2", amount(1234567.5), amount(9999999.1234), amount(12.5)}});
    const ReportPages paper = pages();
    for (const auto rendering : {reportOutput::Rendering::Full, reportOutput::Rendering::DotMatrix})
        for (const PdfWord& word : pdfWords(reportOutput::pdf(paper, rendering))) {
            if (word.text.endsWith('%')) continue;  // stands in two controls
            EXPECT_TRUE(std::ranges::any_of(paper.pages[0].items, [&word](const PageItem& item) {
                const QRectF control(QPointF(item.place.topLeft()) / 20, QSizeF(item.place.size()) / 20);
                return item.text.contains(word.text) && control.left() < word.place.left() + 1 &&
                       control.right() > word.place.right() - 1;
            })) << qPrintable(word.text);
        }
}

INSTANTIATE_TEST_SUITE_P(Papers, Documents, ::testing::ValuesIn(papers),
                         [](const auto& paper) { return std::string(paper.param.name); });

TEST(Reorder, ItemsBelowTheirLevel) {
    TestStore store;
    fillFirm(store.connection());
    addItem(store.connection(), {.code = "AT", .description = "At its level", .orderLevel = amount(5)});
    store.connection().run("UPDATE tblItemMaster SET Balance = 50000 WHERE ItemCode = 'AT'");
    EXPECT_FALSE(reorderReport(store.connection()));
    addItem(store.connection(),
            {.code = "LOW", .description = "Zinc sheet", .cost = amount(1234.5), .orderLevel = amount(1000)});
    addItem(store.connection(), {.code = "NONE", .description = "Angle bar", .orderLevel = amount(0.01)});
    store.connection().run("UPDATE tblItemMaster SET SupplierCode = 'C1' WHERE ItemCode = 'LOW'");
    Clock::freeze(QDateTime(QDate(2026, 3, 9), QTime(14, 5, 6)));
    compareWithGolden("reorder.txt", reportOutput::plainText(pagesOf(reorderReport(store.connection()))));
    Clock::unfreeze();
}

TEST(Papers, NoLabelIsCutAtItsControl) {
    const QList<const ReportLayout*> papers{&prtDelivery(), &prtPurchase(),          &prtReorder(),
                                            &prtAudit(),    &prtReceivableLogBook(), &prtPayableLogBook(),
                                            &prtItemList(), &prtContactList(),       &prtStockCard()};
    for (const ReportLayout* layout : papers + transactionLayouts() + outstandingLayouts())
        for (const ReportSection& section : layout->sections)
            for (const ReportControl& control : section.controls) {
                EXPECT_LE(control.left + control.width, layout->page.printWidth) << qPrintable(control.name);
                const QFontMetrics metrics(fontInTwips(control.style));
                const int narrowest = control.isWhole ? 5 : control.style.points;
                const QRect place(layout->page.left + control.left, 0, control.width, control.height);
                const bool hasTwoLines = control.height == 450;
                for (const QString& text :
                     hasTwoLines ? control.text.split(' ') : QStringList{control.text}) {
                    EXPECT_LE(metrics.horizontalAdvance(text) * narrowest / control.style.points,
                              control.width)
                        << qPrintable(layout->name + ": " + text);
                    EXPECT_LE(text.size(), columnsOf({control.kind, place, text, 0}))
                        << qPrintable(layout->name + " as plain text: " + text);
                }
            }
}

#include "masters/field_widths.h"
#include "reports/checks/check_report.h"
#include "reports/checks/prtVoucher.h"
#include "reports/documents/prtDelivery.h"
#include "reports/documents/prtPurchase.h"
#include "reports/documents/prtSalesInvoice.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/pdf_words.h"
#include "reports/quotations/prtQuotation.h"
#include "support/test_store.h"

#include <algorithm>
#include <tuple>

namespace {
// What every text of the papers is made of: its pattern goes on up to the length that is stored.
QString full(const QString& pattern, int length) {
    QString text = pattern.repeated(length / pattern.size() + 1).left(length);
    if (text.endsWith(' ')) text.back() = 'W';
    return text;
}

// A text as the paper shows it: in the column of its control, whose layout may stand within another one.
struct Shown {
    const ReportLayout* layout;
    const char* control;
    QString text;
    int within = 0;  // twips from the margin
};

const ReportControl& controlOf(const ReportLayout& layout, const QString& name) {
    for (const ReportSection& section : layout.sections)
        for (const ReportControl& control : section.controls)
            if (control.name == name) return control;
    throw std::logic_error(name.toStdString());
}

// Without blanks: a break of a line takes one away.
QString letters(QString text) { return text.remove(' ').remove('\n'); }

// The letters of the words that stand wholly in a column, in points, from the top.
QString lettersBetween(std::vector<PdfWord> words, double left, double right) {
    std::erase_if(words, [&](const PdfWord& word) {
        return word.place.left() < left - 1 || word.place.right() > right + 1;
    });
    std::ranges::sort(words, {}, [](const PdfWord& word) {
        return std::tuple(word.page, std::lround(word.place.top()), word.place.left());
    });
    QString all;
    for (const PdfWord& word : words) all += word.text;
    return all;
}

class FullPapers : public SessionTest, public ::testing::WithParamInterface<const char*> {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        fillMasters();
        const LineRow line{code, amount(1), amount(10)};
        addSale(store(), {sale, QDate(2026, 3, 9), "C1", {line}});
        addPurchase(store(), {purchase, QDate(2026, 3, 9), "C1", {line}});
        run("UPDATE tblSalesMaster SET Remarks = ?", {remarks});
        run("UPDATE tblPurchaseMaster SET Remarks = ?", {remarks});
        for (const char* table : {"tblSalesDetails", "tblPurchaseDetails"})
            run(QString("UPDATE %1 SET Unit = ?").arg(table), {unit});
        insertRow(store(), "tblReceiptMaster", "PayNo, CustomerNo, PaymentDate",
                  {payNo, "C1", QDate(2026, 3, 9)});
        insertRow(store(), "tblReceiptDetails", "ZevRef, PayCode, Reference, Amount, CheckNo",
                  {1, payNo, sale, bound(amount(10)), checkNo});
        fillVoucher();
    }

    void run(const QString& statement, const QVariantList& values) { store().run({statement, values}); }
    QString text(const char* mark, int length) const { return full(mark + QString(GetParam()), length); }

    void fillMasters() {
        run("UPDATE tblSystemProfile SET CompanyName = ?, CompanyAddress = ?, CompanyTelNo = ?, Prepared = "
            "?, "
            "Checked = ?, Approved = ?",
            {company, address, telNo, prepared, checked, approved});
        addContact(store(), {.id = "C1", .name = name, .terms = amount(922337203685.1234)});
        run("UPDATE tblContactMaster SET Address = ?, TelNo = ?", {home, phone});
        addItem(store(), {.code = code, .description = description, .unit = unit});
    }

    void fillVoucher() {
        insertRow(store(), "tblDisbursementMaster",
                  "VoucherNo, VoucherDate, VoucherAmount, ContactNo, Remarks",
                  {voucher, QDate(2026, 3, 9), bound(amount(10)), "C1", remarks});
        insertRow(store(), "tblDisbursementDetails", "VoucherID, PuchaseID, PayAmount, Particulars",
                  {voucher, purchase, bound(amount(10)), particulars});
        insertRow(store(), "tblChecks", "ZevRef, VoucherID, CheckNo, CheckAmount, ContactNo",
                  {1, voucher, checkNo, bound(amount(10)), "C1"});
    }

    // On one sheet, however high, so that no page parts a text.
    void expectWhole(std::optional<ReportJobParts> parts, const QList<Shown>& shown) {
        ASSERT_TRUE(parts);
        ReportLayout high = parts->layout;
        high.page.paperHeight = 60000;
        const ReportPages pages = runReport(high, *parts->rows, parts->events, parts->texts);
        ASSERT_EQ(pages.pages.size(), 1u);
        for (const auto rendering : {reportOutput::Rendering::Full, reportOutput::Rendering::DotMatrix}) {
            const std::vector<PdfWord> words = pdfWords(reportOutput::pdf(pages, rendering));
            for (const Shown& each : shown) {
                const ReportControl& control = controlOf(*each.layout, each.control);
                const double left = (high.page.left + each.within + control.left) / 20.0;
                const QString read = lettersBetween(words, left, left + control.width / 20.0);
                EXPECT_TRUE(read.contains(letters(each.text))) << each.control << ": " << qPrintable(read);
            }
        }
    }

    // What all papers of goods and payments show.
    QList<Shown> heading(const ReportLayout& paper, const QString& number) const {
        return {{&paper, "lblCompany", company},   {&paper, "lblAddress", address},
                {&paper, "lblTelNo", telNo},       {&paper, "txtContactName", name},
                {&paper, "txtAddress", home},      {&paper, "txtAddress", phone},
                {&paper, "txtNumber", number},     {&paper, "txtTerms", "922337203685.1234 Days"},
                {&paper, "lblPrepared", prepared}, {&paper, "lblChecked", checked}};
    }
    QList<Shown> goods(const ReportLayout& paper) const {
        return {{&paper, "txtUnit", unit},
                {&paper, "txtItemCode", code},
                {&paper, "txtProductDes", description},
                {&paper, "txtParticulars", remarks}};
    }

    const QString company = text("CN", width::contactName), address = text("CA", width::address),
                  telNo = text("CT", width::telNo), prepared = text("PR", width::contactName),
                  checked = text("CH", width::contactName), approved = text("AP", width::contactName),
                  name = text("NA", width::contactName), home = text("HO", width::address),
                  phone = text("PH", width::telNo), code = letters(text("IC", width::itemCode)),
                  description = text("DE", width::description), unit = text("UN", width::unit),
                  sale = text("S", width::documentNo), purchase = text("P", width::documentNo),
                  voucher = text("V", width::documentNo), checkNo = text("K", width::documentNo),
                  remarks = text("RE", width::remarks), particulars = text("PT", width::remarks);
    const qint64 payNo = 2147483647;
};
}  // namespace

TEST_P(FullPapers, DeliveryReceipt) {
    const ReportLayout& paper = prtDelivery();
    expectWhole(deliveryReport(store(), sale), heading(paper, sale) + goods(paper));
}

TEST_P(FullPapers, PurchaseOrder) {
    const ReportLayout& paper = prtPurchase();
    expectWhole(purchaseReport(store(), purchase),
                heading(paper, purchase) + goods(paper) + QList<Shown>{{&paper, "lblApproved", approved}});
}

TEST_P(FullPapers, SalesInvoice) {
    const ReportLayout& paper = prtSalesInvoice();
    const QString number = QString::number(payNo);
    expectWhole(salesInvoiceReport(store(), number),
                heading(paper, number) + QList<Shown>{{&paper, "txtReference", sale},
                                                      {&paper, "txtCheckNo", checkNo},
                                                      {&paper, "txtDRRemarks", remarks}});
}

TEST_P(FullPapers, Voucher) {
    const ReportLayout &paper = prtVoucher(), &paid = prtVoucherReference(), &checks = prtVoucherChecks();
    const int left = controlOf(paper, "subReference").left, right = controlOf(paper, "subChecks").left;
    expectWhole(voucherReport(store(), voucher), {{&paper, "lblCompany1", company},
                                                  {&paper, "txtSlipNumber", voucher},
                                                  {&paper, "txtSlipPayee", name},
                                                  {&paper, "lblCompany2", company},
                                                  {&paper, "lblAddress", address},
                                                  {&paper, "lblTelNo", telNo},
                                                  {&paper, "txtPayee", name},
                                                  {&paper, "txtRemarks", remarks},
                                                  {&paper, "txtNumber", voucher},
                                                  {&paid, "txtRefNo", purchase, left},
                                                  {&paid, "txtRemarks", particulars, left},
                                                  {&checks, "txtNo", checkNo, right},
                                                  {&paper, "txtChecked", checked},
                                                  {&paper, "txtApproved", approved}});
}

// What a bank reads is whole, and stays where its paper has a line for it.
TEST_P(FullPapers, Checks) {
    for (const CheckPaper* paper :
         {&prtCheckOnly(), &prtCheckOnlySmall(), &prtCheckOnlyDotMatrix(), &prtCheckOnlySmallDotMatrix()}) {
        const ReportLayout& layout = paper->layout;
        SCOPED_TRACE(layout.name.toStdString());
        expectWhole(checkReport(store(), *paper, voucher), {{&layout, "txtPayee", name},
                                                            {&layout, "txtVoucher", voucher},
                                                            {&layout, "txtAmountInWords", "Ten Pesos Only"}});
        const auto parts = checkReport(store(), *paper, voucher);
        const int line = controlOf(layout, "txtAmountInWords").top;
        const ReportPages pages = runReport(layout, *parts->rows, parts->events);
        for (const PageItem& item : pages.pages[0].items) {
            const bool isPayee = item.place.top() < line && item.text.contains("NA");
            EXPECT_TRUE(!isPayee || item.place.bottom() < line);
            EXPECT_TRUE(!item.text.contains("Pesos") || item.place.top() == line);
        }
    }
}

TEST_P(FullPapers, Quotation) {
    const ReportLayout& paper = prtQuotation();
    expectWhole(quotationReport(store(), {.selection = "Item Code", .contact = name}),
                {{&paper, "lblCompany", company},
                 {&paper, "txtCustomer", name},
                 {&paper, "txtAddress", home},
                 {&paper, "txtItemCode", code},
                 {&paper, "txtDescription", description},
                 {&paper, "txtUnit", unit},
                 {&paper, "lblApproved", approved}});
}

INSTANTIATE_TEST_SUITE_P(Letters, FullPapers, ::testing::Values("WM", "Wm illi Mixed "),
                         [](const auto& pattern) { return std::string(pattern.index ? "Mixed" : "Wide"); });

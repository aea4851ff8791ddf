#include "reports/every_report.h"

#include "demo/demo_firm.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"
#include "reports/frame/save_as.h"
#include "reports/read_outputs.h"
#include "reports/sales_by_town.h"
#include "reports/sheet_cells.h"
#include "support/test_store.h"

#include <QMap>
#include <QRegularExpression>
#include <algorithm>
#include <limits>

namespace {
// Numbers, dates and codes, in order.
QStringList figuresIn(const QString& text) {
    static const QRegularExpression figure("[(-]?[0-9][0-9,./:)-]*");
    QStringList figures;
    for (auto found = figure.globalMatch(text); found.hasNext();) figures += found.next().captured();
    figures.sort();
    return figures;
}

QStringList without(QStringList figures, const QStringList& found) {
    QStringList missing;
    std::ranges::set_difference(figures, found, std::back_inserter(missing));
    return missing;
}

QString figuresOf(const ReportPage& page, const std::function<bool(const PageItem&)>& counts) {
    QString text;
    for (const PageItem& item : page.items)
        if (item.isFigure && counts(item)) text += item.text + ' ';
    return text;
}

// A sheet tells a heading once, and no page numbers.
QString figuresOfSheet(const ReportPages& pages) {
    QString text;
    for (const ReportPage& page : pages.pages)
        text += figuresOf(page, [&](const PageItem& item) {
            const SectionKind section = pages.controls[item.control].section;
            return item.band > 0 && section != SectionKind::PageFooter &&
                   (section != SectionKind::PageHeader || &page == &pages.pages.front());
        });
    return text;
}

void expectTheSameFigures(const QString& name, const ReportPages& pages) {
    for (const Output& output : pageOutputs()) {
        const QStringList read = output.read(pages);
        ASSERT_EQ(read.size(), static_cast<qsizetype>(pages.pages.size()))
            << qPrintable(name) << ' ' << output.name;
        for (qsizetype page = 0; page < read.size(); ++page) {
            const QString wanted =
                figuresOf(pages.pages[static_cast<std::size_t>(page)], [](const PageItem&) { return true; });
            EXPECT_EQ(without(figuresIn(wanted), figuresIn(read[page])), QStringList())
                << qPrintable(name) << ' ' << output.name << " page " << page + 1;
        }
    }
    const SheetFile sheet = readSheet(reportOutput::spreadsheet(pages));
    EXPECT_EQ(without(figuresIn(figuresOfSheet(pages)), figuresIn(sheetText(sheet))), QStringList())
        << qPrintable(name) << " sheet";
    EXPECT_EQ(sheet.frozenLines, 1);
}
}  // namespace

TEST(EveryReport, HasTheSameFiguresInEveryOutput) {
    TestStore store;
    fillDemoFirm(store.connection(), Clock::today());
    for (const KnownReport& report : everyReport()) {
        auto parts = report.make(store.connection());
        ASSERT_TRUE(parts) << qPrintable(report.name);
        expectTheSameFigures(report.name, runReport(*parts));
    }
}

// Of any size and sign, and where they stand close.
TEST(EveryReport, HoldsTheLargestFigures) {
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const auto amountAt = [](const char* name, int left, const char* numberMask) {
        return field(name, "Amount", left, 0, 3000, 225, rightAligned(), numberMask);
    };
    const ReportLayout layout{
        "prtLargest",
        "Largest...",
        letterPortrait(720, 720, 10800),
        {section(SectionKind::Detail, 300,
                 {amountAt("txtPlain", 0, nullptr), amountAt("txtAmount", 3100, mask::amount),
                  amountAt("txtSigned", 6200, mask::signedAmount)})}};
    QList<QStringList> amounts;
    for (const qint64 size :
         {qint64(0), qint64(1), qint64(123456789), qint64(9999999999999), qint64(1234567890123456), most})
        for (const qint64 signedSize : {size, -size})
            amounts += QStringList{Currency::fromTenThousandths(signedSize).toPlainText()};
    class Amounts : public Rows {
      public:
        using Rows::Rows;
        Currency currency(const QString& column) const override { return parseNumber(text(column)).value(); }
    } rows({"Amount"}, amounts);
    expectTheSameFigures("largest", runReport(layout, rows, {}));
}

TEST(EveryReport, IsSavedUnderItsTitleAndNumber) {
    TestStore store;
    fillDemoFirm(store.connection(), Clock::today());
    const QMap<QString, QString> names{
        {"prtDelivery", "Delivery Receipt [0-9-]+"}, {"prtSalesInvoice", "Sales Invoice [0-9-]+"},
        {"prtVoucher", "Payment Voucher [0-9-]+"},   {"prtContactList", "Contact Directory"},
        {"prtDiscrepancy", "Discrepancy Report"},    {"P optSummary", "Purchases Summary Report"}};
    int seen = 0;
    for (const KnownReport& report : everyReport()) {
        if (!names.contains(report.name)) continue;
        ++seen;
        auto parts = report.make(store.connection());
        const QString name = proposedName(runReport(*parts));
        EXPECT_TRUE(QRegularExpression('^' + names[report.name] + '$').match(name).hasMatch())
            << qPrintable(name);
    }
    EXPECT_EQ(seen, names.size());
}

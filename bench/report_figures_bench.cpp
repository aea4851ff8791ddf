// The figures of the reports over books of several sizes, without pages, against bare passes over the
// driver's handle that compute the same (limit: twice; the figures are compared); what a whole run to pages
// takes, and what share of it is over when the first page can be shown (limit: a twentieth, where the report
// has no sum over all rows to make before its first line). Times are those of the processor, so that other
// programs do not count.
//
// The reports on the ledger cost it before they run, and the item list sums up the stock: the books here are
// costed already, and what that pass takes with its status screen is told apart, and taken off the report's.
//
//     report_figures_bench [sales documents ... = 1000 20000]
#include "bench/bare_figures.h"
#include "bench/books_generator.h"
#include "books/balances.h"
#include "books/item_costs.h"
#include "books/stock_valuation.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "platform/progress_scope.h"
#include "platform/store/transaction.h"
#include "platform/ui/frmStatus.h"
#include "reports/frame/report_run.h"
#include "reports/frame/report_walk.h"
#include "reports/inventory/frmPrintInventory.h"
#include "reports/inventory/prtStockCard.h"
#include "reports/journals/transaction_reports.h"
#include "reports/lists/prtContactList.h"
#include "reports/logbooks/log_book_reports.h"
#include "reports/outstanding/outstanding_reports.h"
#include "reports/quotations/prtSalesQuota.h"

#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {
using Made = std::optional<ReportJobParts>;
using Pass = std::function<void()>;

struct MeasuredReport {
    const char* name;
    std::function<Made(Connection&)> make;
    std::function<bare::Printed(sqlite3*)> bare;
    std::function<void(Connection&)> before = {};  // the passes that it runs before it
};

// All figures of a report in the order of its bands, as its pages would show them.
class Figures {
  public:
    explicit Figures(ReportJobParts report)
        : report_(std::move(report)),
          total_(report_.layout.section(SectionKind::ReportFooter), report_.layout) {
        addGroup(SectionKind::GroupHeader1, SectionKind::GroupFooter1);
        addGroup(SectionKind::GroupHeader2, SectionKind::GroupFooter2);
    }

    bare::Printed all() {
        while (rows().next()) takeRow();
        rows().lookBack(true);
        closeGroups(0);
        print(report_.layout.section(SectionKind::ReportFooter), &total_);
        return printed_;
    }

  private:
    struct Group {
        const ReportSection* header;
        const ReportSection* footer;
        Sums sums;
        QString value = {};
        bool isOpen = false;
    };
    ReportSource& rows() { return *report_.rows; }

    void addGroup(SectionKind header, SectionKind footer) {
        const ReportSection* foot = report_.layout.section(footer);
        if (const ReportSection* head = report_.layout.section(header))
            groups_.push_back({head, foot, Sums(foot, report_.layout)});
    }

    void takeRow() {
        std::size_t same = 0;
        while (same < groups_.size() && groups_[same].isOpen &&
               groups_[same].value == rows().text(groups_[same].header->groupColumn))
            ++same;
        if (same < groups_.size() && groups_[same].isOpen) {
            rows().lookBack(true);
            closeGroups(same);
            rows().lookBack(false);
        }
        for (std::size_t group = same; group < groups_.size(); ++group) open(groups_[group]);
        print(report_.layout.section(SectionKind::Detail));
    }

    void open(Group& group) {
        group.value = rows().text(group.header->groupColumn);
        group.isOpen = true;
        print(group.header);
    }

    void closeGroups(std::size_t outermost) {
        for (std::size_t group = groups_.size(); group-- > outermost;) {
            print(groups_[group].footer, &groups_[group].sums);
            groups_[group].sums.clear();
        }
    }

    void print(const ReportSection* section, const Sums* sums = nullptr) {
        if (!section) return;
        SectionFields fields(*section);
        for (qsizetype at = 0; sums && at < section->controls.size(); ++at)
            if (section->controls[at].shows == Shows::Sum)
                fields.state(at).figure = sums->of(section->controls[at]);
        if (const auto event = report_.events.constFind(on(section->kind)); event != report_.events.cend())
            (*event)(rows(), fields);
        for (Group& group : groups_) group.sums.add(section, rows(), &fields);
        total_.add(section, rows(), &fields);
        take(fields);
    }

    void take(const SectionFields& fields) {
        std::vector<qint64> figures;
        for (qsizetype at = 0; at < fields.section().controls.size(); ++at) {
            const ReportControl& control = fields.section().controls[at];
            if (control.kind != ControlKind::Field || !(control.style.alignment & Qt::AlignRight)) continue;
            const auto& figure = fields.state(at).figure;
            figures.push_back((figure ? *figure : rows().currency(control.column)).tenThousandths());
        }
        if (!figures.empty()) printed_.band(figures);
    }

    ReportJobParts report_;
    Sums total_;
    std::vector<Group> groups_;
    bare::Printed printed_;
};

double processorTime(const Pass& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) * 1000.0 / CLOCKS_PER_SEC;
}

double median(std::vector<double> times) {
    std::ranges::sort(times);
    return times[times.size() / 2];
}

struct Times {
    double own, bare, before;
};

Times measured(Connection& store, const MeasuredReport& report, int runs) {
    std::vector<double> own, bareTimes, before;
    for (int run = 0; run < runs; ++run) {
        bare::Printed ours, wanted;
        before.push_back(report.before ? processorTime([&] { report.before(store); }) : 0);
        const double all = processorTime([&] { ours = Figures(report.make(store).value()).all(); });
        own.push_back(all - before.back());
        bareTimes.push_back(processorTime([&] { wanted = report.bare(store.handle()); }));
        if (!(ours == wanted))
            qFatal("%s: the figures differ, of %lld and %lld bands", report.name, ours.bands(),
                   wanted.bands());
    }
    return {median(own), median(bareTimes), median(before)};
}

// To the first page, and to the last, without the passes before.
void measurePages(Connection& store, const MeasuredReport& report, double before) {
    std::unique_ptr<ReportJobParts> made;
    const double making =
        processorTime([&] { made = std::make_unique<ReportJobParts>(report.make(store).value()); }) - before;
    ReportRun run(made->layout, *made->rows, made->events, made->texts);
    const double first = making + processorTime([&] { run.layOutPage(); });
    const double all = first + processorTime([&] {
                           while (run.layOutPage()) {
                           }
                       });
    std::printf("   %8zu pages %10.1f ms, the first after %.3f of it", run.pages().pages.size(), all,
                first / all);
}

void measure(Connection& store, const MeasuredReport& report, int runs) {
    const Times times = measured(store, report, runs);
    std::printf("%-30s %9.2f ms %9.2f ms %6.2f", report.name, times.own, times.bare, times.own / times.bare);
    measurePages(store, report, times.before);
    if (times.before > 0) std::printf("   before it %.1f ms", times.before);
    std::printf("\n");
    std::fflush(stdout);
}

// With the status screen that a person sees meanwhile.
void cost(Connection& store) {
    frmStatus status;
    RecomputeStockValuation(store, status);
}

void costAndSumUp(Connection& store) {
    frmStatus status;
    RecomputeInventoryBalances(store, status);
    RecomputeStockValuation(store, status);
}

void costItem(Connection& store, const QString& item) {
    frmStatus status;
    const ProgressScope scope(status, "System is Processing Stock Card...", 0);
    RecomputeItemCosts(store, item);
}

std::function<Made(Connection&)> journal(const char* kind, const char* option) {
    return [=](Connection& store) {
        return transactionReport(store, {.kind = kind, .selection = option, .allDays = true});
    };
}

std::function<Made(Connection&)> outstanding(const char* kind, const char* option) {
    return [=](Connection& store) { return outstandingReport(store, {.kind = kind, .selection = option}); };
}

std::function<Made(Connection&)> logBook(const char* kind) {
    return [=](Connection& store) { return logBookReport(store, {.kind = kind, .allDays = true}); };
}

std::vector<MeasuredReport> reports(const QString& item) {
    return {
        {"sales summary", journal("S", "optSummary"), bare::salesSummary},
        {"sales details", journal("S", "optDetailed"), bare::salesDetails},
        {"profitability summary", journal("PROFIT", "optSummary"), bare::profitSummary, cost},
        {"profitability details", journal("PROFIT", "optDetailed"), bare::profitDetails, cost},
        {"item list with values", [](Connection& store) { return inventoryReport(store, {.allDays = true}); },
         bare::itemList, costAndSumUp},
        {"contact list with balances",
         [](Connection& store) {
             return contactListReport(store, "SELECT * FROM tblContactMaster ORDER BY ContactName", "");
         },
         bare::contactList},
        {"stock card of busiest item",
         [item](Connection& store) { return stockCardReport(store, {.allDays = true, .item = item}); },
         [code = item.toStdString()](sqlite3* engine) { return bare::stockCard(engine, code); },
         [item](Connection& store) { costItem(store, item); }},
        {"statement of account, all", logBook("R"), bare::receivableLogBook},
        {"payable log book, all", logBook("P"), bare::payableLogBook},
        {"receivable outstanding", outstanding("R", "optDetailed"), bare::receivableDocuments},
        {"receivable summary", outstanding("R", "optSummary"), bare::receivableContacts},
        {"payable outstanding", outstanding("P", "optDetailed"), bare::payableDocuments},
        {"payable summary", outstanding("P", "optSummary"), bare::payableContacts},
        {"sales quota", [](Connection& store) { return salesQuotaReport(store, {.allDays = true}); },
         bare::salesQuota}};
}

// The generator's books, with what payments granted, the receipts and vouchers that they belong to, and every
// balance and cost as the program keeps them.
void makeBooks(Connection& store, qint64 documents) {
    generateBooks(store, documents);
    Transaction unit(store);
    for (const char* statement :
         {"UPDATE tblReceiptDetails SET Discount = 50000, DiscountAmount = Amount / 20 WHERE ZevRef % 3 = 0",
          "UPDATE tblReceiptDetails SET PayCode = ZevRef",
          "INSERT INTO tblReceiptMaster (PayNo, CustomerNo, PaymentDate, PaymentAmount, TotalDiscAmount) "
          "SELECT "
          "paid.ZevRef, sale.ContactNo, sale.RefDate, paid.Amount, paid.DiscountAmount FROM "
          "tblReceiptDetails AS "
          "paid INNER JOIN tblSalesMaster AS sale ON sale.RefNo = paid.Reference",
          "INSERT INTO tblDisbursementMaster (VoucherNo, VoucherDate, VoucherAmount, ContactNo) SELECT "
          "paid.VoucherID, bought.PurchaseDate, paid.PayAmount, bought.ContactNo FROM tblDisbursementDetails "
          "AS paid "
          "INNER JOIN tblPurchaseMaster AS bought ON bought.PurchaseNo = paid.PuchaseID"})
        store.run(statement);
    unit.commit();
    RecomputeReceivableBalances(store, Progress::none());
    RecomputePayableBalances(store, Progress::none());
    RecomputeInventoryBalances(store, Progress::none());
    cost(store);
}

QString busiestItem(Connection& store) {
    return store
        .execute(
            "SELECT ItemCode FROM tblStockValuation GROUP BY ItemCode ORDER BY COUNT(*) DESC, ItemCode LIMIT "
            "1")
        .textAt(0);
}

void measureBooks(qint64 documents) {
    const QTemporaryDir folder;
    makeDeliveredStore(folder.filePath(storeFileName));
    Connection& store = StoreConnection();
    store.open(folder.filePath(storeFileName), storePassword);
    makeBooks(store, documents);
    std::printf("%lld sales: figures, bare, ratio\n", documents);
    for (const MeasuredReport& report : reports(busiestItem(store)))
        measure(store, report, documents > 50000 ? 3 : 9);
    store.close();
}
}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    registerSchema();
    session().CurrentUserCode = "ADMIN";
    QStringList sizes = QCoreApplication::arguments().mid(1);
    if (sizes.isEmpty()) sizes = QStringList{"1000", "20000"};
    for (const QString& size : sizes) measureBooks(size.toLongLong());
}

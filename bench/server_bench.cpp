// The passes, saves and first screenfuls of the program on a server, beside the best way known to do the same
// through the client library, each on a database of its own, in turn (limit: twice); and the round trips of
// the program.
//
//     server_bench "$(scripts/cluster start FOLDER)" [sales = 20000] [saves of each kind = 100]
#include "bench/bare.h"
#include "bench/books_generator.h"
#include "bench/seconds_of.h"
#include "bench/server_bare.h"
#include "books/balances.h"
#include "books/end_of_day.h"
#include "books/stock_valuation.h"
#include "foundation/new_store.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "masters/frmContactFound.h"
#include "masters/frmFound.h"
#include "masters/order_pickers.h"
#include "platform/store/server_dialect.h"
#include "platform/store/server_link.h"
#include "purchases/frmPurchaseGrid.h"
#include "purchases/voucher_document.h"
#include "sales/frmSalesGrid.h"
#include "sales/receipt_document.h"
#include "sales/sales_document.h"

#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

namespace {
constexpr int linesOfDocument = 5;

QString serverUri;  // of the database that the server began with

QString uriOf(const QString& database) {
    QString uri = serverUri;
    return uri.replace("/postgres?", '/' + database + '?');
}

QString newDatabase(const QString& name, const QString& from = {}) {
    const QByteArray quoted = name.toUtf8();
    bare::Server server(serverUri);
    server.run("DROP DATABASE IF EXISTS " + quoted + " WITH (FORCE)");
    server.run("CREATE DATABASE " + quoted +
               (from.isEmpty() ? QByteArray() : " STRATEGY file_copy TEMPLATE " + from.toUtf8()));
    return uriOf(name);
}

struct Figures {
    QList<double> own, bare;
    qint64 trips = 0;
};

// What others do on the machine only makes a turn longer: of many turns the quickest tenth tells.
double quickOf(QList<double> times) {
    std::ranges::sort(times);
    return times[times.size() / 10];
}

void report(const QString& name, const Figures& figures) {
    bare::report(QString("%1, %2 round trips").arg(name).arg(figures.trips), quickOf(figures.own),
                 quickOf(figures.bare));
}

void time(Figures& figures, const std::function<void()>& own, const std::function<void()>& bareWork) {
    figures.bare += bare::milliseconds(bareWork);
    const qint64 before = ServerLink::roundTrips();
    figures.own += bare::milliseconds(own);
    figures.trips = ServerLink::roundTrips() - before;
}

// ---- passes

const QByteArray figuresOfBooks =
    "SELECT concat_ws(' ', (SELECT SUM(Balance + SalesCost) FROM tblStockValuation), (SELECT SUM(Balance) "
    "FROM "
    "tblItemMaster), (SELECT SUM(CostPrice) FROM tblItemMaster), (SELECT SUM(Balance) FROM tblSalesMaster), "
    "(SELECT SUM(Balance) FROM tblPurchaseMaster), (SELECT SUM(ZevRef) FROM tblStockValuation))";

struct Pass {
    const char* name;
    const char* books;
    void (*own)(Connection& store);
    void (*bareWork)(bare::Server& server);
};

void revalue(Connection& store) { RecomputeStockValuation(store, Progress::none()); }

void recompute(Connection& store) {
    RecomputeInventoryBalances(store, Progress::none());
    RecomputePayableBalances(store, Progress::none());
    RecomputeReceivableBalances(store, Progress::none());
}

void closeDay(Connection& store) {
    const Boxes boxes = postAndCostAll(store);
    if (!boxes.isEmpty()) qFatal("%s", qPrintable(boxes.first().text));
}

constexpr Pass passes[] = {{"revaluing all", "bench_seed", revalue, bare::revaluation},
                           {"re-compute", "bench_seed", recompute, bare::balances},
                           {"re-compute, nothing changed", "bench_queued", recompute, bare::balances},
                           {"end of day of 1 %", "bench_queued", closeDay, bare::endOfDay}};

void measure(const Pass& pass) {
    constexpr int turns = 4;
    Figures figures;
    for (int turn = 0; turn < turns; ++turn) {
        Connection store;
        store.open(newDatabase("bench_own", pass.books), {});
        bare::Server server(newDatabase("bench_bare", pass.books));
        time(
            figures, [&] { pass.own(store); }, [&] { pass.bareWork(server); });
        const QByteArray own = bare::Server(uriOf("bench_own")).run(figuresOfBooks);
        if (own != server.run(figuresOfBooks))
            std::printf("%s: the figures differ: %s, not %s\n", pass.name, own.constData(),
                        server.run(figuresOfBooks).constData());
    }
    report(pass.name, figures);
}

// ---- saves

QStringList column(Connection& store, const Sql& statement) {
    QStringList values;
    for (auto row = store.execute(statement); !row.eof(); row.moveNext()) values += row.textAt(0);
    return values;
}

struct Payment {
    QString contact;
    QStringList orders;
};

// Open orders of one contact, five by five.
QList<Payment> paymentsOf(Connection& store, const QString& table, const QString& key) {
    QList<Payment> payments;
    for (auto row = store.execute(
             QString("SELECT m.%1 AS Number, c.ContactName FROM %2 m INNER JOIN tblContactMaster c ON "
                     "c.ContactID = m.ContactNo WHERE m.Balance > 100000 ORDER BY c.ContactName, m.%1")
                 .arg(key, table));
         !row.eof(); row.moveNext()) {
        const QString contact = row.text("ContactName");
        if (payments.isEmpty() || payments.last().contact != contact ||
            payments.last().orders.size() == linesOfDocument)
            payments += {contact, {}};
        payments.last().orders += row.text("Number");
    }
    payments.removeIf([](const Payment& payment) { return payment.orders.size() < linesOfDocument; });
    return payments;
}

constexpr Currency one = Currency::fromTenThousandths(10000);

// What a save does, once its document stands, and the same for the bare side.
struct Save {
    std::function<Outcome()> own;
    bare::FiveLines bareLines;
};

Save saveOf(const DocumentHead& head, const QStringList& keys, Currency amount,
            const std::function<Outcome()>& own) {
    bare::FiveLines lines{
        head.code.toUtf8(), head.contactName.toUtf8(), {}, QByteArray::number(amount.tenThousandths())};
    for (const QString& key : keys) lines.keys += key.toUtf8();
    return {own, lines};
}

// The lines as they come from the popup, tested for their stock.
Save sale(Connection& store, const Payment& payment, int number) {
    const Currency price = Currency::fromInteger(12 + number % 2);
    const QStringList items = column(
        store, {"SELECT ItemCode FROM tblItemMaster ORDER BY ItemCode LIMIT 5 OFFSET ?", {number * 3}});
    OrderDocument document = newOrder(store, salesOrders);
    document.contactName = payment.contact;
    for (const QString& item : items) {
        document.lines += makeOrderLine(item, "Goods", "PC", one, one, price, Currency());
        document.lines.last().tested = Currency::fromInteger(-1000000000);
    }
    return saveOf(document, items, price,
                  [&store, document] { return saveOrder(store, salesOrders, document); });
}

Save receipt(Connection& store, const Payment& payment, int) {
    ReceiptDocument document = newReceipt(store);
    document.contactName = payment.contact;
    for (const QString& order : payment.orders)
        document.lines += lineOf(store, {.orderNo = order, .payment = "1.00", .cash = true});
    return saveOf(document, payment.orders, one, [&store, document] { return saveReceipt(store, document); });
}

Save voucher(Connection& store, const Payment& payment, int number) {
    const QDate today = QDate::currentDate();
    VoucherDocument document = newVoucher(store);
    document.contactName = payment.contact;
    for (const QString& order : payment.orders)
        document.payments += makePayment(PaymentKind::Payable, order, today, one, "");
    document.checks += makeCheck(QString::number(100000 + number), today,
                                 Currency::fromInteger(linesOfDocument), payment.contact);
    return saveOf(document, payment.orders, one, [&store, document] { return saveVoucher(store, document); });
}

struct SaveKind {
    const char* name;
    const char* orders;
    const char* key;
    Save (*make)(Connection& store, const Payment& payment, int number);
    void (*bareWork)(bare::Server& server, const bare::FiveLines& lines);
};
constexpr SaveKind saves[] = {{"sale", "tblSalesMaster", "RefNo", sale, bare::saveSale},
                              {"receipt", "tblSalesMaster", "RefNo", receipt, bare::saveReceipt},
                              {"voucher", "tblPurchaseMaster", "PurchaseNo", voucher, bare::saveVoucher}};

const QByteArray figuresOfSaves =
    "SELECT concat_ws(' ', (SELECT SUM(TotalAmount + Balance) FROM tblSalesMaster), (SELECT SUM(Balance) "
    "FROM "
    "tblPurchaseMaster), (SELECT SUM(Balance + SellingPrice) FROM tblItemMaster), (SELECT SUM(Amount) FROM "
    "tblReceiptDetails), (SELECT SUM(CheckAmount) FROM tblChecks), (SELECT COUNT(*) FROM tblForPostingItem))";

void measureSaves(const SaveKind& kind, int count) {
    Connection store;
    store.open(newDatabase("bench_own", "bench_queued"), {});
    bare::Server server(newDatabase("bench_bare", "bench_queued"));
    bare::prepareSaves(server);
    Figures figures;
    int number = 0;
    for (const Payment& payment : paymentsOf(store, kind.orders, kind.key)) {
        if (number == count) break;
        const Save save = kind.make(store, payment, number++);
        const auto own = [&] {
            const Outcome outcome = save.own();
            if (const Fault* fault = std::get_if<Fault>(&outcome)) qFatal("%s", qPrintable(fault->box.text));
        };
        time(figures, own, [&] { kind.bareWork(server, save.bareLines); });
    }
    if (bare::Server(uriOf("bench_own")).run(figuresOfSaves) != server.run(figuresOfSaves))
        std::printf("%s: the figures differ\n", kind.name);
    report(QString("saving a five-line %1").arg(kind.name), figures);
}

// ---- first screenfuls

struct View {
    QString name;
    DataGrid::Source source;
};

View journalView(const JournalBook& book) {
    const JournalQuery query(book.tables);
    return {book.screen, {query.columns(), query.from(), book.tables.table, query.where(), query.order()}};
}

QList<View> views(const QString& contact) {
    return {journalView(salesJournal()),
            journalView(purchaseJournal()),
            {"frmFound by description", itemFoundSource("", "D")},
            {"frmFound by code", itemFoundSource("", "P")},
            {"frmContactFound", contactFoundSource("", "")},
            {"frmSalesFound", salesFoundSource("", contact, "")},
            {"frmSalesFound, owed", salesFoundSource("", contact, "R")},
            {"frmDisbursementFound", disbursementFoundSource("", contact, "")}};
}

void measureViews() {
    Connection store;
    store.open(uriOf("bench_queued"), {});
    bare::Server server(uriOf("bench_queued"));
    DataGrid grid("dbgMyGrid", "adcMyControl", {{"Remarks", "Remarks"}});
    for (const View& view : views("1000000001")) {
        const Sql first = Sql{"SELECT " + view.source.columns + " FROM " + view.source.from} +
                          view.source.where + Sql{view.source.order + " LIMIT 100"};
        QByteArrayList values;
        for (const QVariant& value : first.values) values += storedValue(value).toString().toUtf8();
        const QByteArray name = view.name.toUtf8();
        server.prepare(name, serverStatement(first.text).toUtf8());
        Figures figures;
        for (int turn = 0; turn < 40; ++turn)
            time(
                figures, [&] { grid.setSource(store, view.source); }, [&] { server.readAll(name, values); });
        report(view.name, figures);
    }
}

// ---- the books

void makeBooks(qint64 documents) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(storeFileName);
    makeDeliveredStore(file);
    {
        Connection store;
        store.open(file, storePassword);
        generateBooks(store, documents);
    }
    copyStore(file, newDatabase("bench_seed"));
    {
        Connection store;
        store.open(file, storePassword);
        revalue(store);
        recompute(store);
        queueOnePercent(store);
        for (const auto* counter : {&numbering::sales, &numbering::disbursement})
            numbering::storeSerial(store, *counter, "500000");
        for (const auto* key : {&numbering::receipt, &numbering::check}) numbering::resetKey(store, *key);
    }
    copyStore(file, newDatabase("bench_queued"));
}
}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc < 2) qFatal("usage: server_bench URI [sales] [saves of each kind]");
    serverUri = argv[1];
    session().CurrentUserCode = "ADMIN";
    registerSchema();
    makeBooks(argc > 2 ? atoll(argv[2]) : 20000);
    for (const SaveKind& kind : saves) measureSaves(kind, argc > 3 ? atoi(argv[3]) : 100);
    measureViews();
    for (const Pass& pass : passes) measure(pass);
}

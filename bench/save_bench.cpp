// Saving sales, receipts and vouchers of five lines, in turn with the smallest set of statements that writes
// the same rows, run bare on the engine's handle of a copy of the store: no read, no test, and the lines of a
// document by one statement. Medians, for the disk answers now fast and now slowly.
//
//     save_bench [documents in the store = 1000] [of each kind to save = 100]
#include "bench/bare.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "platform/store/transaction.h"
#include "purchases/voucher_document.h"
#include "sales/receipt_document.h"
#include "sales/sales_document.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <vector>

namespace {
constexpr int linesOfDocument = 5;
constexpr int traders = 100;  // each has a hundredth of the documents

QString itemCode(qint64 i) { return QString::number(1000000001 + i); }

void fillStore(Connection& store, qint64 documents) {
    const QString counted = "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < ?) ";
    const auto fill = [&](const QString& insert, qint64 rows) { store.run({counted + insert, {rows - 1}}); };
    Transaction unit(store);
    fill(
        "INSERT INTO tblContactMaster (ContactID, ContactName, Terms) SELECT 1000000001 + i,"
        " 'Trader ' || i, 300000 FROM n",
        traders);
    fill(
        "INSERT INTO tblItemMaster (ItemCode, Description, Unit, CostPrice, SellingPrice) SELECT"
        " 1000000001 + i, 'Goods ' || i, 'PC', 100000, 120000 FROM n",
        std::max<qint64>(documents, linesOfDocument));
    fill(
        "INSERT INTO tblSalesMaster (RefNo, RefDate, ContactNo, TotalAmount, Balance) SELECT 'OLD-' || i,"
        " date('2025-01-01', (i % 300) || ' days'), 1000000001 + i % 100, 6000000, 6000000 FROM n",
        documents);
    fill(
        "INSERT INTO tblPurchaseMaster (PurchaseNo, PurchaseDate, ContactNo, PurchaseAmount, Balance) SELECT"
        " 'OLD-' || i, date('2025-01-01', (i % 300) || ' days'), 1000000001 + i % 100, 6000000, 6000000 FROM "
        "n",
        documents);
    fill(
        "INSERT INTO tblSalesDetails (Reference, ItemID, Served) SELECT 'OLD-' || (i / 5),"
        " 1000000001 + (i * 7919) % " +
            QString::number(std::max<qint64>(documents, linesOfDocument)) + ", 10000 FROM n",
        documents * linesOfDocument);
    unit.commit();
}

QString trader(qint64 number) { return QString("Trader %1").arg(number % traders); }
QString oldOrder(qint64 number, int line) { return QString("OLD-%1").arg(number % traders + line * traders); }
constexpr Currency one = Currency::fromTenThousandths(10000);

// What a save does, once its document stands.
using Save = std::function<Outcome()>;

Save sale(Connection& store, qint64 number, qint64 items) {
    OrderDocument document = newOrder(store, salesOrders);
    document.contactName = trader(number);
    for (int i = 0; i < linesOfDocument; ++i)
        document.lines += makeOrderLine(itemCode((number * linesOfDocument + i) % items), "Goods", "PC", one,
                                        one, Currency::fromInteger(12 + number % 2), Currency());
    return [&store, document] { return saveOrder(store, salesOrders, document); };
}

Save receipt(Connection& store, qint64 number, qint64) {
    ReceiptDocument document = newReceipt(store);
    document.contactName = trader(number);
    for (int i = 0; i < linesOfDocument; ++i)
        document.lines += lineOf(store, {.orderNo = oldOrder(number, i), .payment = "1.00", .cash = true});
    return [&store, document] { return saveReceipt(store, document); };
}

Save voucher(Connection& store, qint64 number, qint64) {
    VoucherDocument document = newVoucher(store);
    document.contactName = trader(number);
    const QDate today = QDate::currentDate();
    for (int i = 0; i < linesOfDocument; ++i)
        document.payments += makePayment(PaymentKind::Payable, oldOrder(number, i), today, one, "");
    const Currency all = Currency::fromInteger(linesOfDocument);
    document.checks += makeCheck(QString::number(100000 + number), today, all, document.contactName);
    return [&store, document] { return saveVoucher(store, document); };
}

struct Kind {
    const char* name;
    Save (*make)(Connection& store, qint64 number, qint64 items);
};
constexpr Kind kinds[] = {{"sale", sale}, {"receipt", receipt}, {"voucher", voucher}};

void saveOrFail(const Kind& kind, const Save& save) {
    if (!isDone(save())) qFatal("a %s was refused", kind.name);
}

qint64 totalOf(Connection& store) {
    return store
        .execute(
            "SELECT (SELECT SUM(TotalAmount + Balance) FROM tblSalesMaster) +"
            " (SELECT SUM(Balance) FROM tblPurchaseMaster) + (SELECT COUNT(*) FROM tblReceiptDetails) +"
            " (SELECT COUNT(*) FROM tblDisbursementDetails) + (SELECT COUNT(*) FROM tblChecks) +"
            " (SELECT SUM(Balance + SellingPrice) FROM tblItemMaster) AS Total")
        .integer("Total");
}
struct Asked {
    qsizetype statements;  // by our own save
    QByteArrayList smallest;
};

QList<Asked> askedBy(Connection& store, const Kind& kind, qint64 documents, qint64 items) {
    QList<Asked> all;
    for (qint64 number = 0; number < documents; ++number) {
        const Save save = kind.make(store, number, items);
        const bare::Recorder recorder(store.handle());
        saveOrFail(kind, save);
        all += {recorder.statements().size(), bare::asOneUnit(recorder.changes())};
    }
    return all;
}

void measure(Connection& store, Connection& bareStore, const Kind& kind, const QList<Asked>& asked,
             qint64 items) {
    std::vector<double> measured, bareTimes;
    for (qint64 number = 0; number < asked.size(); ++number) {
        const Save save = kind.make(store, number, items);
        measured.push_back(bare::milliseconds([&] { saveOrFail(kind, save); }));
        bareTimes.push_back(bare::replay(bareStore.handle(), asked[number].smallest));
    }
    if (totalOf(store) != totalOf(bareStore)) qFatal("the sums differ");
    const Asked& last = asked.last();
    bare::report(QString("saving a five-line %1, %2 statements, %3 bare")
                     .arg(kind.name)
                     .arg(last.statements)
                     .arg(last.smallest.size()),
                 bare::medianOf(measured), bare::medianOf(bareTimes));
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    // Each trader has an order for each line.
    const qint64 documents = std::max<qint64>(argc > 1 ? atoll(argv[1]) : 1000, traders * linesOfDocument);
    const qint64 saves = argc > 2 ? atoll(argv[2]) : 100;
    const qint64 items = std::max<qint64>(documents, linesOfDocument);
    const QTemporaryDir folder;
    registerSchema();
    makeDeliveredStore(folder.filePath("seed"));
    Connection stores[3];
    stores[0].open(folder.filePath("seed"), storePassword);
    fillStore(stores[0], documents);
    stores[0].close();
    for (int i = 0; i < 3; ++i) {
        const QString path = folder.filePath(QString::number(i));
        QFile::copy(folder.filePath("seed"), path);
        stores[i].open(path, storePassword);
    }
    for (const Kind& kind : kinds)
        measure(stores[1], stores[2], kind, askedBy(stores[0], kind, saves, items), items);
}

// Saving five-line sales, against the same statements run bare on the driver's handle, on a copy of the
// store.
//
//     save_bench [documents in the store = 1000] [sales to save = 100]
#include "bench/bare.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "platform/store/transaction.h"
#include "sales/sales_document.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {
constexpr int linesOfSale = 5;

QString itemCode(qint64 i) { return QString::number(1000000001 + i); }

void fillStore(Connection& store, qint64 documents) {
    const QString counted = "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < ?) ";
    const auto fill = [&](const QString& insert, qint64 rows) { store.run({counted + insert, {rows - 1}}); };
    Transaction unit(store);
    fill(
        "INSERT INTO tblContactMaster (ContactID, ContactName, Terms) SELECT 1000000001 + i,"
        " 'Trader ' || i, 300000 FROM n",
        1000);
    fill(
        "INSERT INTO tblItemMaster (ItemCode, Description, Unit, CostPrice, SellingPrice) SELECT"
        " 1000000001 + i, 'Goods ' || i, 'PC', 100000, 120000 FROM n",
        std::max<qint64>(documents, linesOfSale));
    fill(
        "INSERT INTO tblSalesMaster (RefNo, RefDate, ContactNo, TotalAmount) SELECT 'OLD-' || i,"
        " date('2025-01-01', (i % 300) || ' days'), 1000000001 + i % 1000, 600000 FROM n",
        documents);
    fill(
        "INSERT INTO tblSalesDetails (Reference, ItemID, Served) SELECT 'OLD-' || (i / 5),"
        " 1000000001 + (i * 7919) % " +
            QString::number(std::max<qint64>(documents, linesOfSale)) + ", 10000 FROM n",
        documents * linesOfSale);
    unit.commit();
}

OrderDocument sale(Connection& store, qint64 number, qint64 items) {
    OrderDocument document = newOrder(store, salesOrders);
    document.contactName = QString("Trader %1").arg(number % 1000);
    const Currency one = Currency::fromInteger(1);
    for (int i = 0; i < linesOfSale; ++i)
        document.lines += makeOrderLine(itemCode((number * linesOfSale + i) % items), "Goods", "PC", one, one,
                                        Currency::fromInteger(12 + number % 2), Currency());
    return document;
}

// Saves them one by one; the milliseconds spent in saving.
double saveAll(Connection& store, qint64 sales, qint64 items) {
    double spent = 0;
    for (qint64 number = 0; number < sales; ++number) {
        const OrderDocument document = sale(store, number, items);
        spent += bare::milliseconds([&] {
            if (!isDone(saveOrder(store, salesOrders, document))) qFatal("a sale was refused");
        });
    }
    return spent;
}

// What the saves ask of the engine, one list for each sale.
QList<QByteArrayList> statementsOf(Connection& store, qint64 sales, qint64 items) {
    QList<QByteArrayList> all;
    for (qint64 number = 0; number < sales; ++number) {
        const OrderDocument document = sale(store, number, items);
        const bare::Recorder recorder(store.handle());
        if (!isDone(saveOrder(store, salesOrders, document))) qFatal("a sale was refused");
        all += recorder.statements();
    }
    return all;
}

double replayAll(Connection& store, const QList<QByteArrayList>& sales) {
    double spent = 0;
    for (const QByteArrayList& statements : sales) spent += bare::replay(store.handle(), statements);
    return spent;
}

qint64 totalOf(Connection& store) {
    return store
        .execute(
            "SELECT (SELECT SUM(TotalAmount + Balance) FROM tblSalesMaster) +"
            " (SELECT SUM(Balance + SellingPrice) FROM tblItemMaster) AS Total")
        .integer("Total");
}
}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const qint64 documents = argc > 1 ? atoll(argv[1]) : 1000;
    const qint64 sales = argc > 2 ? atoll(argv[2]) : 100;
    const qint64 items = std::max<qint64>(documents, linesOfSale);
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
    const auto statements = statementsOf(stores[0], sales, items);
    const double measured = saveAll(stores[1], sales, items);
    const double bareTime = replayAll(stores[2], statements);
    if (totalOf(stores[1]) != totalOf(stores[2])) qFatal("the sums differ");
    bare::report(QString("saving a five-line sale, %1 statements").arg(statements.last().size()),
                 measured / static_cast<double>(sales), bareTime / static_cast<double>(sales));
}

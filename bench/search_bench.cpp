// The first rows of a search against its bare query with a limit of 100 on the driver's handle (limit:
// twice), and how long the contact list takes to follow a key (limit: 50 ms).
//
//     search_bench [items = 50000] [contacts = 5000]
#include "bench/bare.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "platform/store/transaction.h"
#include "tools/search/frmSearch.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>

namespace {
const QString counted = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) ";

void fill(const QString& insert, qint64 rows) { StoreConnection().run({counted + insert, {rows}}); }

void makeStore(const QString& path, qint64 items, qint64 contacts) {
    registerSchema();
    makeDeliveredStore(path);
    StoreConnection().open(path, storePassword);
    session().CurrentUserCode = "ADMIN";
    Transaction unit(StoreConnection());
    fill(
        "INSERT INTO tblItemMaster (ItemCode, Description, Unit, Locator, SupplierCode, CostPrice) SELECT "
        "1000000000 + i, 'Goods ' || (i * 7919 % 100003), 'PC', 'A' || i, i % 2000, 100000 FROM n",
        items);
    fill(
        "INSERT INTO tblContactMaster (ContactID, ContactName, Terms) SELECT i, 'Trader ' || (i * 7919 % "
        "100003), 300000 FROM n",
        contacts);
    fill(
        "INSERT INTO tblSalesMaster (RefNo, RefDate, ContactNo, TotalAmount) SELECT i, '2026-01-01', i % "
        "2000, i * 777 FROM n",
        items);
    fill(
        "INSERT INTO tblReceiptMaster (PayNo, PaymentDate, CustomerNo, PaymentAmount, TotalDiscAmount) "
        "SELECT i, '2026-01-01', i % 2000, i * 77, i FROM n",
        items);
    unit.commit();
}

void compare(const QString& name, const SearchRequest& request) {
    const Search search = std::get<Search>(prepareSearch(request));
    const QByteArrayList statements = [&] {
        const bare::Recorder recorder(StoreConnection().handle());
        readPage(StoreConnection(), search, -1, 100);
        return recorder.statements();
    }();
    bare::report(name, bare::median([&] { readPage(StoreConnection(), search, -1, 100); }),
                 bare::median([&] { bare::replay(StoreConnection().handle(), statements); }));
}

// What a person waits for after the key: the call and its paint.
double followsKey(const QString& text) {
    frmSearch screen;
    screen.resize(1000, 600);
    screen.show();
    auto* type = screen.findChild<QComboBox*>("cboType");
    type->setCurrentText("Inquire Contact Balance");
    emit type->activated(type->currentIndex());
    auto* box = screen.findChild<QLineEdit*>("txtCustomer");
    return bare::milliseconds([&] {
        box->insert(text);
        screen.repaint();
    });
}
}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const auto size = [&](int place, qint64 usual) { return argc > place ? atoll(argv[place]) : usual; };
    const QTemporaryDir folder;
    makeStore(folder.filePath(storeFileName), size(1, 50000), size(2, 5000));
    compare("items by description", {"Inquire Item", {}, {"", "goods"}, {}});
    compare("items that are rare", {"Inquire Item", {}, {"", "99999"}, {}});
    compare("contacts", {"Inquire Contact Balance", {}, {"trader"}, {}});
    compare("sales", {"Inquire Transaction Balance", "Sales Journal", {"1"}, {}});
    for (const char* text : {"t", "9", "zz"})
        printf("contacts follow \"%s\" in %.1f ms\n", text, followsKey(text));
    StoreConnection().close();
    return 0;
}

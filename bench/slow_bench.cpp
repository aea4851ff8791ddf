// How long a clerk waits at the sales entry over a slow network, where each round trip takes 5 ms: the screen
// opens (limit: 0.3 s), a line is added (0.1 s), a sale of five lines is saved (0.5 s). On the real screens,
// on books that are there (server_bench leaves "bench_queued").
//
//     slow_bench URI [milliseconds of a round trip = 5]
#include "bench/bare.h"
#include "bench/slow_link.h"
#include "documents/line_popup.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "platform/store/server_link.h"
#include "platform/ui/guarded_application.h"
#include "platform/ui/screen_registry.h"
#include "program.h"
#include "sales/frmSalesEntry.h"
#include "support/box_script.h"
#include "support/offscreen_desk.h"
#include "support/screen_driver.h"

#include <QRegularExpression>
#include <algorithm>
#include <cstdio>

namespace {
// The wait of a person for one act, and its round trips.
void timed(const char* act, double limit, const std::function<void()>& work) {
    const qint64 before = ServerLink::roundTrips();
    const double taken = bare::milliseconds(work);
    std::printf("%-36s %8.1f ms  (limit %4.0f)  %3lld round trips\n", act, taken, limit,
                static_cast<long long>(ServerLink::roundTrips() - before));
    std::fflush(stdout);
}

QStringList firstFive(const QString& statement) {
    QStringList values;
    for (auto row = StoreConnection().execute(statement); !row.eof(); row.moveNext()) values += row.textAt(0);
    return values;
}

frmSalesEntry* openEntry() {
    auto* screen = static_cast<frmSalesEntry*>(ScreenRegistry::instance().open("frmSalesEntry", {}));
    person::look(screen);
    return screen;
}

void addLine(const QString& item) {
    QStringList keys{item, "", "1", "1"};
    for (const QString& key : keys) {
        person::type(key);
        person::press(Qt::Key_Return);
    }
}

void sell(const QString& customer, const QStringList& items) {
    BoxScript boxes;
    frmSalesEntry* screen = nullptr;
    timed("the sales entry opens", 300, [&] { screen = openEntry(); });
    timed("a customer is chosen", 100, [&] {
        person::type(customer);
        person::press(Qt::Key_Return);
    });
    timed("the line dialog opens", 100, [&] { person::click(screen, "cmdAdd"); });
    for (const QString& item : items) timed("a line is typed and added", 100, [&] { addLine(item); });
    person::press(Qt::Key_Escape);
    boxes.expect("Saved!");
    timed("the sale is saved", 500, [&] { screen->SaveRecord(); });
    screen->mblnUpdated = false;
    screen->unload();
    person::settle();
}
}  // namespace

int main(int argc, char** argv) {
    useOffscreenDesk();
    const GuardedApplication application(argc, argv);
    if (argc < 2) qFatal("usage: slow_bench URI [milliseconds]");
    failOnUnexpectedBoxes();
    QString uri = argv[1];
    const auto folder = QRegularExpression("[?]host=([^&]+)").match(uri);
    const int delay = argc > 2 ? atoi(argv[2]) : 5;
    const SlowLink link(folder.captured(1) + "/.s.PGSQL.5432", std::chrono::microseconds(delay * 500));
    uri.remove(folder.capturedStart(), folder.capturedLength());
    uri.replace("@/", QString("@127.0.0.1:%1/").arg(link.port()));
    registerSchema();
    setUpProgram();
    StoreConnection().open(uri, {});
    session().StoreOpen = true;
    session().CurrentUserCode = "ADMIN";
    StoreConnection().run("UPDATE tblUserMaster SET PrintDRAccess = False");
    StoreConnection().run("UPDATE tblItemMaster SET SellingPrice = CostPrice + 10000000");
    const QStringList items = firstFive("SELECT ItemCode FROM tblItemMaster ORDER BY Balance DESC LIMIT 5");
    const QString customer = firstFive("SELECT ContactName FROM tblContactMaster LIMIT 1").value(0);
    for (const char* turn : {"first time", "second time", "third time"}) {
        std::printf("-- %s\n", turn);
        sell(customer, items);
    }
    StoreConnection().close();
    return 0;
}

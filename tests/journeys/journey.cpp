#include "journeys/journey.h"

#include "demo/day_player.h"
#include "foundation/start.h"
#include "foundation/store_place.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/screen_registry.h"
#include "program.h"
#include "support/screen_tour.h"
#include "support/test_server.h"

#include <QApplication>

static void fillFirm(const QString& place) {
    Connection store;
    store.open(place, passwordFor(place));
    store.run({"UPDATE tblSystemProfile SET CompanyName = ?", {"Talisay Trading"}});
    addContact(store, {.id = "1000000001", .name = "Rizal Mill", .customer = false});
    addContact(store, {.id = "1000000002", .name = "Cora Store", .supplier = false});
    addItem(store, {.code = "1001",
                    .description = "RICE",
                    .selling = Currency::fromInteger(10),
                    .wholesale = Currency::fromInteger(9)});
}

void Journey::SetUp() {
    static const bool once = (setUpProgram(), true);
    ASSERT_TRUE(once);
    fillFirm(newStoreIn(folder_.path()));
    setProgramFolder(folder_.path());
    onDay(1);
    failOnUnexpectedBoxes();
    ASSERT_TRUE(Main());
}

void Journey::closeProgram() {
    setBoxAnswerer(
        [](const Box& box) { return box.buttons == BoxButtons::Ok ? BoxAnswer::Ok : BoxAnswer::No; });
    while (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    closeOpenScreens();
    // One may take others along.
    while (!QApplication::topLevelWidgets().isEmpty()) delete QApplication::topLevelWidgets().first();
    person::settle();
    failOnUnexpectedBoxes();
    StoreConnection().close();
    session() = {};
}

void Journey::TearDown() {
    closeProgram();
    Clock::unfreeze();
}

QDate Journey::onDay(int day) {
    const QDate date(2026, 3, day);
    Clock::freeze(QDateTime(date, QTime(9, 0)));
    return date;
}

// What the player finds amiss fails the test, with what it did until then.
QStringList Journey::play(const QString& script) {
    QStringList saved, told;
    try {
        DayPlayer player({}, [&](const QString& line) { told += line; });
        player.play(readDayScript(script));
        saved = player.saved();
    } catch (const std::exception& error) {
        ADD_FAILURE() << qPrintable(told.join('\n')) << "\n" << error.what();
    }
    failOnUnexpectedBoxes();
    return saved;
}

QWidget* Journey::journalAt(const QString& menuItem, const QString& keyColumn, const QString& number) {
    person::choose(menuItem);
    QWidget* journal =
        person::screen(menuItem == "mnuTransactionItem_2" ? "frmSalesGrid" : "frmPurchaseGrid");
    EXPECT_TRUE(person::walkToRow(person::find<DataGrid>(journal, "dbgMyGrid"), keyColumn, number))
        << qPrintable(number) << " is not in the journal";
    return journal;
}

void Journey::deleteCurrent() {
    BoxScript boxes;
    boxes.expect("Confirm Delete", "Confirm Deletion of this Record. Delete Record Now?", BoxAnswer::Yes);
    person::press(Qt::Key_Delete, Qt::ShiftModifier);
    person::press(Qt::Key_Escape);
}

QString Journey::figure(const QString& column, const QString& table, const QString& key,
                        const QString& value) {
    const Recordset row =
        store().execute({QString("SELECT %1 FROM %2 WHERE %3 = ?").arg(column, table, key), {value}});
    return row.eof() ? "none" : formatNumber(row.currency(column), mask::amount);
}

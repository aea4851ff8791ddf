#include "books/posting_queue.h"
#include "documents/order_document.h"
#include "foundation/shared_routines.h"
#include "platform/store/store_care.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "purchases/purchase_document.h"
#include "sales/sales_document.h"
#include "shell/frmForUpload.h"
#include "support/box_script.h"
#include "support/test_server.h"
#include "support/test_store.h"

#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QToolButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {
const Box already = information("Zevrin!", "Transactions Already Uploaded!");
const Box success = information("Zevrin!", "End of Day Transactions Successfully Uploaded!");
const Box postingProblem = exclamation(
    "Error!",
    "There seems to be a problem Posting Stock Valuation transactions! Sales Record might be Deleted!");
const Box initializingProblem = exclamation(
    "Error!", "There seems to be a problem Initializing Stock Valuation transactions! Please Try Again!");

class EndOfDayScreen : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addContact(store(), {"C1", "Reyes Trading"});
        addItem(store(), {"I1", "Goods I1"});
        addItem(store(), {"I2", "Goods I2"});
    }
    void TearDown() override {
        delete ScreenRegistry::instance().opened("frmForUpload");
        SessionTest::TearDown();
    }

    frmForUpload* open() {
        ScreenRegistry::instance().add("frmForUpload", [] { return new frmForUpload; });
        return static_cast<frmForUpload*>(ScreenRegistry::instance().open("frmForUpload"));
    }

    void save(const OrderBook& book, const QString& code, const char* date, const char* item, int quantity,
              int price) {
        OrderDocument document;
        document.code = code;
        document.serial = "1001";
        document.date = date;
        document.contactName = "Reyes Trading";
        document.lines = {makeOrderLine(item, item, "PC", Currency::fromInteger(quantity),
                                        Currency::fromInteger(quantity), Currency::fromInteger(price), {})};
        ASSERT_TRUE(isDone(saveOrder(store(), book, document)));
    }
    void buyAndSell() {
        save(purchaseOrders, "P1", "03/04/2026", "I1", 10, 5);
        save(salesOrders, "S1", "03/03/2026", "I1", 4, 9);
    }
    qint64 count(const char* table) { return CountRecords(store(), table); }
    static void press(QWidget* screen, const char* button) {
        screen->findChild<QToolButton*>(button)->click();
    }

    BoxScript boxes;
};

TEST_F(EndOfDayScreen, WithNothingQueuedSaysSoRebasesTheKeyAndDoesNotOpen) {
    store().run("UPDATE tblStockKey SET Server = '77'");
    boxes.expect(already);
    EXPECT_EQ(open(), nullptr);
    EXPECT_EQ(store().execute("SELECT Server FROM tblStockKey").text("Server"), QString("1"));
}

TEST_F(EndOfDayScreen, ListsPurchasesFirstAndEachBookByDate) {
    save(purchaseOrders, "P2", "03/05/2026", "I2", 1, 5);
    buyAndSell();
    save(salesOrders, "S0", "03/02/2026", "I1", 1, 9);
    QPointer screen = open();
    ASSERT_TRUE(screen);
    const QList<QStringList> documents{{"P", "P1", "03/04/2026", "Reyes Trading"},
                                       {"P", "P2", "03/05/2026", "Reyes Trading"},
                                       {"S", "S0", "03/02/2026", "Reyes Trading"},
                                       {"S", "S1", "03/03/2026", "Reyes Trading"}};
    EXPECT_EQ(screen->findChild<ListView*>("lvwTransaction")->rows(), documents);
    EXPECT_THAT(screen->findChild<ListView*>("lvwItems")->rows(),
                ::testing::UnorderedElementsAre(QStringList{"I1", "Goods I1", "Ready for Processing"},
                                                QStringList{"I2", "Goods I2", "Ready for Processing"}));
    EXPECT_EQ(screen->findChild<QLabel*>("lblStatus")->text(),
              QString("4 documents and 2 items wait for the end of day."));
}

TEST_F(EndOfDayScreen, WithHalfOfTheQueueShowsTheProblemAndDoesTheOtherHalf) {
    const std::pair<const char*, QList<Box>> halves[] = {
        {"tblForPosting", {postingProblem, success}},
        {"tblForPostingItem", {initializingProblem, already, success}}};
    for (const auto& [emptied, told] : halves) {
        save(purchaseOrders, emptied, "03/05/2026", "I2", 1, 5);
        store().run(QString("DELETE FROM ") + emptied);
        QPointer screen = open();
        for (const Box& box : told) boxes.expect(box);
        press(screen, "imgUpload");
        boxes.verify();
        EXPECT_EQ(ScreenRegistry::instance().opened("frmForUpload"), nullptr);
        EXPECT_FALSE(HasPendingPosting(store()));
    }
    EXPECT_EQ(count("tblStockValuation"), 1) << "that of the second";
}

TEST_F(EndOfDayScreen, AFailedDocumentStopsThePassThereAndSuccessIsSaidAllTheSame) {
    save(purchaseOrders, "P1", "03/04/2026", "I1", 10, 5);
    save(purchaseOrders, "P2", "03/05/2026", "I2", 10, 5);
    save(purchaseOrders, "P3", "03/06/2026", "I2", 10, 5);
    QPointer screen = open();
    int documents = 0;
    Connection::setStatementHook([&](const QString& statement) {
        // All at once first, then each by itself: the second one fails in both.
        if (statement.startsWith("DELETE FROM tblForPosting ") && ++documents % 2 == 0)
            throw StoreError(StoreError::general, "disk full");
    });
    boxes.expect("Error...", "disk full");
    boxes.expect(postingProblem);
    boxes.expect(success);
    press(screen, "imgUpload");
    Connection::setStatementHook({});
    const Recordset left = store().execute("SELECT Reference FROM tblForPosting ORDER BY Reference");
    EXPECT_EQ(left.rowCount(), 2);
    EXPECT_EQ(left.text("Reference"), QString("P2"));
    EXPECT_EQ(count("tblStockValuation"), 1);
    EXPECT_EQ(valueOf(store(), "SELECT MAX(ItemID) || COUNT(*) AS v FROM tblForPostingItem"), "I21")
        << "its documents wait";
}

TEST_F(EndOfDayScreen, ADocumentSavedAfterTheListsWaitsAndARefreshClosesWhenNothingIsLeft) {
    buyAndSell();
    QPointer screen = open();
    save(purchaseOrders, "P9", "03/09/2026", "I2", 3, 7);
    boxes.expect(success);
    press(screen, "imgUpload");
    EXPECT_EQ(QDir(folder_.filePath(backupFolder)).entryList(QDir::Files).size(), onTestServer() ? 0 : 1)
        << "a server is copied by its own helper";
    EXPECT_EQ(count("tblForPosting"), 1);
    EXPECT_EQ(count("tblForPostingItem"), 1);
    screen = open();
    EXPECT_EQ(screen->findChild<ListView*>("lvwTransaction")->rowCount(), 1);
    store().run("DELETE FROM tblForPosting");
    store().run("DELETE FROM tblForPostingItem");
    boxes.expect(already);
    press(screen, "imgRefresh");
    EXPECT_EQ(ScreenRegistry::instance().opened("frmForUpload"), nullptr);
}

}  // namespace

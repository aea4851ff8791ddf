#include "platform/clock.h"
#include "platform/store/store_error.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/screen_registry.h"
#include "support/box_script.h"
#include "support/files.h"
#include "support/screen_driver.h"
#include "support/test_store.h"
#include "support/users.h"
#include "tools/counter/cash_document.h"
#include "tools/register.h"

#include <QGroupBox>

namespace {

class CashTest : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        registerToolScreens();
        Clock::freeze(QDateTime(QDate(2026, 3, 2), QTime(9, 0)));
        addUser(store(), "ana", "abc", {}, {"POSUser"});
        addUser(store(), "ben", "abc");
        addContact(store(), {.id = "1", .name = "Cora Store"});
    }
    void TearDown() override {
        desk::setDoors({});
        SessionTest::TearDown();
    }
    ChildScreen* open(const QString& name) {
        ChildScreen* screen = ScreenRegistry::instance().open(name);
        person::look(screen);
        return screen;
    }
    // A payment of one cashier with its lines; a cash line has no check number.
    void addReceipt(int payNo, const QString& user, Currency paid,
                    const QList<std::pair<QString, Currency>>& checks) {
        insertRow(store(), "tblReceiptMaster", "PayNo, PaymentDate, CustomerNo, PaymentAmount, UpdatedBy",
                  {payNo, QDate(2026, 3, 2), "1", bound(paid), user});
        int line = payNo * 10;
        for (const auto& [number, figure] : checks)
            insertRow(store(), "tblReceiptDetails", "ZevRef, PayCode, Amount, CheckNo, CheckStatus",
                      {++line, payNo, bound(figure), number.isEmpty() ? QVariant() : QVariant(number),
                       number.startsWith('A') ? "Card" : "Received"});
    }
    CashAudit audit(const QString& cashier) {
        auto answer = auditCash(store(), {cashier, "3/2/26"});
        return std::get<CashAudit>(answer);
    }
    QString refusal(const CashEntry& entry) {
        QString key;
        const Outcome outcome = SaveCash(store(), entry, true, key);
        const auto* fault = std::get_if<Fault>(&outcome);
        return fault ? fault->box.text : QString();
    }
    BoxScript boxes;
};

TEST_F(CashTest, ADayOfACashierIsOpenedOnce) {
    CashEntry entry{"", "13/1/2026", "many"};
    const std::pair<const char*, std::function<void()>> steps[] = {
        {"Please Select a Cashier!", [&] { entry.cashier = "nobody"; }},
        {"Cashier Does Not Exist! Please Add this to System User Profile!",
         [&] { entry.cashier = "ANA Santos"; }},
        {"Invalid Sale Date Format!", [&] { entry.saleDate = "3/2/2026"; }},
        {"Invalid Beginning Cash Format!", [&] { entry.cash = "0.00"; }},
        {"Cash must not be less than or Equal to Zero!", [&] { entry.cash = "1,500.00"; }},
        {"", [] {}},
        {"Beginning Cash for ANA Santos on 03/02/2026 is Already Set! You may Edit Particular Transaction "
         "Date "
         "to Change Beginning Cash!",
         [] {}},
    };
    for (const auto& [text, correct] : steps) {
        EXPECT_EQ(refusal(entry), text);
        correct();
    }
    EXPECT_EQ(valueOf(store(), "SELECT ZevRef || Cashier || SalesDate FROM tblPOS"), "1001ana2026-03-02");
    // The store itself keeps the day once, for two stations that ask at one moment.
    EXPECT_THROW(
        store().run("INSERT INTO tblPOS (ZevRef, Cashier, SalesDate) VALUES (7, 'ANA', '2026-03-02')"),
        StoreError);
}

TEST_F(CashTest, ADayAtTheScreen) {
    ChildScreen* screen = open("frmPOSCash");
    EXPECT_EQ(person::read(screen, "txtCashier"), "");
    QMetaObject::invokeMethod(screen, "NewRecord");
    person::fill(screen, "txtCashier", "ana Santos");
    person::fill(screen, "txtCash", "1500");
    person::press(Qt::Key_Return);
    EXPECT_EQ(person::find<QGroupBox>(screen, "fraCount")->title(), "System Found 1 Sales Transactions");
    EXPECT_FALSE(person::control(screen, "txtCash")->isEnabled());
    QMetaObject::invokeMethod(screen, "EditRecord");
    EXPECT_EQ(person::read(screen, "txtCashier"), "ana Santos");
    EXPECT_FALSE(person::control(screen, "txtCashier")->isEnabled());
    person::fill(screen, "txtCash", "1600");
    person::press(Qt::Key_Return);
    EXPECT_EQ(person::find<DataGrid>(screen, "dbgMyGrid")->currentText("PettyCash"), "1,600.00");
    // What another station stores meanwhile is not saved over.
    QMetaObject::invokeMethod(screen, "EditRecord");
    store().run("UPDATE tblPOS SET PettyCash = 17000000");
    person::fill(screen, "txtCash", "1650");
    boxes.expect("Record Changed!");
    person::press(Qt::Key_Return);
    EXPECT_EQ(person::read(screen, "txtCash"), "1,650.00") << "what was typed stays";
    QMetaObject::invokeMethod(screen, "RefreshRecord");
    EXPECT_EQ(person::read(screen, "txtCash"), "1,700.00");
    person::fill(screen, "txtDate", "3/1/2026");
    EXPECT_EQ(person::find<QGroupBox>(screen, "fraCount")->title(), "System Found No Sales Transaction");
    person::click(screen, "cmdAll");
    boxes.expect("Confirm Delete", "Confirm Deletion of this Record. Delete Record Now?", BoxAnswer::Yes);
    QMetaObject::invokeMethod(screen, "DeleteRecord");
    EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblPOS"), "0");
    addUser(store(), "cid", "abc");
    auto* cashiers = person::find<ComboBox>(screen, "txtCashier");
    cashiers->showPopup();
    cashiers->hidePopup();
    EXPECT_GE(cashiers->findText("cid Santos"), 0) << "filled anew when it drops down";
    screen->unload();
}

TEST_F(CashTest, TheAuditAddsUpWhatWasReceived) {
    ASSERT_EQ(refusal({"ana Santos", "3/2/2026", "500"}), "");
    addReceipt(1, "ana", amount(1000), {{"", amount(300)}, {"777", amount(450)}, {"A1", amount(250)}});
    addReceipt(2, "ben", amount(80), {{"", amount(80)}});
    EXPECT_EQ(audit("ana Santos").cashSales, amount(1000));
    EXPECT_EQ(audit("ana Santos").nonCash, amount(700));
    EXPECT_EQ(audit("ana Santos").total(), amount(1500));
    EXPECT_EQ(audit("ben Santos").total(), amount(80));
    EXPECT_EQ(audit("total collection for the day").total(), amount(1580));

    const QString path = folder_.filePath("audit.txt");
    desk::setDoors({.saveFile = [&](const QString&) { return path; }});
    ChildScreen* screen = open("frmPrintPOS");
    person::goTo(screen, "optASCII");
    person::press(Qt::Key_Space);
    boxes.expect("Thank You!");
    person::click(screen, "cmdOK");
    const QString paper = QString::fromUtf8(contentOf(path)).simplified();
    for (const char* text :
         {"Cashier = Total Collection for the Day", "Sale Date = 03/02/2026", "Approval No. Date",
          "Cora Store A1 250.00", "Total Card = 250.00", "Check No. Check Date", "Total Received = 450.00",
          "Beginning Cash = 500.00 Cash Sales = 380.00 Non-Cash Sales = 700.00 Total = 1,580.00 "
          "Beginning Cash and Cash Sales = 880.00"})
        EXPECT_TRUE(paper.contains(text)) << text << "\n" << qPrintable(paper);
    person::fill(screen, "cboCashier", "ben Santos");
    person::fill(screen, "txtDate", "3/3/2026");
    boxes.expect("No Record!", "No Payments Received on March 03, 2026!");
    person::click(screen, "cmdOK");
    screen->unload();
}

}  // namespace

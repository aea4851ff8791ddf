#include "shell/frmRecordLock.h"

#include "platform/ui/combo_box.h"
#include "platform/ui/text_box.h"
#include "support/box_script.h"
#include "support/screen_driver.h"
#include "support/test_store.h"

#include <QGroupBox>
#include <QPair>
#include <QPushButton>

namespace {

constexpr const char* sure = "Are you Sure?";

QString questionOf(const QString& beginning) {
    return beginning + "! Please Make Sure That There is No One Editing or Printing Record at the Moment!";
}

class RecordLockTest : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        store().run("INSERT INTO tblSalesMaster (RefNo, RecordLock) VALUES ('11-1001-2026', True)");
        store().run("INSERT INTO tblSalesMaster (RefNo, RecordLock) VALUES ('11-1002-2026', False)");
        store().run("INSERT INTO tblReceiptMaster (PayNo, RecordLock) VALUES (7, False)");
        screen = new frmRecordLock;
        screen->show();
    }
    void TearDown() override {
        delete screen;
        SessionTest::TearDown();
    }
    template <class Control>
    Control* control(const char* name) {
        return screen->findChild<Control*>(name);
    }
    void choose(const char* list, const QString& entry) {
        control<ComboBox>(list)->setText(entry);
        emit control<ComboBox>(list)->picked();
    }
    QPair<bool, bool> buttons() {
        return {control<QPushButton>("cmdLock")->isEnabled(), control<QPushButton>("cmdUnlock")->isEnabled()};
    }
    int locked(const QString& table) {
        return valueOf(store(), "SELECT COUNT(*) FROM " + table + " WHERE RecordLock = True").toInt();
    }

    QPointer<frmRecordLock> screen;
    BoxScript boxes;
};

TEST_F(RecordLockTest, ALockedDocumentIsReleasedAfterTheOneQuestion) {
    EXPECT_EQ(control<QGroupBox>("fraSelection")->title(), "Enter Delivery Receipt No. :");
    EXPECT_EQ(control<ComboBox>("cboSelection")->count(), 2);
    EXPECT_EQ(buttons(), qMakePair(true, true));
    choose("cboSelection", "11-1001-2026");
    EXPECT_EQ(buttons(), qMakePair(false, true));
    const QString words = questionOf("This will Lock D.R. No. 11-1001-2026");
    boxes.expect(sure, words, BoxAnswer::No);
    control<QPushButton>("cmdUnlock")->click();
    EXPECT_EQ(locked("tblSalesMaster"), 1);
    boxes.expect(sure, words, BoxAnswer::Yes).expect("Released!", "Record Successfully Released!");
    control<QPushButton>("cmdUnlock")->click();
    EXPECT_EQ(locked("tblSalesMaster"), 0);
    EXPECT_EQ(control<ComboBox>("cboSelection")->text(), "");
    EXPECT_EQ(buttons(), qMakePair(true, true));
}

TEST_F(RecordLockTest, OnlyTheChosenDocumentOfTheChosenJournalIsLocked) {
    choose("cboJournal", "Payments Receipt Entry");
    EXPECT_EQ(control<QGroupBox>("fraSelection")->title(), "Enter Payment No. :");
    choose("cboSelection", "7");
    EXPECT_EQ(buttons(), qMakePair(true, false));
    boxes.expect(sure, questionOf("This will Lock Payment No. 7"), BoxAnswer::Yes).expect("Locked!");
    control<QPushButton>("cmdLock")->click();
    EXPECT_EQ(locked("tblReceiptMaster"), 1);
    EXPECT_EQ(locked("tblSalesMaster"), 1);

    choose("cboJournal", "Sales Order Entry");
    person::look(screen);
    person::fill(screen, "cboSelection", "11-1002-2026 ");  // with a blank behind it
    person::goTo(screen, "cboJournal");
    EXPECT_EQ(buttons(), qMakePair(true, false)) << "leaving the number reads its status";
    boxes.expect(sure, {}, BoxAnswer::Yes).expect("Locked!");
    control<QPushButton>("cmdLock")->click();
    EXPECT_EQ(locked("tblSalesMaster"), 2);
}

TEST_F(RecordLockTest, WhatIsNotThereIsToldAndNothingIsWritten) {
    boxes.expect("No Record!", "Please Select a Record to Lock!");
    control<QPushButton>("cmdLock")->click();
    boxes.expect("No Record!", "Please Select a Record to UnLock!");
    control<QPushButton>("cmdUnlock")->click();
    const struct {
        const char* journal;
        const char* missing;
    } cases[] = {{"Sales Order Entry", "Delivery Receipt No. Does Not Exist!"},
                 {"Payments Receipt Entry", "Payment No. Does Not Exist!"},
                 {"Purchase Order Entry", "Purchase Order No. Does Not Exist!"},
                 {"Disbursement Entry", "Voucher No. Does Not Exist!"}};
    for (const auto& row : cases) {
        choose("cboJournal", row.journal);
        control<ComboBox>("cboSelection")->setText("x' OR '1'='1");
        boxes.expect("Error!", row.missing);
        control<QPushButton>("cmdLock")->click();
    }
    boxes.expect("Error!", "Voucher No. Does Not Exist!");
    choose("cboSelection", "nothing");
    EXPECT_EQ(locked("tblSalesMaster"), 1);
}

}  // namespace

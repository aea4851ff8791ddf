#include "journeys/journey.h"

#include "platform/ui/file_dialogs.h"
#include "support/files.h"

// A cashier begins the day with 500.00 and takes 80.00 in cash and 370.00 by check.
TEST_F(Journey, ACashiersDayIsOpenedAndAudited) {
    play(
        "log in ADMIN admin\n"
        "purchase from Rizal Mill\n  50 x RICE at 5.00\n"
        "sale to Cora Store\n  45 x RICE at 10.00\n");
    person::choose("mnuMaintenanceItem_6");
    QWidget* cash = person::screen("frmPOSCash");
    person::press(Qt::Key_N, Qt::ControlModifier);
    person::fill(cash, "txtCashier", "ADMIN");
    person::fill(cash, "txtCash", "500");
    person::press(Qt::Key_Return);
    EXPECT_EQ(person::read(cash, "txtCash"), "500.00");
    person::press(Qt::Key_Escape);
    play(
        "payment from Cora Store\n  order 1 with 80.00\n"
        "payment from Cora Store\n  by check BPI 771\n  order 1 with 370.00\n");

    const QTemporaryDir folder;
    const QString path = folder.filePath("audit.txt");
    desk::setDoors({.saveFile = [&](const QString&) { return path; }});
    person::choose("mnuReportItem_28");
    QWidget* print = person::screen("frmPrintPOS");
    person::fill(print, "cboCashier", "ADMIN");
    person::goTo(print, "optASCII");
    person::press(Qt::Key_Space);
    BoxScript boxes;
    boxes.expect("Thank You!");
    person::click(print, "cmdOK");
    desk::setDoors({});
    const QString paper = QString::fromUtf8(contentOf(path)).simplified();
    EXPECT_TRUE(
        paper.contains("Beginning Cash = 500.00 Cash Sales = 80.00 Non-Cash Sales = 370.00 Total = 950.00 "
                       "Beginning Cash and Cash Sales = 580.00"))
        << qPrintable(paper);
}

#include "reports/frame/report_start.h"

#include "foundation/shared_routines.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/screen_registry.h"
#include "reports/documents/prtDelivery.h"
#include "reports/frame/report_preview.h"
#include "reports/sales_by_town.h"
#include "support/box_script.h"
#include "support/files.h"
#include "support/screen_driver.h"
#include "support/screen_tour.h"
#include "support/test_store.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPrinter>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {
class ReportStart : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addContact(store(), {"C1", "Reyes Trading"});
    }
    void TearDown() override {
        closeOpenScreens();
        SessionTest::TearDown();
    }

    void addSaleOf(int lines) {
        addSale(store(),
                {.number = "000001",
                 .date = {2026, 3, 9},
                 .contactId = "C1",
                 .lines = std::vector<LineRow>(static_cast<size_t>(lines), {"RICE", amount(1), amount(10)})});
    }
    auto report() { return deliveryReport(store(), "000001"); }
    bool isFlagged(const char* flag) {
        return FlagFieldSet(store(), "tblSalesMaster", "RefNo", "000001", flag);
    }
    bool isTagged() {
        EXPECT_EQ(isFlagged("Printed"), isFlagged("RecordLock"));
        return isFlagged("Printed");
    }
    static bool waitForPages(const ReportPreview* paper) {
        return QTest::qWaitFor([&] { return paper->job().isComplete(); });
    }

    BoxScript boxes;
};
}  // namespace

// A layout without a paper takes the one that the printer holds, and prints in dots if it says so.
TEST_F(ReportStart, ALayoutHasItsOwnPaperAndRendering) {
    const ReportLayout layout{.name = "",
                              .caption = "",
                              .page = printersPaper(0, 9000),
                              .sections = {},
                              .rendering = reportOutput::Rendering::DotMatrix};
    for (const bool hasPrinter : {true, false}) {
        desk::setDoors({.printer = [hasPrinter] {
            auto printer = hasPrinter ? std::make_unique<QPrinter>() : nullptr;
            if (printer) printer->setPageSize(QPageSize(QPageSize::Legal));
            return printer;
        }});
        const ReportJob job({layout, std::make_unique<Rows>(QStringList(), QList<QStringList>()), {}});
        EXPECT_EQ(job.rendering(), reportOutput::Rendering::DotMatrix);
        EXPECT_EQ(job.pages().setup.paper(), QSize(12240, hasPrinter ? 20160 : 15840));
    }
    desk::setDoors({});
}

TEST_F(ReportStart, FromAnEntryAPaperIsTaggedWhenItsPagesAreMadeAndNobodyIsAsked) {
    addSaleOf(1);
    const ReportPreview* list = previewFromEntry(report());
    ASSERT_TRUE(waitForPages(list));
    person::settle();
    EXPECT_FALSE(isTagged()) << "a list tags nothing";
    ReportPreview* paper = previewFromEntry(report(), &deliveryTagging());
    ASSERT_TRUE(waitForPages(paper));
    person::settle();
    EXPECT_TRUE(isTagged());
    runFromPrintScreen(report(), ReportTarget::Preview);  // takes the session's values over
    EXPECT_TRUE(paper->unload());
}

TEST_F(ReportStart, APaperClosedBeforeItsLastPageIsNotTagged) {
    addSaleOf(3000);
    ReportPreview* paper = previewFromEntry(report(), &deliveryTagging());
    EXPECT_TRUE(paper->unload());
    QTest::qWait(50);
    EXPECT_FALSE(isTagged());
}

TEST_F(ReportStart, WhatCannotBeStartedOrWrittenIsTold) {
    boxes.expect("Nothing to Print!", "No Records to Print...");
    EXPECT_FALSE(previewFromEntry(report(), &deliveryTagging()));
    boxes.expect("Nothing to Print!", "No Records to Print...");
    EXPECT_TRUE(runFromPrintScreen(report(), ReportTarget::Printer, &deliveryTagging()));

    addSaleOf(1);
    session().ExportFileName = "  ";
    boxes.expect("Error!", "Cannot Export File! Please specify a Filename and Location first...");
    EXPECT_FALSE(runFromPrintScreen(report(), ReportTarget::RichText, &deliveryTagging()));
    ASSERT_EQ(ScreenRegistry::instance().openScreens().size(), 1) << "the report stays open";
    boxes.expect("Printed?", deliveryTagging().question, BoxAnswer::Yes);
    EXPECT_TRUE(ScreenRegistry::instance().openScreens().first()->unload());
    EXPECT_TRUE(isTagged());
}

TEST_F(ReportStart, AListIsExportedWithoutAQuestion) {
    addSaleOf(1);
    session().ExportFileName = folder_.filePath("list.txt");
    boxes.expect("Thank You!", "File is saved at : " + session().ExportFileName);
    EXPECT_TRUE(runFromPrintScreen(report(), ReportTarget::PlainText));
    EXPECT_TRUE(contentOf(session().ExportFileName).contains("Reyes Trading"));
}

// What is typed besides comes when the work is done.
TEST_F(ReportStart, EscEndsALongReportAndLeavesNothing) {
    addSaleOf(10000);
    const QTemporaryDir folder;
    session().ExportFileName = folder.filePath("long.txt");
    QLineEdit line;
    line.show();
    line.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&line));
    for (const ReportTarget target : {ReportTarget::PlainText, ReportTarget::Printer}) {
        QTimer::singleShot(0, [&] {
            for (const auto& [key, text] : {std::pair{Qt::Key_A, "a"}, std::pair{Qt::Key_Escape, ""}})
                QCoreApplication::postEvent(line.windowHandle(),
                                            new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
        });
        EXPECT_FALSE(runFromPrintScreen(report(), target, &deliveryTagging()));
    }
    person::settle();
    EXPECT_EQ(line.text(), "aa");
    EXPECT_FALSE(isTagged());
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

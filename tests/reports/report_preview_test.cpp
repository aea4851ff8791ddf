#include "reports/frame/report_preview.h"

#include "platform/store/store_error.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/program_style.h"
#include "platform/ui/screen_registry.h"
#include "reports/frame/page_thumbnails.h"
#include "reports/frame/page_view.h"
#include "reports/frame/report_printer.h"
#include "support/box_script.h"
#include "support/files.h"
#include "support/screen_checks.h"
#include "support/screen_driver.h"
#include "support/screen_tour.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QDir>
#include <QPrinter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {
// As many numbered lines as asked for.
class NumberedRows : public ReportSource {
  public:
    explicit NumberedRows(int count, int failAt = -1) : count_(count), failAt_(failAt) {}
    bool next() override {
        if (++at_ == failAt_) throw StoreError(StoreError::refused, "The store is gone.");
        return at_ <= count_;
    }
    qsizetype rowCount() const override { return count_; }
    void lookBack(bool looksBack) override { at_ += looksBack ? -1 : 1; }
    QString text(const QString&) const override { return QString("Customer %1").arg(at_); }
    Currency currency(const QString&) const override { return Currency::fromInteger(at_); }
    QDateTime dateTime(const QString&) const override { return {}; }
    bool isNull(const QString&) const override { return false; }

  private:
    int count_, failAt_, at_ = 0;
};

const ReportLayout list{
    "prtCustomers",
    "Customers...",
    letterPortrait(720, 720, 10800),
    {section(SectionKind::PageHeader, 480, {label("lblTitle", "Customers", 0, 0, 4000, 300, bold(12))}),
     section(SectionKind::Detail, 270,
             {field("txtName", "Name", 0, 0, 3000, 225),
              field("txtAmount", "Amount", 3000, 0, 1500, 225, rightAligned(), "#,##0.00")}),
     section(SectionKind::PageFooter, 300,
             {label("lblEnd", "Page footer", 0, 0, 1500, 225),
              showing(Shows::PageCount, field("fldPageCount", "", 2000, 0, 600, 225))})}};

std::unique_ptr<ReportJob> jobOf(int rows, int failAt = -1) {
    return std::make_unique<ReportJob>(
        ReportJobParts{list, std::make_unique<NumberedRows>(rows, failAt), {}});
}

class ReportPreviewTest : public ::testing::Test {
  protected:
    void TearDown() override {
        closeOpenScreens();
        desk::setDoors({});
    }

    ReportPreview* open(int rows, PreviewHooks hooks = {}, int failAt = -1) {
        auto* preview = new ReportPreview(jobOf(rows, failAt), std::move(hooks));
        preview->resize(1000, 640);
        ScreenRegistry::instance().show(preview);
        preview->activateWindow();
        return preview;
    }
    ReportPreview* openWhole(int rows, PreviewHooks hooks = {}) {
        ReportPreview* preview = open(rows, std::move(hooks));
        EXPECT_TRUE(QTest::qWaitFor([&] { return preview->job().isComplete(); }, 30000));
        person::settle();
        return preview;
    }
    static PageView* view(ReportPreview* preview) { return preview->findChild<PageView*>(); }
    void saveTo(const QString& path) {
        desk::Doors doors;
        doors.saveFile = [path](const QString&) { return path; };
        desk::setDoors(doors);
    }

    QTemporaryDir folder_;
};
}  // namespace

TEST_F(ReportPreviewTest, PageOneIsThereBeforeTheEndAndItsCountIsPending) {
    int finished = 0;
    ReportPreview* preview = open(5000, {.finished = [&](ReportPreview&) { ++finished; }});
    EXPECT_EQ(preview->job().shownPages(), 1);
    EXPECT_EQ(view(preview)->verticalScrollBar()->value(), 0);
    EXPECT_TRUE(person::read(preview, "lblPages").contains("..."));
    EXPECT_FALSE(preview->findChild<QAction*>("tbrPages_SavePdf")->isEnabled());
    preview->savePdf();  // not yet: asks for no file
    EXPECT_EQ(finished, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return finished > 0; }, 20000));
    EXPECT_TRUE(preview->job().isComplete());
    EXPECT_EQ(person::read(preview, "lblPages").trimmed(), "of 100");
    EXPECT_TRUE(preview->findChild<QAction*>("tbrPages_SavePdf")->isEnabled());
    EXPECT_EQ(finished, 1);
}

TEST_F(ReportPreviewTest, EveryCommandHasItsKey) {
    ReportPreview* preview = openWhole(1000);
    PageView* pages = view(preview);
    const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        person::press(key, modifiers);
    };
    const int last = preview->job().shownPages() - 1;
    press(Qt::Key_End);
    EXPECT_EQ(pages->page(), last);
    press(Qt::Key_PageUp);
    EXPECT_EQ(pages->page(), last - 1);
    press(Qt::Key_Home);
    press(Qt::Key_PageDown);
    EXPECT_EQ(pages->page(), 1);
    press(Qt::Key_G);
    person::type("7");
    press(Qt::Key_Return, Qt::NoModifier);
    EXPECT_EQ(pages->page(), 6);
    EXPECT_EQ(person::focusName(), "PageView");

    press(Qt::Key_0);
    EXPECT_EQ(pages->zoom(), 100);
    press(Qt::Key_Plus);
    EXPECT_EQ(pages->zoom(), 125);
    press(Qt::Key_Minus);
    press(Qt::Key_Minus);
    EXPECT_EQ(pages->zoom(), 75);
    EXPECT_EQ(pages->page(), 6) << "the zoom keeps the page";
    for (int i = 0; i < 20; ++i) press(Qt::Key_Plus);
    EXPECT_EQ(pages->zoom(), 800);
    for (int i = 0; i < 20; ++i) press(Qt::Key_Minus);
    EXPECT_EQ(pages->zoom(), 10);
    press(Qt::Key_1);
    EXPECT_EQ(pages->fit(), PageView::FitPage);
    press(Qt::Key_2);
    EXPECT_EQ(pages->fit(), PageView::FitWidth);

    press(Qt::Key_3);
    EXPECT_FALSE(pages->isContinuous());
    pages->goToPage(3);
    press(Qt::Key_1);
    press(Qt::Key_PageDown, Qt::NoModifier);
    EXPECT_EQ(pages->page(), 4) << "nothing left to scroll: the page turns";
    press(Qt::Key_4);
    EXPECT_TRUE(pages->isContinuous());
    EXPECT_EQ(pages->page(), 4);

    press(Qt::Key_C);
    const QString page = QApplication::clipboard()->text();
    EXPECT_TRUE(page.startsWith("        Customers")) << qPrintable(page);
    EXPECT_FALSE(page.contains('\f'));
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), reportOutput::plainText(preview->job().pages()));

    const QPointer<ReportPreview> open = preview;
    press(Qt::Key_Escape, Qt::NoModifier);
    EXPECT_TRUE(!open || open->hasUnloaded());
}

TEST_F(ReportPreviewTest, SearchFindsOnEveryPageAndGoesAround) {
    ReportPreview* preview = openWhole(1000);
    person::press(Qt::Key_F3);
    EXPECT_EQ(person::focusName(), "txtFind");
    person::type("customer 99");
    EXPECT_EQ(preview->search().hits().size(), 11u);  // 99 and 990 to 999
    EXPECT_EQ(person::read(preview, "lblHits").trimmed(), "1 of 11");
    EXPECT_EQ(view(preview)->page(), 1);
    person::press(Qt::Key_Return);
    EXPECT_EQ(view(preview)->page(), preview->job().shownPages() - 1);
    person::press(Qt::Key_F3, Qt::ShiftModifier);
    person::press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(person::read(preview, "lblHits").trimmed(), "11 of 11");
    person::fill(preview, "txtFind", "nobody");
    EXPECT_EQ(person::read(preview, "lblHits").trimmed(), "Not found");
}

// The mark stands where the text is painted: on ink, at the right end of what is aligned right.
TEST_F(ReportPreviewTest, AHitIsMarkedWhereItsTextStands) {
    const auto job = jobOf(3);
    while (job->layOutPage()) {
    }
    PageSearch search;
    search.setText("00");
    search.searchTo(job->pages(), 1);
    ASSERT_EQ(search.hits().size(), 3u);
    const QRect place = search.place(search.hits()[0], *job);
    EXPECT_NEAR(place.left() + place.width(), 720 + 4500, 15);
    EXPECT_LT(place.width(), 400);
    search.setText("page FOOTER");
    search.searchTo(job->pages(), 1);
    EXPECT_EQ(search.hits().size(), 1u);
}

TEST_F(ReportPreviewTest, SavesTheSamePagesAndAsksBeforeItWritesOver) {
    ReportPreview* preview = openWhole(120);
    saveTo(folder_.filePath("list"));
    preview->savePdf();
    EXPECT_TRUE(contentOf(folder_.filePath("list.pdf")).startsWith("%PDF"));
    saveTo(folder_.filePath("list.rtf"));
    preview->saveRichText();
    EXPECT_TRUE(contentOf(folder_.filePath("list.rtf")).startsWith("{\\rtf"));
    saveTo(folder_.filePath("list.txt"));
    preview->saveText();
    const QByteArray text = contentOf(folder_.filePath("list.txt"));
    EXPECT_EQ(text, reportOutput::plainText(preview->job().pages()).toUtf8());
    saveTo(folder_.filePath("list.xlsx"));
    preview->savePdf();  // the name tells the kind
    EXPECT_TRUE(contentOf(folder_.filePath("list.xlsx")).startsWith("PK"));

    const QStringList before = QDir(folder_.path()).entryList();
    {
        BoxScript boxes;
        boxes.expect("Save as Text", folder_.filePath("list.txt") + " already exists. Write over it?",
                     BoxAnswer::No);
        saveTo(folder_.filePath("list"));
        preview->saveText();
    }
    EXPECT_EQ(QDir(folder_.path()).entryList(), before);
    EXPECT_EQ(contentOf(folder_.filePath("list.txt")), text);
}

TEST_F(ReportPreviewTest, PrintsThePagesAndSaysWhenThereIsNoPrinter) {
    ReportPreview* preview = openWhole(120);
    {
        BoxScript boxes;
        boxes.expect("No Printer!");
        desk::setDoors({.printer = [] { return nullptr; }});
        person::press(Qt::Key_P, Qt::ControlModifier);
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder_.filePath("printed.pdf"));
    reportPrinter::setUpPaper(printer, preview->job().pages());
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 3);
    EXPECT_EQ(reportPrinter::sendPages(printer, preview->job().pages(), preview->job().rendering()), "");
    const QByteArray printed = contentOf(folder_.filePath("printed.pdf"));
    EXPECT_TRUE(printed.contains("/Count 2"));
    EXPECT_TRUE(printed.contains("612") && printed.contains("792")) << "letter, to its edges";

    printer.setOutputFileName(folder_.filePath("none/printed.pdf"));
    EXPECT_NE(reportPrinter::sendPages(printer, preview->job().pages(), preview->job().rendering()), "");
}

// What the documents ask on closing is asked once, and only of a report that is complete.
TEST_F(ReportPreviewTest, ClosingAsksOnceAndNotBeforeTheLastPage) {
    int asked = 0, finished = 0;
    const PreviewHooks hooks{.finished = [&](ReportPreview&) { ++finished; }, .queryClose = [&] { ++asked; }};
    const QPointer<ReportPreview> early = open(50000, hooks);
    QCoreApplication::processEvents();
    person::press(Qt::Key_Escape);
    EXPECT_TRUE(!early || early->hasUnloaded());
    QTest::qWait(50);
    EXPECT_EQ(asked + finished, 0);

    ReportPreview* first = openWhole(60, hooks);
    ReportPreview* second = openWhole(60, hooks);
    EXPECT_TRUE(first != second && first->isVisible() && second->isVisible());
    first->CloseRecord();
    second->CloseRecord();
    EXPECT_EQ(finished, 2);
    EXPECT_EQ(asked, 2);

    open(10, {.finished = [](ReportPreview& preview) { preview.unload(); }, .queryClose = [&] { ++asked; }});
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 3; })) << "a report that unloads itself is asked, too";
    person::settle();
    EXPECT_TRUE(ScreenRegistry::instance().openScreens().isEmpty());
}

TEST_F(ReportPreviewTest, AFaultOnTheWayIsTold) {
    BoxScript boxes;
    boxes.expect("Error...");
    ReportPreview* preview = open(5000, {.finished = [](ReportPreview&) { ADD_FAILURE(); }}, 2000);
    ASSERT_TRUE(QTest::qWaitFor([&] { return boxes.allShown(); }, 10000));
    QTest::qWait(20);
    EXPECT_FALSE(preview->job().isComplete());
    preview->savePdf();
    EXPECT_TRUE(preview->unload());
}

TEST_F(ReportPreviewTest, AThousandPagesComeBetweenTheKeys) {
    ReportPreview* preview = open(52000);
    int turns = 0;
    preview->toggleThumbnails();
    while (!preview->job().isComplete()) {
        QTest::keyClick(view(preview), Qt::Key_PageDown);
        QCoreApplication::processEvents();
        ++turns;
    }
    EXPECT_GT(preview->job().shownPages(), 1000);
    EXPECT_GT(turns, 1) << "a key came in while it was made";
    EXPECT_GT(view(preview)->page(), 0);
    const auto* thumbnails = preview->findChild<PageThumbnails*>();
    EXPECT_EQ(thumbnails->rowCount(), preview->job().shownPages());
    EXPECT_LT(thumbnails->picturesMade(), 700) << "only those that were seen";
}

TEST_F(ReportPreviewTest, IsReadable) {
    QApplication::setStyle(new ProgramStyle);
    ReportPreview* preview = openWhole(200);
    preview->toggleThumbnails();
    person::fill(preview, "txtFind", "12");
    person::settle();
    EXPECT_EQ(check::faults(preview), QStringList());
}

#include "reports/frame/report_preview.h"
#include "shell/frame_fixture.h"

#include "platform/ui/file_dialogs.h"
#include "reports/frame/page_view.h"
#include "reports/sales_by_town.h"
#include "support/screen_driver.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

namespace {
ReportPreview* openPreview() {
    const ReportLayout layout{
        "prtLines",
        "Lines...",
        letterPortrait(720, 720, 10800),
        {section(SectionKind::Detail, 270, {field("txtLine", "Line", 0, 0, 3000, 225)})}};
    QList<QStringList> lines;
    for (int line = 1; line <= 200; ++line) lines += QStringList(QString("Line %1").arg(line));
    auto* preview = new ReportPreview(std::make_unique<ReportJob>(
        ReportJobParts{layout, std::make_unique<Rows>(QStringList("Line"), lines), {}}));
    ScreenRegistry::instance().show(preview);
    EXPECT_TRUE(QTest::qWaitFor([&] { return preview->job().isComplete(); }));
    person::settle();
    return preview;
}
}  // namespace

// The frame's menus have keys of their own: those of the preview do what they do there, too.
TEST_F(FrameTest, APreviewKeepsItsKeysBesideTheMenus) {
    logIn();
    openPreview();
    const QPointer<ReportPreview> other = openPreview();
    EXPECT_EQ(frame->findChildren<ReportPreview*>().size(), 2);
    EXPECT_EQ(person::focusName(), "PageView");

    person::press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().contains("Line 1\n"));
    person::press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_GT(other->findChild<PageView*>()->page(), 0);
    choose("mnuRecordItem_7");  // First
    EXPECT_EQ(other->findChild<PageView*>()->page(), 0);

    QStringList asked;
    desk::Doors doors;
    doors.saveFile = [&](const QString& title) {
        asked += title;
        return QString();
    };
    desk::setDoors(doors);
    person::press(Qt::Key_S, Qt::ControlModifier);
    person::press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(asked, (QStringList{"Save as PDF", "Save as Text"}));
    desk::setDoors({});

    person::press(Qt::Key_Escape);
    EXPECT_TRUE(!other || other->hasUnloaded());
    person::press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(ScreenRegistry::instance().opened("prtLines"), nullptr);
}

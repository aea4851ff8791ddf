#include "platform/ui/column_header.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/field_width.h"
#include "platform/ui/form.h"
#include "platform/ui/list_look.h"
#include "platform/ui/list_view.h"
#include "platform/ui/popup_frame.h"
#include "platform/ui/program_style.h"
#include "platform/ui/readable_palette.h"
#include "platform/ui/text_box.h"
#include "platform/ui/total_strip.h"
#include "support/dark_desk.h"
#include "support/screen_driver.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

class UiLooks : public ::testing::Test {
  protected:
    static void SetUpTestSuite() { QApplication::setStyle(new ProgramStyle); }

    // The columns of a picture, from the left, in which something is drawn.
    static QList<int> inkIn(const QImage& picture) {
        QList<int> ink;
        for (int x = 0; x < picture.width(); ++x)
            for (int y = 1; y < picture.height() - 1; ++y)
                if (contrastOf(picture.pixelColor(x, y), picture.pixelColor(0, y)) > 2) {
                    ink += x;
                    break;
                }
        return ink;
    }
};

TEST_F(UiLooks, CellsAreSetApartAndTheFreeWidthGoesToTheNames) {
    ListView list("lvwItems", {{"Total", 12, ListColumn::Number}, {"Name", 20}, {"Printed", 8}});
    list.setRows({{"3,323.22", "Peñaflor", "No"}});
    list.resize(900, 200);
    person::look(&list);
    const int padding = list_look::padding(&list);
    EXPECT_EQ(padding, list.logicalDpiX() * 6 / 72);
    const QModelIndex total = list.model()->index(0, 0);
    const QRect cell = list.visualRect(total);
    EXPECT_EQ(cell.height(), list.fontMetrics().height() * 3 / 2);
    const QList<int> ink = inkIn(list.viewport()->grab(cell).toImage());
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_LT(ink.last(), cell.width() - padding + 1);
    EXPECT_GT(ink.last(), cell.width() - padding - 4) << "figures stand at the right";
    EXPECT_EQ(list.header()->length(), list.header()->viewport()->width()) << "nothing is left over";
    EXPECT_GT(list.columnWidth(1), 2 * (list.columnWidth(0) + list.columnWidth(2)));
    list.resize(1200, 200);
    person::settle();
    EXPECT_EQ(list.header()->length(), list.header()->viewport()->width());
    const auto* header = static_cast<const ColumnHeader*>(list.header());
    EXPECT_LT(header->arrowRect(0).right(), list.columnWidth(0) / 2) << "before a figure's heading";
    EXPECT_GT(header->arrowRect(1).left(), list.columnWidth(0) + list.columnWidth(1) / 2);
}

TEST_F(UiLooks, TheFocusIsSeenAndAnEmptyListSaysWhatFillsIt) {
    QWidget screen;
    ListView list("lvwItems", {{"Name", 20}}, &screen);
    QLineEdit other(&screen);
    list.resize(300, 200);
    other.move(0, 250);
    list_look::sayWhenEmpty(&list, "Insert adds one.");
    person::look(&screen);
    const auto* note = list.findChild<QLabel*>("lblEmpty");
    ASSERT_TRUE(note && note->isVisible());
    EXPECT_EQ(list.accessibleDescription(), note->text());
    const auto pictureWithFocusAt = [&](QWidget* widget) {
        widget->setFocus();
        person::settle();
        return list.grab().toImage();
    };
    EXPECT_NE(pictureWithFocusAt(&list), pictureWithFocusAt(&other)) << "empty";
    list.addRow({"Rice"});
    list.setCurrentRow(0);
    EXPECT_FALSE(note->isVisible());
    EXPECT_NE(pictureWithFocusAt(&list), pictureWithFocusAt(&other)) << "with a selected row";
}

TEST_F(UiLooks, ATotalStandsUnderItsColumnAndAFieldHasTheWidthOfWhatItHolds) {
    QWidget screen;
    auto* list = new ListView("lvwItems", {{"Name", 20}, {"Total", 12, ListColumn::Number}, {"Remarks", 12}});
    TextBox* total = readOnlyBox("txtAmount", Qt::AlignRight);
    auto* number = new TextBox("txtCode");
    field_width::fix(number, field_width::number);
    auto* column = new QVBoxLayout(&screen);
    auto* grid = new QGridLayout;
    form::row(grid, 0, 0, "No. :", number);
    column->addLayout(grid);
    column->addWidget(list);
    column->addWidget(new TotalStrip(list, 1, form::label("Total :", total), total));
    QSet<int> widths;
    for (const int width : {1024, 1920}) {
        screen.resize(width, 400);
        person::look(&screen);
        widths << number->width();
        const int end = list->header()->sectionViewportPosition(1) + list->header()->sectionSize(1);
        const int right = total->mapTo(&screen, total->rect().topRight()).x();
        EXPECT_NEAR(right, list->mapTo(&screen, QPoint(end, 0)).x(), 12) << width;
    }
    EXPECT_EQ(widths.size(), 1);
    EXPECT_TRUE(total->font().bold());
}

TEST_F(UiLooks, APopupHasItsTitleOnEveryDesktop) {
    QDialog popup;
    popup.setWindowTitle("Order Item");
    auto* inside = new QLabel("Item Code :");
    (new QVBoxLayout(&popup))->addWidget(inside);
    PopupFrame::dress(&popup);
    person::look(&popup);
    auto* close = popup.findChild<QToolButton*>("popupClose");
    ASSERT_TRUE(close);
    EXPECT_GT(inside->y(), close->geometry().bottom());
    EXPECT_TRUE(popup.windowFlags() & Qt::FramelessWindowHint) << "the desktop draws no second one";
    person::click(close);
    EXPECT_FALSE(popup.isVisible());
}

}  // namespace

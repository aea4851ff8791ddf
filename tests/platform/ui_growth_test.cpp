#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/form.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/grid_picker.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "support/growth.h"
#include "support/screen_driver.h"
#include "support/test_store.h"

#include <QApplication>

#include <gtest/gtest.h>

static constexpr qint64 fiveMegabytes = 5 * 1024 * 1024;
static const QList<GridColumn> columns = {{"Item Code", "ItemCode"}, {"Description", "Description"}};
static const DataGrid::Source items = {"*", "tblItemMaster", "tblItemMaster", {}, " ORDER BY ItemCode"};

namespace {
// One of every control.
class Everything : public ChildScreen {
  public:
    explicit Everything(Connection& store) : ChildScreen("frmEverything", "Everything") {
        auto* layout = new QGridLayout(this);
        form::row(layout, 0, 0, "&Name :", new TextBox("txtName"));
        form::row(layout, 1, 0, "&Unit :", new ComboBox("cboUnit", ComboBox::Open));
        form::row(layout, 2, 0, "&Kind :", new ComboBox("cboKind", ComboBox::Closed));
        auto* list = new ListView("lvwItems", {{"Item Code"}, {"Total", 12, ListColumn::Number}});
        list->setRows(QList<QStringList>(1000, {"A", "1.00"}));
        layout->addWidget(list, 3, 0);
        auto* grid = new DataGrid("dbgItem", "adcItem", columns);
        grid->setSource(store, items);
        layout->addWidget(grid, 3, 1);
        layout->addWidget(form::button("cmdSave", "&Save", "save"), 4, 1);
    }
};
}  // namespace

static void openAndClose(Connection& store) {
    auto* screen = new Everything(store);
    ScreenRegistry::instance().show(screen);
    person::settle();
    auto* picker = new GridPicker("frmFound", "Search", columns, {}, [](const GridPicker::Row&) {});
    picker->list(store, items);
    ScreenRegistry::instance().show(picker);
    person::settle();
    picker->unload();
    frmStatus status;
    status.begin("Please Wait...", 1);
    status.end();
    screen->unload();
}

TEST(UiGrowth, OpeningAndClosingLeavesNothingBehind) {
    TestStore store;
    for (int item = 0; item < 300; ++item)
        addItem(store.connection(), {QString::number(item), "Nails", amount(1), amount(2), {}, {}, "PC"});
    const check::Growth growth = check::growthOf([&] { openAndClose(store.connection()); });
    EXPECT_EQ(growth.widgets, 0);
    EXPECT_LT(growth.bytes, fiveMegabytes);
    RecordProperty("bytes", static_cast<int>(growth.bytes));
    EXPECT_TRUE(ScreenRegistry::instance().openScreens().isEmpty());
}

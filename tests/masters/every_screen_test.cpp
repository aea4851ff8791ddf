#include "masters_screen_fixture.h"
#include "platform/ui/data_grid.h"
#include "support/screen_checks.h"
#include "support/screen_driver.h"

#include <QElapsedTimer>

namespace {
class EveryMasterScreen : public ScreenTest {
  protected:
    void expectReadable(ChildScreen* shown) {
        shown->resize(shown->sizeHint().expandedTo(shown->minimumSizeHint()));
        person::settle();
        EXPECT_LE(shown->width(), 1000) << qPrintable(shown->objectName());
        EXPECT_LE(shown->height(), 620) << qPrintable(shown->objectName());
        EXPECT_EQ(check::faults(shown).join('\n').toStdString(), "") << qPrintable(shown->objectName());
    }
};

TEST_F(EveryMasterScreen, IsReadableOpenAndLocked) {
    for (const char* name : {"frmItem", "frmContacts", "frmUnitGrid"}) {
        screen = open(name);
        expectReadable(screen);
        command("NewRecord");
        expectReadable(screen);
        screen->unload();
    }
}

TEST_F(EveryMasterScreen, TenThousandItemsGiveNoPause) {
    addItem("1000000000", "THE FIRST");
    std::vector<QVariantList> rows;
    for (int i = 1; i <= 10'000; ++i)
        rows.push_back({QString::number(1'000'000'000 + i), QString("PIPE %1 FEET").arg(i)});
    store().runMany("INSERT INTO tblItemMaster (ItemCode, Description, CostPrice) VALUES (?, ?, 10000)",
                    rows);
    screen = open("frmItem");
    QElapsedTimer timer;
    timer.start();
    press("cmdAll");
    clickHeader(1);
    set("txtSearch", "pipe");
    set("txtSecondSearch", "999");
    press("cmdSearch");
    command("LastRecord");
    for (int i = 0; i < 100; ++i) command("PrevRecord");
    command("RefreshRecord");
    // A hundred and five acts; reading the table for each would take many seconds.
    EXPECT_LT(timer.elapsed(), 2000);
    EXPECT_EQ(countText(), "There are 10,001 Records in the Item Master File Database...");
}
}  // namespace

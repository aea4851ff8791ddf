#include "masters/frmContactFound.h"
#include "masters/frmFound.h"
#include "masters_screen_fixture.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/text_box.h"
#include "support/screen_checks.h"
#include "support/screen_driver.h"

#include <QCheckBox>
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
    addItem("1000000001", "STEEL NAIL");
    for (const char* name : {"frmItem", "frmContacts", "frmUnitGrid"}) {
        screen = open(name);
        expectReadable(screen);
        command("NewRecord");
        expectReadable(screen);
        screen->unload();
    }
    expectReadable(openItemFound(store(), "", "D", {}));
    expectReadable(openContactFound(store(), "", "", {}));
}

TEST_F(EveryMasterScreen, HostileTextsAreStoredExactly) {
    const QStringList texts{"O'Hara's",
                            "100%_\\",
                            "<b>bold</b> &amp;",
                            "\"; DROP TABLE tblContactMaster; --",
                            QString::fromUtf8("مرحبا ñandú 🧾"),
                            QString(100, u'W')};
    screen = open("frmContacts");
    for (const QString& hostile : texts) {
        command("NewRecord");
        person::paste(hostile);
        flag("chkCustomer")->setChecked(true);
        command("SaveRecord");
        EXPECT_EQ(
            valueOf(store(), {"SELECT ContactName FROM tblContactMaster WHERE ContactName = ?", {hostile}}),
            hostile);
        // The search finds it as it stands; only % and _ stand for other characters.
        combo("cboSearchBy")->setText("Name");
        set("txtSearch", hostile);
        press("cmdSearch");
        EXPECT_EQ(grid()->currentText("ContactName"), hostile);
    }
    EXPECT_EQ(count("tblContactMaster"), texts.size() + 1);
}

TEST_F(EveryMasterScreen, ATextThatDoesNotFitIsRefusedWhole) {
    screen = open("frmItem");
    command("NewRecord");
    person::paste(QString(100'000, u'x'));
    EXPECT_EQ(takeBoxes().size(), 1);
    EXPECT_EQ(text("txtDescription"), "");
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

#include "journeys/journey.h"

#include <QApplication>
#include <QCheckBox>

// The letters of the entry screen's own controls, which the menu bar has too.
TEST_F(Journey, TheLettersOfAScreenComeBeforeThoseOfTheMenus) {
    play("log in ADMIN admin");
    person::choose("mnuTransactionItem_2");
    QWidget* journal = person::screen("frmSalesGrid");
    person::goTo(journal, "dbgMyGrid");
    person::press(Qt::Key_N, Qt::AltModifier);
    QWidget* entry = person::screen("frmSalesEntry");

    person::press(Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(person::find<QCheckBox>(entry, "chkWholesale")->isChecked());
    {
        BoxScript boxes;
        boxes.expect("Error!", "Please Select Customer First!");
        person::press(Qt::Key_A, Qt::AltModifier);
    }
    EXPECT_FALSE(QApplication::activePopupWidget());

    // A letter that the screen does not know opens the menu.
    person::press(Qt::Key_M, Qt::AltModifier);
    ASSERT_TRUE(QApplication::activePopupWidget());
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "mnuMaintenance");
    QApplication::activePopupWidget()->close();
}

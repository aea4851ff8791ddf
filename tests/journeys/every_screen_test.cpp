#include "journeys/journey.h"

#include "documents/document_entry.h"
#include "foundation/start.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/date_box.h"
#include "platform/ui/screen_registry.h"
#include "reports/documents/print_kinds.h"
#include "shell/menu_catalogue.h"
#include "support/contrast_check.h"
#include "support/dark_desk.h"
#include "support/growth.h"
#include "support/screen_checks.h"
#include "support/screen_tour.h"

#include <QPushButton>

namespace {

// The firm has a document in every journal, one of them waiting, and a pending check of each side.
class EveryScreen : public Journey {
  protected:
    void SetUp() override {
        Journey::SetUp();
        const QDate today = onDay(1);
        addPurchase(store(), {.number = "03-1001-2026",
                              .date = today,
                              .contactId = "1000000001",
                              .lines = {{.item = "1001", .quantity = amount(5), .price = amount(5)}}});
        addSale(store(), {.number = "03-1001-2026",
                          .date = today,
                          .contactId = "1000000002",
                          .lines = {{.item = "1001", .quantity = amount(1), .price = amount(10)}}});
        insertRow(store(), "tblReceiptMaster", "PayNo, CustomerNo, PaymentDate", {1, "1000000002", today});
        insertRow(store(), "tblReceiptDetails",
                  "ZevRef, PayCode, Reference, Amount, CheckNo, CheckDate, CheckStatus",
                  {1, 1, "03-1001-2026", bound(amount(1)), "BPI 000451", today, "Pending"});
        insertRow(store(), "tblDisbursementMaster", "VoucherNo, VoucherDate, ContactNo",
                  {"03-1001-2026", today, "1000000001"});
        insertRow(store(), "tblChecks", "ZevRef, VoucherID, CheckNo, CheckDate, ContactNo, CheckStatus",
                  {1, "03-1001-2026", "000123", today, "1000000001", "Pending"});
    }

    void TearDown() override {
        failOnUnexpectedBoxes();
        Journey::TearDown();
    }
};

TEST_F(EveryScreen, IsThereForEveryItemOfTheMenus) {
    std::vector<MenuItem> items = spareRows();
    for (const MenuTable& menu : menuCatalogue())
        items.insert(items.end(), menu.rows.begin(), menu.rows.end());
    int screens = 0;
    for (const MenuItem& item : items)
        if (const auto* open = std::get_if<OpenScreen>(&item.action)) {
            EXPECT_TRUE(ScreenRegistry::instance().knows(open->screen)) << item.caption;
            EXPECT_TRUE(QString(open->screen) != "frmPrint" || findPrintKind(open->kind)) << item.caption;
            ++screens;
        }
    EXPECT_GT(screens, 40);
}

// Runs once more at twice the scale (see tests/CMakeLists.txt).
TEST_F(EveryScreen, IsReadableNamedAndWalkedAsTheEyeGoes) {
    QStringList seen;
    tourScreens("ADMIN", "admin", [&](const QString& name, QWidget* screen) {
        seen += name;
        const auto expectNoFaults = [&](const char* state) {
            person::settle();
            EXPECT_EQ(check::faults(screen).join('\n').toStdString(), "") << qPrintable(name) << state;
        };
        expectNoFaults(" as it opens");
        if (screen->metaObject()->indexOfMethod("NewRecord()") < 0) return;
        QMetaObject::invokeMethod(screen, "NewRecord");
        expectNoFaults(" with a new record");
    });
    for (const char* popup :
         {"frmFound", "frmSalesFound", "frmDisbursementFound", "frmAddItem", "frmAddReceipt", "frmAddPayment",
          "frmAddCheck", "frmNegReceivableStatus", "frmNegPayableStatus"})
        EXPECT_TRUE(seen.contains(popup)) << popup << " is not in the tour";
}

TEST_F(EveryScreen, IsReadableInDarkColours) {
    closeProgram();
    useDarkDesk();
    ASSERT_TRUE(Main());
    tourScreens("ADMIN", "admin", [](const QString& name, QWidget* screen) {
        person::settle();
        EXPECT_EQ(check::weakTexts(screen).join('\n').toStdString(), "") << qPrintable(name);
    });
    useLightDesk();
}

// The date that a person can type into, as the screen is ready for it.
QList<DateBox*> openDates(QWidget* screen) {
    if (screen->metaObject()->indexOfMethod("NewRecord()") >= 0)
        QMetaObject::invokeMethod(screen, "NewRecord");
    if (screen->findChild<QWidget*>("chkCash") && screen->findChild<QWidget*>("txtSANo"))
        person::fill(screen, "txtCheckNo", "BPI 000452");
    if (auto* category = screen->findChild<ComboBox*>("cboSearchBy")) category->setText("Check Date Period");
    person::settle();
    QList<DateBox*> open;
    for (DateBox* date : screen->findChildren<DateBox*>())
        if (date->isVisible() && date->isEnabled() && !date->isReadOnly()) open += date;
    return open;
}

// Another field of the screen, or the button of this name.
void leaveFor(QWidget* screen, const DateBox* date, const QString& button = {}) {
    if (!button.isEmpty()) return person::goTo(screen, button);
    for (QWidget* field : screen->findChildren<QWidget*>())
        if (field != date && field->isVisible() && field->isEnabled() && !field->focusProxy() &&
            (field->focusPolicy() & Qt::TabFocus) && !qobject_cast<QAbstractButton*>(field))
            return person::goTo(screen, field->objectName());
    ADD_FAILURE() << qPrintable(screen->objectName()) << " has no other field";
}

TEST_F(EveryScreen, TestsADateWhenItsFieldIsLeft) {
    QStringList tested;
    int boxes = 0;
    tourScreens("ADMIN", "admin", [&](const QString& name, QWidget* screen) {
        setBoxAnswerer([&](const Box& box) {
            ++boxes;
            return box.buttons == BoxButtons::YesNoCancel ? BoxAnswer::No : defaultAnswer(box);
        });
        for (DateBox* date : openDates(screen)) {
            const std::string which = (name + ' ' + date->objectName()).toStdString();
            const auto boxesOf = [&](const char* typed, const QString& button = {}) {
                boxes = 0;
                person::fill(screen, date->objectName(), typed);
                leaveFor(screen, date, button);
                return boxes;
            };
            EXPECT_EQ(boxesOf("11/31/2026"), 1) << which;
            for (const char* button : {"cmdCancel", "cmdExit", "cmdOK"})
                EXPECT_EQ(screen->findChild<QPushButton*>(button) ? boxesOf("23", button) : 0, 0) << which;
            EXPECT_EQ(boxesOf("3/2/26"), 0) << which;
            EXPECT_EQ(date->text(), "03/02/2026") << which;
            tested += name + "." + date->objectName();
        }
    });
    EXPECT_GE(tested.size(), 27) << qPrintable(tested.join(' '));
}

TEST_F(EveryScreen, OfADocumentAsksAboutWhateverWasTyped) {
    play("log in ADMIN admin");
    BoxScript boxes;
    boxes.record([](const Box&) { return BoxAnswer::No; });
    int typed = 0;
    for (const QString& name : ScreenRegistry::instance().names()) {
        auto* entry = qobject_cast<DocumentEntry*>(openRegistered(name));
        for (TextBox* box : entry ? entry->findChildren<TextBox*>() : QList<TextBox*>()) {
            if (box->isReadOnly() || !box->isEnabled()) continue;
            entry->mblnUpdated = false;
            box->setFocus();
            person::type("1");
            EXPECT_TRUE(entry->mblnUpdated) << qPrintable(name + ' ' + box->objectName());
            ++typed;
        }
        closeOpenScreens();
    }
    EXPECT_GT(typed, 20);
}

TEST_F(EveryScreen, LeavesNothingBehind) {
    play("log in ADMIN admin");
    BoxScript boxes;
    boxes.record();
    const qint64 megabyte = 1024 * 1024;
    for (const QString& name : ScreenRegistry::instance().names()) {
        const check::Growth growth = check::growthOf([&] {
            openRegistered(name);
            closeOpenScreens();
        });
        EXPECT_LT(growth.bytes, 5 * megabyte) << qPrintable(name);
        EXPECT_LE(growth.widgets, 0) << qPrintable(name);
    }
}

}  // namespace

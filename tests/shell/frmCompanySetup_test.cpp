#include "shell/frmCompanySetup.h"

#include "platform/ui/file_dialogs.h"
#include "platform/ui/text_box.h"
#include "support/box_script.h"
#include "support/test_store.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

class CompanyTest : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        screen = new frmCompanySetup;
        screen->show();
    }
    void TearDown() override {
        desk::setDoors({});
        delete screen;
        SessionTest::TearDown();
    }
    TextBox* box(const char* name) { return screen->findChild<TextBox*>(name); }
    QString stored(const char* column) {
        return store().execute("SELECT * FROM tblSystemProfile").text(column);
    }

    BoxScript boxes;
    QPointer<frmCompanySetup> screen;
};

TEST_F(CompanyTest, WhatIsSavedReadsBackTrimmedWithFourDecimals) {
    box("txtCompanyName")->setText(" Tindahan ni Aling Nena ");
    box("txtCompanyAddress")->setText("It's 5 < 6 & <b>\\");
    box("txtTax")->setText("12.5");
    EXPECT_TRUE(screen->mblnUpdated);
    store().run("DELETE FROM tblSystemProfile");
    for (const char* way : {"as the first", "over the one that is there"}) {
        boxes.expect("Saved!", "Record Successfully Saved!");
        EXPECT_TRUE(screen->SaveRecord()) << way;
        EXPECT_FALSE(screen->mblnUpdated);
        EXPECT_EQ(valueOf(store(), "SELECT COUNT(*) FROM tblSystemProfile"), "1") << way;
    }
    EXPECT_EQ(stored("CompanyName"), "Tindahan ni Aling Nena");
    const CompanyProfile read = loadCompany(store());
    EXPECT_EQ(read.tax, "12.5000");
    EXPECT_EQ(read.texts["CompanyAddress"], "It's 5 < 6 & <b>\\");
}

TEST_F(CompanyTest, AFaultKeepsTheScreenAndGoesToItsField) {
    const QString before = stored("CompanyName");
    const struct {
        const char* field;
        const char* text;
        const char* words;
    } cases[] = {{"txtTax", "twelve", "Please Enter Numeric Value for Value Added Tax!"},
                 {"txtTax", "", "Please Enter Numeric Value for Value Added Tax!"},
                 {"txtCompanyName", "", "Please Enter Company Name!"}};
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen));
    for (const auto& row : cases) {
        box(row.field)->setText(row.text);
        boxes.expect("Error!", row.words);
        EXPECT_FALSE(screen->SaveRecord());
        EXPECT_TRUE(box(row.field)->hasFocus());
        EXPECT_TRUE(screen->mblnUpdated);
    }
    EXPECT_EQ(stored("CompanyName"), before);
}

TEST_F(CompanyTest, ClosingAsksAndARefusedSaveStays) {
    box("txtTax")->setText("x");
    const char* words = "Current Record has been Updated.  Save Changes then Exit?";
    boxes.expect("Confirm Update Record!", words, BoxAnswer::Cancel);
    EXPECT_FALSE(screen->unload());
    boxes.expect("Confirm Update Record!", words, BoxAnswer::Yes).expect("Error!");
    EXPECT_FALSE(screen->unload());
    boxes.expect("Confirm Update Record!", words, BoxAnswer::No);
    EXPECT_TRUE(screen->unload());
}

TEST_F(CompanyTest, TheLogoIsChosenShownAndCleared) {
    auto* logo = screen->findChild<QLabel*>("imgLogo");
    const QString path = folder_.filePath("logo.png");
    QPixmap picture(40, 20);
    picture.fill(Qt::red);
    picture.save(path);
    QString asked, answer;
    desk::Doors doors;
    doors.openFile = [&](const QString& title) {
        asked = title;
        return answer;
    };
    desk::setDoors(doors);
    const auto press = [this](const char* button) { screen->findChild<QPushButton*>(button)->click(); };
    press("cmdSearch1");
    EXPECT_EQ(asked, "Select Company Logo");
    EXPECT_FALSE(screen->mblnUpdated);
    answer = path;
    press("cmdSearch1");
    EXPECT_EQ(box("txtCompanyLogo")->text(), path);
    EXPECT_FALSE(logo->pixmap(Qt::ReturnByValue).isNull());
    answer = folder_.filePath("missing.png");
    press("cmdSearch1");
    EXPECT_TRUE(logo->pixmap(Qt::ReturnByValue).isNull());
    press("cmdClear");
    EXPECT_EQ(box("txtCompanyLogo")->text(), "");
}

}  // namespace

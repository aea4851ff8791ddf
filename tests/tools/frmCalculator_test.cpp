#include "tools/calculator/frmCalculator.h"

#include "platform/ui/file_dialogs.h"
#include "platform/ui/text_box.h"
#include "support/box_script.h"
#include "support/files.h"
#include "support/screen_driver.h"
#include "support/test_store.h"
#include "tools/register.h"

#include <QListWidget>
#include <QPrinter>

namespace {

class CalculatorTest : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        deskTape() = {};
        registerToolScreens();
        open();
    }
    void TearDown() override {
        delete screen;
        desk::setDoors({});
        SessionTest::TearDown();
    }
    void open() {
        delete screen;
        person::look(screen = new frmCalculator);
    }
    QPointer<frmCalculator> screen;
    BoxScript boxes;
};

TEST_F(CalculatorTest, TheKeyboardStaysWithTheMachineAndTheTapeOnTheDesk) {
    person::type("5");
    person::click(screen, "cmdOperator_1");
    person::type("3");
    person::click(screen, "optDecPlace_3");
    person::press(Qt::Key_Return);
    EXPECT_EQ(person::read(screen, "lblResult"), "8.000");
    EXPECT_EQ(person::find<QListWidget>(screen, "lstTape")->count(), 3);
    boxes.expect("Error...", "Divide by zero Error");
    person::type("/0=");
    person::press(Qt::Key_Escape);
    EXPECT_EQ(person::read(screen, "lblResult"), ".");
    person::press(Qt::Key_Escape);
    EXPECT_FALSE(screen);
    writeFile(folder_.filePath("Zevrin.ini"), "[Options]\nCalculatorFP=4\n");
    open();
    EXPECT_EQ(person::find<QListWidget>(screen, "lstTape")->item(2)->text(), "8.000= ");
    person::type("1=");
    EXPECT_EQ(person::read(screen, "lblResult"), "1.0000");
}

TEST_F(CalculatorTest, TheTapeGoesToAFileAndToAPrinter) {
    QString opened;
    desk::setDoors({.openWithDesktop = [&](const QString& file) { return !(opened = file).isEmpty(); },
                    .printer = [] { return std::unique_ptr<QPrinter>(); }});
    person::type("5-8=");
    person::click(screen, "cmdCopy");
    EXPECT_EQ(opened, folder_.filePath("Tape.txt"));
    EXPECT_EQ(QString::fromUtf8(contentOf(opened)), "5.00 –\n8.00 =\n-3.00= \n");
    boxes.expect("No Printer!");
    person::type("p");
}

TEST_F(CalculatorTest, AnAmountFieldTakesTheLastTotal) {
    person::type("0.1+0.2=");
    TextBox amount("txtAmount"), name("txtName");
    amount.setAlignment(Qt::AlignRight);
    amount.setKeyFilter(keys::amount());
    for (TextBox* box : {&amount, &name}) {
        box->setText("7");
        person::look(box);
        person::press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    }
    EXPECT_EQ(amount.text(), "0.30");
    EXPECT_EQ(name.text(), "7");
}

}  // namespace

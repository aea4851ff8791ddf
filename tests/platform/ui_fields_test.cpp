#include "platform/ui/boxes.h"
#include "platform/ui/child_screen.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/editing.h"
#include "platform/ui/form.h"
#include "platform/ui/text_box.h"
#include "support/box_script.h"
#include "support/screen_driver.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <gtest/gtest.h>

namespace {

// A screen of two boxes, an open and a closed combo box.
class Sample : public ChildScreen {
  public:
    Sample() : ChildScreen("frmSample", "Sample") {
        auto* layout = new QGridLayout(this);
        form::row(layout, 0, 0, "&Name :", name);
        form::row(layout, 1, 0, "&Amount :", amount);
        form::row(layout, 2, 0, "&Unit :", unit);
        form::row(layout, 3, 0, "&Kind :", kind);
        amount->setKeyFilter(keys::amount());
        name->setKeyFilter(keys::freeText());
        kind->addItems({"Cash", "Check"});
    }
    TextBox* name = new TextBox("txtName");
    TextBox* amount = new TextBox("txtAmount");
    ComboBox* unit = new ComboBox("cboUnit", ComboBox::Open);
    ComboBox* kind = new ComboBox("cboKind", ComboBox::Closed);
};

class UiFields : public testing::Test {
  protected:
    void SetUp() override {
        screen = new Sample;
        person::look(screen);
        person::goTo(screen, "txtName");
    }
    void TearDown() override { delete screen; }
    QPointer<Sample> screen;
};

void pasteFromTheMenu(const QString& text) {
    QApplication::clipboard()->setText(text);
    editing::paste();
    person::settle();
}

}  // namespace

TEST_F(UiFields, TakeOnlyTheKeysOfTheirFilter) {
    const struct {
        const char* name;
        KeyFilter filter;
        const char *typed, *kept;
    } cases[] = {
        {"whole numbers", keys::wholeNumber(), "1a2.3-4", "1234"},
        {"amounts", keys::amount(), "1,234.5e", "1234.5"},
        {"dates", keys::date(), "2/3-26 x", "2/3-26"},
        {"free text", keys::freeText(), "O'Neil & Co", "ONeil & Co"},
        {"letters in either case", {KeyFilter::Allow, "abc"}, "aBxC", "aBC"},
        {"letters refused in either case", {KeyFilter::Reject, "q"}, "qQr", "r"},
    };
    for (const auto& row : cases) {
        screen->name->setKeyFilter(row.filter);
        person::fill(screen, "txtName", row.typed);
        EXPECT_EQ(screen->name->text(), QString(row.kept)) << row.name;
        person::press(Qt::Key_Backspace);
        EXPECT_EQ(screen->name->text(), QString(row.kept).chopped(1)) << row.name;
    }
    person::fill(screen, "txtName", "");
    person::paste("O'Neil");
    EXPECT_EQ(screen->name->text(), "O'Neil") << "a paste is not filtered";
}

TEST_F(UiFields, RefuseWholeWhatDoesNotFitAndSaySo) {
    screen->name->setCapacity(5);
    person::fill(screen, "txtName", "abcdefg");
    EXPECT_EQ(screen->name->text(), "abcde");
    EXPECT_EQ(QToolTip::text(), "This field holds at most 5 characters.");

    const QString hundredThousand(100000, u'x');
    const QString oneLine = "This field holds one line. What you paste has line breaks.";
    const struct {
        int capacity;
        QString pasted, text;
    } refused[] = {{5, "123456", ""},
                   {5, "a\nb", oneLine},
                   {5, "a\r\n", oneLine},
                   {5, "a\u2028b", oneLine},
                   {0, hundredThousand,
                    "This field holds at most 32,000 characters. With what you paste it would be 100,000."}};
    BoxScript boxes;
    for (const auto& row : refused) {
        screen->name->setCapacity(row.capacity);
        for (const auto& paste : {person::paste, pasteFromTheMenu}) {
            boxes.expect("Not pasted!", row.text);
            person::press(Qt::Key_A, Qt::ControlModifier);
            paste(row.pasted);
            EXPECT_EQ(screen->name->text(), "abcde");
        }
    }
    person::paste(hundredThousand.left(32000));
    EXPECT_EQ(screen->name->text().size(), 32000);
    screen->name->setCapacity(5);
    screen->name->setText("the program's is never cut");
    EXPECT_EQ(screen->name->text(), "the program's is never cut");
}

TEST_F(UiFields, SelectTheirTextOnFocusByKeyAndByMouse) {
    for (TextBox* box : {screen->name, screen->amount, screen->unit->box()}) box->setText("123");
    person::goTo(screen, "txtAmount");
    EXPECT_EQ(screen->amount->selectedText(), "123");
    person::click(screen->name);
    EXPECT_EQ(screen->name->selectedText(), "123");
    person::click(screen->name);
    EXPECT_EQ(screen->name->selectedText(), "") << "a second click sets the cursor";
    person::click(screen->unit->box());
    EXPECT_EQ(screen->unit->box()->selectedText(), "123");
}

TEST_F(UiFields, LoseTheFocusToAnotherControlButNotToABox) {
    const QSignalSpy gained(screen->name, &TextBox::focusGained);
    const QSignalSpy lost(screen->name, &TextBox::focusLost);
    const QSignalSpy comboLost(screen->unit, &ComboBox::focusLost);
    setBoxAnswerer(nullptr);
    QTimer::singleShot(0, [] { person::press(Qt::Key_Escape); });
    showBox(information("Saved!", "Record Successfully Saved!"));
    failOnUnexpectedBoxes();
    person::settle();
    EXPECT_EQ(person::focusName(), "txtName");
    EXPECT_EQ(lost.count(), 0);
    EXPECT_EQ(gained.count(), 0);

    person::goTo(screen, "cboUnit");
    EXPECT_EQ(lost.count(), 1);
    screen->unit->addItems({"PC", "BOX"});
    screen->unit->showPopup();
    person::settle();
    person::press(Qt::Key_Escape);
    EXPECT_EQ(comboLost.count(), 0) << "its own list is no other control";
    person::goTo(screen, "txtName");
    EXPECT_EQ(comboLost.count(), 1);
    EXPECT_EQ(gained.count(), 1);
}

TEST_F(UiFields, AFieldThatTakesTheFocusBackKeepsIt) {
    QStringList events;
    QObject::connect(screen->name, &TextBox::focusLost, screen, [&] {
        events += "lost";
        screen->name->setFocus();
    });
    QObject::connect(screen->amount, &TextBox::focusGained, screen, [&] { events += "amount"; });
    person::goTo(screen, "txtAmount");
    EXPECT_EQ(person::focusName(), "txtName");
    EXPECT_EQ(events, QStringList("lost"));
}

TEST_F(UiFields, AClosingScreenTakesTheFocusFromNobody) {
    int lost = 0;
    QObject::connect(screen->name, &TextBox::focusLost, qApp, [&] { ++lost; });
    EXPECT_TRUE(screen->unload());
    person::settle();
    EXPECT_FALSE(screen);
    EXPECT_EQ(lost, 0);
}

TEST_F(UiFields, TheKeyOfACutOrPasteCountsAsTyped) {
    const QSignalSpy typed(screen->name, &TextBox::keyTyped);
    person::type("a");
    EXPECT_EQ(typed.count(), 1);
    person::type("'");
    EXPECT_EQ(typed.count(), 1) << "a swallowed key did not go into the box";
    person::press(Qt::Key_Backspace);
    EXPECT_EQ(typed.count(), 2);
    person::paste("b");
    EXPECT_EQ(typed.count(), 3);
    person::press(Qt::Key_Left);
    screen->name->setText("set");
    EXPECT_EQ(typed.count(), 3);
}

TEST_F(UiFields, AnOpenComboKeepsWhatWasTypedAndItsListIsFilledOnDrop) {
    int fills = 0;
    screen->unit->setFiller([&] {
        ++fills;
        screen->unit->clear();
        screen->unit->addItems({"PC", "BOX"});
    });
    const QSignalSpy picked(screen->unit, &ComboBox::picked);
    person::fill(screen, "cboUnit", "pc");
    screen->unit->showPopup();
    person::settle();
    screen->unit->hidePopup();
    person::goTo(screen, "txtName");
    EXPECT_EQ(screen->unit->text(), "pc") << "neither completed nor folded to the list's PC";
    EXPECT_EQ(fills, 1);
    EXPECT_EQ(picked.count(), 0);
    person::goTo(screen, "cboUnit");
    person::press(Qt::Key_Down);
    EXPECT_EQ(screen->unit->text(), "BOX");
    EXPECT_EQ(picked.count(), 1);
    for (const auto& [text, index] : {std::pair{"check", 1}, {"Barter", -1}}) {
        screen->kind->setText(text);
        EXPECT_EQ(screen->kind->currentIndex(), index) << "a closed one selects its own only: " << text;
    }
}

TEST(UiColours, AShownBoxHasTheColourOfItsScreenInEveryPalette) {
    const QPalette before = QApplication::palette();
    const std::unique_ptr<TextBox> early(readOnlyBox("txtTotal"));
    QPalette dark = before;
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    for (const QPalette& colours : {before, dark}) {
        QApplication::setPalette(colours);
        // As the running application sends it.
        QEvent change(QEvent::ApplicationPaletteChange);
        QApplication::sendEvent(early.get(), &change);
        const std::unique_ptr<TextBox> late(readOnlyBox("txtTotal"));
        for (const TextBox* shown : {early.get(), late.get()})
            EXPECT_EQ(shown->palette().color(QPalette::Base), colours.color(QPalette::Window));
        EXPECT_EQ(TextBox("txtCost").palette().color(QPalette::Base), colours.color(QPalette::Base));
    }
    QApplication::setPalette(before);
}

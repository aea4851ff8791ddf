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
#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

// A screen of two boxes, an open and a closed combo box and a button.
class Sample : public ChildScreen {
  public:
    Sample() : ChildScreen("frmSample", "Sample") {
        auto* layout = new QGridLayout(this);
        form::row(layout, 0, 0, "&Name :", name);
        form::row(layout, 1, 0, "&Amount :", amount);
        form::row(layout, 2, 0, "&Unit :", unit);
        form::row(layout, 3, 0, "&Kind :", kind);
        layout->addWidget(save, 4, 1);
        amount->setKeyFilter(keys::amount());
        name->setKeyFilter(keys::freeText());
        kind->addItems({"Cash", "Check"});
    }
    TextBox* name = new TextBox("txtName");
    TextBox* amount = new TextBox("txtAmount");
    ComboBox* unit = new ComboBox("cboUnit", ComboBox::Open);
    ComboBox* kind = new ComboBox("cboKind", ComboBox::Closed);
    QPushButton* save = form::button("cmdSave", "&Save");
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
    const std::pair<QString, QString> refused[] = {
        {"123456", ""}, {hundredThousand, ""}, {"a\nb", oneLine}, {"a\r\n", oneLine}, {"a\u2028b", oneLine}};
    BoxScript boxes;
    for (const auto& [pasted, text] : refused) {
        boxes.expect("Not pasted!", text);
        person::press(Qt::Key_A, Qt::ControlModifier);
        person::paste(pasted);
        EXPECT_EQ(screen->name->text(), "abcde");
    }
    screen->name->setText("the program's is never cut");
    EXPECT_EQ(screen->name->text(), "the program's is never cut");
    screen->name->setText("abcde");
    screen->name->setCapacity(0);
    boxes.expect("Not pasted!",
                 "This field holds at most 32,000 characters. With what you paste it would be "
                 "100,000.");
    person::press(Qt::Key_A, Qt::ControlModifier);
    QApplication::clipboard()->setText(hundredThousand);
    editing::paste();
    person::settle();
    EXPECT_EQ(screen->name->text(), "abcde");
    person::paste(hundredThousand.left(32000));
    EXPECT_EQ(screen->name->text().size(), 32000);
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
}

TEST_F(UiFields, AClosedComboSelectsNothingForATextOutsideItsList) {
    for (const auto& [text, index] : {std::pair{"check", 1}, {"Barter", -1}}) {
        screen->kind->setText(text);
        EXPECT_EQ(screen->kind->currentIndex(), index) << text;
    }
}

TEST(UiColours, AShownBoxHasTheColourOfItsScreenInEveryPalette) {
    const QPalette before = QApplication::palette();
    const std::unique_ptr<TextBox> early(readOnlyBox("txtTotal"));
    QPalette dark = before;
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Text, Qt::white);
    for (const QPalette& colours : {before, dark}) {
        QApplication::setPalette(colours);
        // As the running application sends it.
        QEvent change(QEvent::ApplicationPaletteChange);
        QApplication::sendEvent(early.get(), &change);
        EXPECT_EQ(early->palette().color(QPalette::Base), colours.color(QPalette::Window));
        const std::unique_ptr<TextBox> shown(readOnlyBox("txtTotal"));
        EXPECT_EQ(shown->palette().color(QPalette::Base), colours.color(QPalette::Window));
        EXPECT_EQ(shown->palette().color(QPalette::Text), colours.color(QPalette::Text));
        EXPECT_EQ(TextBox("txtCost").palette().color(QPalette::Base), colours.color(QPalette::Base));
    }
    QApplication::setPalette(before);
}

TEST(UiKeys, TheFramesShortcutsWorkFromEveryField) {
    QMainWindow frame;
    auto* screen = new Sample;
    frame.setCentralWidget(screen);
    QMenu* menu = frame.menuBar()->addMenu("&Record");
    QStringList called;
    const QStringList shortcuts = {"Ctrl+S", "Ctrl+N", "Ctrl+E", "Ctrl+W", "Ctrl+F", "F5", "Shift+Del"};
    for (const QString& shortcut : shortcuts)
        menu->addAction(shortcut, [&called, shortcut] { called += shortcut; })->setShortcut(shortcut);
    person::look(&frame);
    for (const char* field : {"txtName", "txtAmount", "cboUnit", "cboKind", "cmdSave"}) {
        called.clear();
        person::goTo(screen, field);
        if (auto* box = dynamic_cast<TextBox*>(screen->findChild<QWidget*>(field))) box->setText("12");
        for (const QString& shortcut : shortcuts) {
            const QKeyCombination key = QKeySequence(shortcut)[0];
            person::press(key.key(), key.keyboardModifiers());
        }
        EXPECT_EQ(called, shortcuts) << field;
    }
    EXPECT_EQ(screen->name->text(), "12") << "Shift+Del cut it";
}

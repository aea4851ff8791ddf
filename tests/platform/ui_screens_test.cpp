#include "platform/store/store_error.h"
#include "platform/ui/boxes.h"
#include "platform/ui/child_screen.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/form.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/icons.h"
#include "platform/ui/list_view.h"
#include "platform/ui/readable_palette.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "support/box_script.h"
#include "support/screen_checks.h"
#include "support/screen_driver.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

// What happened to the screens, in order.
QStringList happened;

class Sample : public ChildScreen {
  public:
    explicit Sample(const QString& name, Kind kind = Child) : ChildScreen(name, name, Centred, kind) {
        auto* layout = new QGridLayout(this);
        form::row(layout, 0, 0, "&Name :", field);
        form::row(layout, 1, 0, "&Remarks :", new TextBox("txtRemarks"));
        layout->addWidget(form::button("cmdSave", "&Save", "save"), 2, 1);
    }
    bool receive(const ScreenArguments& arguments) override {
        if (refusesArguments) return false;
        happened += objectName() + " receives " + arguments.key;
        return ChildScreen::receive(arguments);
    }
    bool queryUnload() override {
        happened += objectName() + " asks";
        if (question) question();
        return leaves;
    }
    void activated() override { happened += objectName() + " activated"; }
    void deactivated() override { happened += objectName() + " deactivated"; }
    void unloading() override { happened += objectName() + " unloads"; }

    TextBox* field = new TextBox("txtName");
    bool leaves = true;
    bool refusesArguments = false;
    std::function<void()> question;
};

class Frame : public QMainWindow, public ScreenHost {
  public:
    Frame() {
        setCentralWidget(area);
        resize(1024, 768);
    }
    void host(ChildScreen* screen) override {
        QMdiSubWindow* window = area->addSubWindow(screen);
        window->show();
        area->setActiveSubWindow(window);
    }
    void bringForward(ChildScreen* screen) override {
        area->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(screen->parentWidget()));
    }
    QMdiArea* area = new QMdiArea;
};

class UiScreens : public testing::Test {
  protected:
    void SetUp() override {
        ScreenRegistry::instance().setHost(&frame);
        for (const char* name : {"frmOne", "frmTwo"})
            ScreenRegistry::instance().add(name, [name] { return new Sample(name); });
        person::look(&frame);
        happened.clear();
    }
    void TearDown() override {
        for (ChildScreen* screen : ScreenRegistry::instance().openScreens()) delete screen;
        ScreenRegistry::instance().setHost(nullptr);
        person::settle();
    }
    static Sample* open(const QString& name, const QString& key = {}) {
        auto* screen = static_cast<Sample*>(ScreenRegistry::instance().open(name, {{}, key, {}}));
        person::settle();
        return screen;
    }
    static QStringList takeHappened() { return std::exchange(happened, {}); }
    Frame frame;
};

// A menu is no other control: Alt and a look at the menus do not end the typing in a field.
TEST_F(UiScreens, TheMenuBarTakesNoFieldAway) {
    auto* screen = dynamic_cast<Sample*>(open("frmOne"));
    person::goTo(screen, "txtName");
    const QSignalSpy left(screen->field, &TextBox::focusLost);
    frame.menuBar()->addMenu("&File")->addAction("E&xit");
    frame.menuBar()->setFocus(Qt::MenuBarFocusReason);
    person::settle();
    EXPECT_EQ(left.count(), 0);
    screen->field->setFocus();
    person::settle();
    EXPECT_EQ(left.count(), 0);
    person::goTo(screen, "txtRemarks");
    EXPECT_EQ(left.count(), 1);
}

// What no handler has caught: one box when the event is over, however often it happened, and life goes on.
TEST(TheNet, ShowsWhatAHandlerLetThrough) {
    QWidget window;
    auto* button = new QPushButton("Save", &window);
    int runs = 0;
    QObject::connect(button, &QPushButton::clicked, button, [&] {
        ++runs;
        throw StoreError(StoreError::general, "The disk is full.");
    });
    window.show();
    for (const int round : {1, 2}) {
        BoxScript boxes;
        boxes.expect("Error...", "The disk is full.");
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::keyClick(button, Qt::Key_Space);
        person::settle();
        EXPECT_TRUE(boxes.allShown());
        EXPECT_EQ(runs, round * 2);
    }
}

// The focus has moved on, and the next field knows it.
TEST_F(UiScreens, AFaultInAFieldsHandlerIsShownAndTheNextFieldIsLeftAsEver) {
    auto* screen = dynamic_cast<Sample*>(open("frmOne"));
    person::goTo(screen, "txtName");
    QObject::connect(screen->field, &TextBox::focusLost, screen,
                     [] { throw StoreError(StoreError::general, "The store is not open."); });
    auto* next = person::find<TextBox>(screen, "txtRemarks");
    const QSignalSpy left(next, &TextBox::focusLost);
    {
        BoxScript boxes;
        boxes.expect("Error...", "The store is not open.");
        person::goTo(screen, "txtRemarks");
    }
    person::goTo(screen, "cmdSave");
    EXPECT_EQ(left.count(), 1);
}

}  // namespace

TEST_F(UiScreens, AreSingleInstancesInTheOrderOfTheirOpening) {
    Sample* one = open("frmOne", "A");
    EXPECT_EQ(takeHappened(), QStringList({"frmOne receives A", "frmOne activated"}));
    Sample* two = open("frmTwo");
    EXPECT_EQ(open("frmOne", "B"), one);
    EXPECT_EQ(ScreenRegistry::instance().openScreens(), QList<ChildScreen*>({one, two}));
    EXPECT_EQ(takeHappened(), QStringList({"frmTwo receives ", "frmOne deactivated", "frmTwo activated",
                                           "frmOne receives B", "frmTwo deactivated", "frmOne activated"}));
    one->refusesArguments = true;
    EXPECT_EQ(open("frmOne", "C"), nullptr);
    EXPECT_EQ(ScreenRegistry::instance().opened("frmOne"), one);
    EXPECT_EQ(open("frmNowhere"), nullptr);
    EXPECT_FALSE(ScreenRegistry::instance().knows("frmNowhere"));
}

TEST_F(UiScreens, EveryWayOutAsksOnceAndTakesTheChildWindowAlong) {
    const QList<std::function<void(ChildScreen*)>> ways = {
        [](ChildScreen* screen) { screen->CloseRecord(); },
        [](ChildScreen* screen) { screen->close(); },
        [](ChildScreen* screen) { screen->parentWidget()->close(); },
        [](ChildScreen*) { person::press(Qt::Key_Escape); },
    };
    for (const auto& way : ways) {
        const QPointer<Sample> one = open("frmOne");
        takeHappened();
        one->leaves = false;
        way(one);
        EXPECT_EQ(takeHappened(), QStringList("frmOne asks"));
        EXPECT_TRUE(one->isVisible());

        one->leaves = true;
        one->question = [&] { EXPECT_FALSE(one->unload()) << "an attempt while the question is open"; };
        const QSignalSpy unloaded(one, &ChildScreen::unloaded);
        way(one);
        EXPECT_EQ(unloaded.count(), 1);
        person::settle();
        EXPECT_FALSE(one);
        EXPECT_EQ(takeHappened(), QStringList({"frmOne asks", "frmOne unloads"}));
        EXPECT_TRUE(frame.area->subWindowList().isEmpty()) << "its child window stayed behind";
        EXPECT_TRUE(ScreenRegistry::instance().openScreens().isEmpty());
    }
}

TEST_F(UiScreens, AQuestionThatFailsKeepsTheScreenOpenAndSaysWhy) {
    Sample* one = open("frmOne");
    one->question = [] { throw std::runtime_error("disk I/O error"); };
    BoxScript boxes;
    boxes.expect("Error...", "disk I/O error");
    EXPECT_FALSE(one->unload());
    EXPECT_TRUE(one->isVisible());
}

TEST_F(UiScreens, ABoxAnotherProgramAndTheOwnPopupAreNoOtherPart) {
    Sample* one = open("frmOne");
    takeHappened();
    setBoxAnswerer(nullptr);
    QTimer::singleShot(20, [] { person::press(Qt::Key_Return); });
    showBox(information("Saved!", "Record Successfully Saved!"));
    failOnUnexpectedBoxes();
    person::settle();
    QApplication::setActiveWindow(nullptr);
    person::settle();
    person::look(&frame);
    EXPECT_EQ(takeHappened(), QStringList());

    auto* popup = new Sample("frmPopup", ChildScreen::Popup);
    ScreenRegistry::instance().show(popup);
    person::settle();
    EXPECT_EQ(popup->opener(), one);
    EXPECT_TRUE(popup->isWindow());
    EXPECT_FALSE(popup->isModal());
    EXPECT_EQ(popup->parentWidget(), &frame);
    EXPECT_EQ(takeHappened(), QStringList("frmPopup activated"));

    open("frmTwo");
    frame.activateWindow();
    person::settle();
    EXPECT_EQ(takeHappened(), QStringList({"frmTwo receives ", "frmPopup deactivated", "frmOne deactivated",
                                           "frmTwo activated"}));
    popup->activateWindow();
    popup->field->setFocus();
    person::settle();
    takeHappened();
    person::press(Qt::Key_Escape);
    EXPECT_EQ(takeHappened().first(2), QStringList({"frmPopup asks", "frmPopup unloads"}));
}

// The checks themselves: each must see its fault.
TEST(UiChecks, SeeTheFaultsTheyAreFor) {
    QWidget screen;
    auto* layout = new QGridLayout(&screen);
    auto* first = new TextBox("txtFirst");
    auto* second = new TextBox("");
    auto* label = form::label("A label that is much too long for its place :", first);
    label->setFixedWidth(20);
    layout->addWidget(label, 0, 0);
    layout->addWidget(first, 1, 1);
    layout->addWidget(second, 0, 1);
    person::look(&screen);
    EXPECT_EQ(check::clippedTexts(&screen).size(), 1);
    EXPECT_EQ(check::unnamedControls(&screen).size(), 2) << "no object name and no accessible name";
    EXPECT_EQ(check::tabOrderFaults(&screen).size(), 1);
    ListView list("lvw", {{"Heading"}, {"Last"}}, &screen);
    list.setColumnWidth(1, 10);
    list.show();
    EXPECT_EQ(check::clippedTexts(&screen).size(), 2);
}

TEST(UiStatus, WorksNestedAndCountsBeyond32Bits) {
    frmStatus status;
    auto* text = status.findChild<QLabel*>("lblStatus");
    auto* bar = status.findChild<QProgressBar*>("pbrStatus");
    status.begin("Outer", 10'000'000'000);
    QTest::qWait(60);
    person::settle();
    status.setValue(5'000'000'000);
    EXPECT_TRUE(status.isVisible());
    EXPECT_EQ(bar->value() * 2, bar->maximum());
    status.begin("Inner", 4);
    EXPECT_EQ(text->text(), "Inner");
    EXPECT_EQ(bar->value(), 0);
    EXPECT_FALSE(status.close()) << "only the work closes it";
    status.end();
    EXPECT_EQ(text->text(), "Outer");
    EXPECT_EQ(bar->value() * 2, bar->maximum());
    status.end();
    EXPECT_FALSE(status.isVisible());
    status.end();
    status.setValue(1);
}

TEST(UiStatus, PaintsSeldomHoweverOftenItIsToldAndTakesNoInput) {
    TextBox box("txtName");
    person::look(&box);
    frmStatus status;
    status.begin("Please Wait...", 1'000'000);
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++turns; });
    timer.start(0);
    qint64 value = 0;
    for (QDeadlineTimer deadline(10'000); turns < 3 && !deadline.hasExpired(); ++value)
        status.setValue(value % 1'000'000);
    EXPECT_GE(turns, 2) << "the window does not live";
    EXPECT_GT(value, 100 * turns) << "it pauses at every value";
    status.end();
}

TEST(UiBoxes, EscAnswersWithTheLastButtonAndEnterWithTheDefault) {
    const struct {
        Box box;
        BoxAnswer enter, esc;
    } cases[] = {
        {information("Saved!", "Saved"), BoxAnswer::Ok, BoxAnswer::Ok},
        {question("Continue?", "Go on?"), BoxAnswer::Yes, BoxAnswer::No},
        {question("Confirm Delete", "Delete?", BoxAnswer::No), BoxAnswer::No, BoxAnswer::No},
        {{"Confirm", "<b>Save</b>?", BoxIcon::Question, BoxButtons::YesNoCancel},
         BoxAnswer::Yes,
         BoxAnswer::Cancel},
    };
    setBoxAnswerer(nullptr);
    const auto restore = qScopeGuard(failOnUnexpectedBoxes);
    const auto answerTo = [](const Box& box, Qt::Key key) {
        QTimer::singleShot(0, [&box, key] {
            EXPECT_TRUE(boxIsOpen());
            const QWidget* window = QApplication::activeModalWidget();
            ASSERT_TRUE(window);
            EXPECT_EQ(window->findChild<QLabel*>("qt_msgbox_label")->textFormat(), Qt::PlainText);
            EXPECT_EQ(window->accessibleName(), box.title);
            person::press(key);
        });
        return showBox(box);
    };
    for (const auto& row : cases) {
        EXPECT_EQ(answerTo(row.box, Qt::Key_Return), row.enter) << qPrintable(row.box.title);
        EXPECT_EQ(answerTo(row.box, Qt::Key_Escape), row.esc) << qPrintable(row.box.title);
    }
    EXPECT_FALSE(boxIsOpen());
}

TEST(UiDesk, WithoutAPrinterABoxSaysSo) {
    BoxScript boxes;
    boxes.expect("Printer Setup");
    desk::setDoors({.printer = [] { return nullptr; }});
    EXPECT_FALSE(desk::setUpPrinter(nullptr));
    desk::setDoors({});
    EXPECT_FALSE(desk::openWithDesktop("/nowhere/Zevrin.hlp"));
}

TEST(UiIcons, EveryPictureIsBundledAndSeenOnLightAndOnDark) {
    bundledIcon("new");  // loads them
    const QStringList names = QDir(":/icons").entryList({"*.svg"});
    EXPECT_EQ(names, QDir(QString(ZEVRIN_SOURCE_DIR) + "/src/platform/ui/icons").entryList({"*.svg"}));
    EXPECT_GE(names.size(), 34);
    // A quarter of what is drawn has to stand out, not one light spot in it.
    const auto contrast = [](const QImage& picture, const QColor& background) {
        std::vector<double> drawn;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (const QColor c = picture.pixelColor(x, y); c.alpha() > 200)
                    drawn.push_back(contrastOf(c, background));
        std::ranges::sort(drawn);
        return drawn.empty() ? 0 : drawn[drawn.size() * 3 / 4];
    };
    for (const QString& name : names) {
        const QImage picture = bundledIcon(name.chopped(4)).pixmap(32, 32).toImage();
        ASSERT_FALSE(picture.isNull()) << qPrintable(name);
        EXPECT_GT(contrast(picture, QColor(239, 239, 239)), 2.5) << qPrintable(name) << " on light";
        EXPECT_GT(contrast(picture, QColor(49, 54, 59)), 2.5) << qPrintable(name) << " on dark";
    }
}

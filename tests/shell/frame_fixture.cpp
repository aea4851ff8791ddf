#include "shell/frame_fixture.h"

#include "foundation/start.h"
#include "platform/store/store_error.h"
#include "shell/menu_catalogue.h"

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

TestScreen::TestScreen(const QString& name, Kind kind)
    : RecordScreen(name, "Screen " + name + " R&D", Centred, kind) {
    auto* layout = new QVBoxLayout(this);
    auto* field = new QLineEdit("typed text");
    field->setObjectName("txtField");
    layout->addWidget(field);
    setFocusProxy(field);
}

void TestScreen::EditRecord() {
    calls << "EditRecord";
    throw StoreError(StoreError::general, "The disk is full.");
}

QStringList screensOfTheMenus() {
    QStringList screens{"frmReorder"};
    for (const MenuTable& menu : menuCatalogue())
        for (const MenuItem& row : menu.rows)
            if (const auto* open = std::get_if<OpenScreen>(&row.action)) screens << open->screen;
    screens.removeDuplicates();
    return screens;
}

void FrameTest::SetUp() {
    SessionTest::SetUp();
    session().CurrentUserName = "Administrator";
    store().run("UPDATE tblSystemProfile SET CompanyName = 'Mabuhay Trading'");
    setEndProcessDoor([this] { ++ended; });
    ScreenRegistry& registry = ScreenRegistry::instance();
    for (const QString& name : screensOfTheMenus())
        registry.add(name, [name] { return new TestScreen(name); });
    for (const char* name : {"frmOpening", "frmDateChecker", "frmAbout"})
        registry.addWindow(name, [this, name](const ScreenArguments&) { windows << name; });
}

void FrameTest::TearDown() {
    delete frame;
    setEndProcessDoor({});
    for (const char* name : {"frmOpening", "frmDateChecker", "frmAbout"})
        ScreenRegistry::instance().addWindow(name, [](const ScreenArguments&) {});
    SessionTest::TearDown();
}

void FrameTest::logIn(const QString& userCode) {
    session().CurrentUserCode = userCode;
    frame = new mdiMain;
    ASSERT_TRUE(frame->load());
    frame->show();
    frame->activateWindow();
    frame->greet();
    QTest::qWait(1);
}

TestScreen* FrameTest::opened(const QString& name) const {
    return qobject_cast<TestScreen*>(ScreenRegistry::instance().opened(name));
}

TestScreen* FrameTest::open(const QString& name) {
    auto* screen = qobject_cast<TestScreen*>(ScreenRegistry::instance().open(name));
    QTest::qWait(1);
    return screen;
}

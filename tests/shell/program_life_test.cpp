#include "foundation/frmOpening.h"
#include "foundation/register.h"
#include "foundation/start.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "shell/mdiMain.h"
#include "shell/register.h"
#include "support/box_script.h"
#include "support/test_store.h"

#include <QAction>
#include <QTest>
#include <QTimer>

namespace {

constexpr int neverEnded = 99;

template <class Window>
Window* shown() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<Window*>(widget); window && window->isVisible()) return window;
    return nullptr;
}

// The program in its event loop, with a person who does one thing after another: each as soon as it can be
// done.
class ProgramLife : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        registerFoundationScreens();
        registerShellScreens();
        setScreenSizeDoor([] { return QSize(1024, 768); });
    }
    void TearDown() override {
        setScreenSizeDoor({});
        SessionTest::TearDown();
    }
    void then(std::function<bool()> step) { steps << std::move(step); }
    int run() {
        QTimer person;
        QObject::connect(&person, &QTimer::timeout, [this] {
            if (!steps.isEmpty() && steps.first()()) steps.removeFirst();
        });
        person.start(20);
        QTimer::singleShot(20000, &person, [] { QCoreApplication::exit(neverEnded); });
        showOpening();
        return QApplication::exec();
    }

    QList<std::function<bool()>> steps;
    BoxScript boxes;
};

bool logIn() {
    auto* opening = shown<frmOpening>();
    if (!opening) return false;
    opening->findChild<ComboBox*>("txtUserName")->setText("ADMIN");
    opening->findChild<TextBox*>("txtPassword")->setText("admin");
    // The login goes on while this step is over: the question about the clock waits for its answer.
    QTimer::singleShot(0, opening, [opening] {
        QTest::keyClick(opening->findChild<TextBox*>("txtPassword"), Qt::Key_Return);
    });
    return true;
}

bool confirmClock() {
    QWidget* checker = QApplication::activeModalWidget();
    if (!checker || checker->objectName() != "frmDateChecker") return false;
    EXPECT_FALSE(shown<frmOpening>());
    checker->close();
    return true;
}

bool choose(const char* item) {
    auto* frame = shown<mdiMain>();
    if (!frame || !frame->findChild<QAction*>("mnuWindowItem_0")) return false;
    frame->findChild<QAction*>(item)->trigger();
    return true;
}

TEST_F(ProgramLife, GoesOnThroughLoginAndLogoffAndEndsWithTheLogin) {
    then(logIn);
    then(confirmClock);
    then([] { return choose("mnuFileItem_8"); });
    then([] {
        auto* opening = shown<frmOpening>();
        if (opening) QTest::keyClick(opening, Qt::Key_Escape);
        return opening != nullptr;
    });
    EXPECT_EQ(run(), 0);
    EXPECT_TRUE(steps.isEmpty()) << "ended " << steps.size() << " steps too early";
}

TEST_F(ProgramLife, EndsWithExit) {
    then(logIn);
    then(confirmClock);
    then([] { return choose("mnuFileItem_9"); });
    EXPECT_EQ(run(), 0);
    EXPECT_TRUE(steps.isEmpty());
    EXPECT_FALSE(shown<frmOpening>());
}

}  // namespace

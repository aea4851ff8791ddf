#include "journeys/journey.h"

#include "platform/ui/screen_registry.h"
#include "support/growth.h"
#include "support/screen_checks.h"
#include "support/screen_tour.h"

namespace {

// The firm has a document in every journal, one of them waiting.
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
    }

    void TearDown() override {
        failOnUnexpectedBoxes();
        Journey::TearDown();
    }
};

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
    EXPECT_GT(seen.size(), 18) << qPrintable(seen.join(' '));
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

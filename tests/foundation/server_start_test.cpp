#include "foundation/start.h"
#include "platform/store/server_link.h"
#include "platform/ui/screen_registry.h"
#include "support/box_script.h"
#include "support/files.h"
#include "support/program_driver.h"
#include "support/test_server.h"
#include "support/test_store.h"

// The program starts on a server: what keeps it from the books, and the password that a person is asked for.
namespace {
class ServerStart : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!onTestServer()) GTEST_SKIP() << "This is about the server.";
        setProgramFolder(folder_.path());
        ScreenRegistry::instance().addWindow("frmOpening", [this](const ScreenArguments&) { ++logins; });
    }
    void TearDown() override {
        StoreConnection().close();
        setProgramFolder({});
        session() = Session{};
    }
    bool starts(const QString& uri) {
        writeFile(folder_.filePath("Store.ini"), uri.toUtf8());
        return Main();
    }
    static QString asClerk(QString uri) { return uri.replace("zevrin@", "clerk@"); }
    static void expectIn(const QString& uri, const char* condition) {
        const QByteArray asked = QByteArray("DO $$ BEGIN ASSERT (") + condition + "); END $$";
        EXPECT_NO_THROW(ServerLink(uri, {}).simple(asked)) << condition;
    }

    QTemporaryDir folder_;
    int logins = 0;
};

TEST_F(ServerStart, WhatIsNoStoreOfOursIsToldAndLeftAsItIs) {
    const QString empty = newEmptyDatabase(), newer = newTestDatabase(), other = newTestDatabase();
    ServerLink(newer, {}).simple("UPDATE StoreVersion SET Version = 99");
    ServerLink(other, {}).simple("UPDATE StoreVersion SET Application = 1");
    const struct {
        QString uri;
        const char* told;
    } cases[]{{"postgresql://zevrin@/books?host=" + folder_.path(), "No such file or directory"},
              {QString(empty).replace("test_", "gone_"), "does not exist"},
              {"postgresql://zevrin@/books?hots=here", "The server's address cannot be read"},
              {empty, "the database holds no books of this program"},
              {other, "the database holds no books of this program"},
              {newer, "it was written by a newer version of this program"}};
    for (const auto& [uri, told] : cases) {
        BoxScript boxes;
        boxes.expect("Connection Error");
        EXPECT_FALSE(starts(uri)) << told;
        EXPECT_TRUE(boxes.shown().value(0).text.contains(told)) << qPrintable(boxes.shown().value(0).text);
        EXPECT_FALSE(session().StoreOpen || StoreConnection().isOpen());
    }
    EXPECT_EQ(logins, 0);
    expectIn(newer, "SELECT Version = 99 FROM StoreVersion");
    expectIn(empty, "SELECT count(*) = 0 FROM pg_class WHERE relnamespace = 'public'::regnamespace");
}

TEST_F(ServerStart, APasswordIsAskedForOnce) {
    const QString books = newTestDatabase();
    const auto withPassword = [&](const QString& word) {
        return QString(books).replace("zevrin@", "clerk:" + word + u'@');
    };
    const struct {
        QString uri;
        const char* typed;  // null: the box is left
        bool opens;
    } cases[]{{asClerk(books), "tindahan", true},
              {asClerk(books), "Tindahan", false},
              {asClerk(books), "", false},
              {asClerk(books), nullptr, false},
              {withPassword("wrong"), "tindahan", true}};
    for (const auto& [uri, typed, opens] : cases) {
        BoxScript boxes;
        if (!opens) boxes.expect("Connection Error");
        bool started = false;
        const auto answerBox = [typed = typed](QWidget* box) {
            if (!typed) return person::press(Qt::Key_Escape);
            person::fill(box, "txtPassword", typed);
            person::press(Qt::Key_Return);
        };
        person::throughModal("frmServerPassword", answerBox, [&] { started = starts(uri); });
        EXPECT_EQ(started, opens) << (typed ? typed : "left");
        EXPECT_FALSE(StoreConnection().path().contains("tindahan"));
        if (!opens) {
            EXPECT_TRUE(boxes.shown().value(0).text.contains("password"))
                << qPrintable(boxes.shown().value(0).text);
        }
        StoreConnection().close();
    }
    EXPECT_EQ(logins, 2);
    BoxScript boxes;
    EXPECT_TRUE(starts(withPassword("tindahan"))) << "which asks nobody";
}
}  // namespace

#include "demo/day_script.h"

#include <QFile>

#include <gtest/gtest.h>

TEST(DayScript, ReadsDocumentsWithTheirLines) {
    const auto steps = readDayScript(
        "# a day\n"
        "log in ADMIN admin\n"
        "\n"
        "purchase from Bulacan PVC & Plumbing\n"
        "    remarks By boat\n"
        "    400 delivered 250 x DEFORMED BAR 10 MM X 6 M at 1,231.50\n"
        "sale to Liloan Hardware wholesale\n"
        "    1000 x GRANITE TILE 60 X 60\n"
        "    refused\n"
        "end of day\n"
        "log off\n");
    ASSERT_EQ(steps.size(), 5);
    EXPECT_EQ(steps[0].password, "admin");
    EXPECT_EQ(steps[1].contact, "Bulacan PVC & Plumbing");
    EXPECT_EQ(steps[1].remarks, "By boat");
    EXPECT_EQ(steps[1].lines[0].ordered, "400");
    EXPECT_EQ(steps[1].lines[0].moved, "250");
    EXPECT_EQ(steps[1].lines[0].item, "DEFORMED BAR 10 MM X 6 M");
    EXPECT_EQ(steps[1].lines[0].price, "1,231.50");
    EXPECT_EQ(steps[2].contact, "Liloan Hardware");
    EXPECT_TRUE(steps[2].wholesale);
    EXPECT_TRUE(steps[2].lines[0].refused);
    EXPECT_EQ(steps[2].lines[0].moved, "1000");
    EXPECT_EQ(steps[4].kind, DayStep::LogOff);
}

struct WrongScript {
    const char* name;
    const char* text;
    const char* message;
};

class DayScriptFault : public ::testing::TestWithParam<WrongScript> {};

TEST_P(DayScriptFault, IsToldWithItsLine) {
    try {
        readDayScript(GetParam().text);
        FAIL() << "the script passed";
    } catch (const DayScriptError& error) {
        EXPECT_STREQ(error.what(), GetParam().message);
    }
}

INSTANTIATE_TEST_SUITE_P(
    , DayScriptFault,
    ::testing::Values(
        WrongScript{"UnknownStep", "\nbuy cement\n", "line 2: no step begins like this: \"buy cement\""},
        WrongScript{"LogInWithoutPassword", "log in ADMIN", "line 1: log in takes a user and a password"},
        WrongScript{"LineWithoutDocument", "log off\n  5 x NAILS",
                    "line 2: an indented line belongs to a purchase or a sale"},
        WrongScript{"LineWithoutItem", "sale to X\n  5 pieces",
                    "line 2: no line of a document: \"5 pieces\""},
        WrongScript{"OtherSidesWord", "sale to X\n  5 delivered 3 x NAILS",
                    "line 2: here the goods are served, not delivered"},
        WrongScript{"NoNumber", "sale to X\n  5..0 x NAILS", "line 2: \"5..0\" is no number"},
        WrongScript{"RefusedWithoutLine", "sale to X\n  refused\n",
                    "line 2: refused follows the line that is refused"},
        WrongScript{"EmptyDocument", "log in A b\nsale to X\nlog off\n",
                    "line 2: a document without a line"}),
    [](const auto& row) { return row.param.name; });

TEST(DayScript, TheDayOfTheDemoFirmIsReadable) {
    QFile file(QString(ZEVRIN_SOURCE_DIR) + "/demo/day.txt");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_GT(readDayScript(QString::fromUtf8(file.readAll())).size(), 8);
}

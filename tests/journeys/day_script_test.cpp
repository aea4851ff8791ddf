#include "demo/day_script.h"

#include <gtest/gtest.h>

TEST(DayScript, ReadsDocumentsWithTheirLines) {
    const auto steps = readDayScript(
        "# a day\n"
        "log in ADMIN admin\n"
        "\n"
        "purchase from Bulacan PVC & Plumbing\n"
        "    remarks By boat\n"
        "    printed\n"
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
    EXPECT_TRUE(steps[1].isPrinted && !steps[2].isPrinted);
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

TEST(DayScript, AFaultIsToldWithItsLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"\nbuy cement\n", "line 2: no step begins like this: \"buy cement\""},
        {"log in ADMIN", "line 1: log in takes a user and a password"},
        {"log off\n  5 x NAILS", "line 2: an indented line belongs to a purchase or a sale"},
        {"sale to X\n  5 pieces", "line 2: no line of a document: \"5 pieces\""},
        {"sale to X\n  5 delivered 3 x NAILS", "line 2: here the goods are served, not delivered"},
        {"sale to X\n  5..0 x NAILS", "line 2: \"5..0\" is no number"},
        {"sale to X\n  refused\n", "line 2: refused follows the line that is refused"},
        {"log in A b\nsale to X\nlog off\n", "line 2: a document without a line"}};
    for (const auto& [text, message] : cases) try {
            readDayScript(text);
            ADD_FAILURE() << "the script passed: " << text;
        } catch (const DayScriptError& error) {
            EXPECT_STREQ(error.what(), message);
        }
}

#include "demo/day_script.h"

#include <gtest/gtest.h>

TEST(DayScript, AFaultIsToldWithItsLine) {
    const std::pair<const char*, const char*> cases[] = {
        {"\nbuy cement\n", "line 2: no step begins like this: \"buy cement\""},
        {"log in ADMIN", "line 1: log in takes a user and a password"},
        {"log off\n  5 x NAILS", "line 2: an indented line belongs to a document, or to checks"},
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

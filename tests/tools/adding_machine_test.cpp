#include "tools/calculator/adding_machine.h"

#include "tools/calculator/machine_buttons.h"

#include <QHash>

#include <gtest/gtest.h>

namespace {

constexpr const char* stars = "***********************";

struct Example {
    const char* keys;  // as typed; and s: sqrt, r: 1/x, n: sign, <: backspace, A S R Z: the memory
    const char* display;
    QStringList tape;
    int places = 2;
};

void PrintTo(const Example& example, std::ostream* stream) { *stream << example.keys; }

AddingMachine::Answer press(AddingMachine& machine, QChar key) {
    static const QHash<QChar, std::pair<MachineKey, int>> others{
        {u's', {MachineKey::SquareRoot, -1}}, {u'r', {MachineKey::OneOver, -1}},
        {u'n', {MachineKey::Negate, -1}},     {u'<', {MachineKey::Backspace, -1}},
        {u'A', {MachineKey::Memory, 0}},      {u'S', {MachineKey::Memory, 1}},
        {u'R', {MachineKey::Memory, 2}},      {u'Z', {MachineKey::Memory, 3}}};
    if (const auto other = others.constFind(key); other != others.end())
        return machine.press(other->first, other->second);
    const MachineButton* button = machineButtonFor(Qt::Key_unknown, key);
    EXPECT_TRUE(button) << QString(key).toStdString();
    return button ? machine.press(button->key, button->index) : AddingMachine::Answer::Done;
}

class WorkedExample : public ::testing::TestWithParam<Example> {};

TEST_P(WorkedExample, ShowsAndPrints) {
    Tape tape;
    AddingMachine machine(tape, GetParam().places);
    for (const QChar key : QString(GetParam().keys)) press(machine, key);
    EXPECT_EQ(machine.display().toStdString(), GetParam().display);
    EXPECT_EQ(tape.lines.join('|').toStdString(), GetParam().tape.join('|').toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Keys, WorkedExample,
    ::testing::Values(
        Example{"", ".", {}}, Example{"12.5", "12.5", {}},
        Example{"5+3=", "8.00", {"5.00 +", "3.00 =", "8.00= "}},
        Example{"5+3==", "8.00", {"5.00 +", "3.00 =", "8.00= "}},
        Example{"5+3=7", "7.", {"5.00 +", "3.00 =", "8.00= ", stars}},
        Example{"5+3=.5", ".5", {"5.00 +", "3.00 =", "8.00= ", stars}},
        Example{"5+3=+2=", "10.00", {"5.00 +", "3.00 =", "8.00= ", "8.00 +", "2.00 =", "10.00= "}},
        Example{"2+3*4=", "20.00", {"2.00 +", "3.00 x", "4.00 =", "20.00= "}},
        Example{"9-12=", "-3.00", {"9.00 –", "12.00 =", "-3.00= "}},
        Example{"-5+2=", "-3.00", {"-5.00 +", "2.00 =", "-3.00= "}},
        Example{"0.1+0.2-0.3=", "0.0000", {"0.1000 +", "0.2000 –", "0.3000 =", "0.0000= "}, 4},
        Example{"1.005*1=", "1.01", {"1.01 x", "1.00 =", "1.01= "}},
        Example{"10/3=*3=", "10.", {"10. /", "3. =", "3.= ", "3. x", "3. =", "10.= "}, 0},
        Example{"5+*3=", "15.00", {"5.00 +", "5.00 x", "3.00 =", "15.00= "}},
        Example{"5/0=", "0.", {"5.00 /"}}, Example{"5/0=2=", "2.50", {"5.00 /", "2.00 =", "2.50= "}},
        Example{"200+5%=", "210.00", {"200.00 +", "10.00 =", "210.00= "}},
        Example{"9s", "3.00", {"sqrt 3.00"}}, Example{".25s", "0.5", {"sqrt 0.5"}}, Example{"5ns", "-5.", {}},
        Example{"8r", "0.125", {"1/x 0.125"}}, Example{"0r", "0.", {}},
        Example{"9+9s=", "12.00", {"9.00 +", "sqrt 3.00", "3.00 =", "12.00= "}},
        Example{"12.34<<<", "1.", {}}, Example{"5<", ".", {}},
        Example{"5n+2=", "-3.00", {"-5.00 +", "2.00 =", "-3.00= "}},
        Example{"5+8e3=", "8.00", {"5.00 +", "3.00 =", "8.00= "}},
        Example{"5+c2=", "2.00", {"5.00 +", stars, "2.00 =", "2.00= "}}, Example{"5+3=l", ".", {}},
        Example{"5A3A2SR", "6.00", {}}, Example{"5AZ4+R=", "4.00", {"4.00 +", "0.00 =", "4.00= "}},
        Example{"1234567890123456", "123456789012345.", {}},
        Example{"99999999999999*10=",
                "9.9999999999999E+14",
                {"9.9999999999999E+13 x", "10.00 =", "9.9999999999999E+14= "}}));

TEST(AddingMachine, SaysWhatItCannotDo) {
    Tape tape;
    AddingMachine machine(tape, 2);
    const auto last = [&](const QString& keys) {
        AddingMachine::Answer answer{};
        for (const QChar key : keys) answer = press(machine, key);
        return answer;
    };
    EXPECT_EQ(last("5/0="), AddingMachine::Answer::DividesByZero);
    EXPECT_EQ(last("c123456789012345"), AddingMachine::Answer::Done);
    EXPECT_EQ(last("6"), AddingMachine::Answer::Full);
    EXPECT_EQ(last("c999999999999999*" + QString("999999999999999*").repeated(19)),
              AddingMachine::Answer::Done);
    EXPECT_EQ(last("999999999999999*"), AddingMachine::Answer::Overflow);
}

}  // namespace

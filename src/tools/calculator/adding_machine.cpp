#include "tools/calculator/adding_machine.h"

#include "tools/calculator/machine_numbers.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr const char* betweenSums = "***********************";
constexpr int mostDigits = 15;

// A minus is written with the dash of its key.
QString signOf(MachineOperator key) {
    static const QStringList signs{"/", "+", "x", u"–"_qs, "="};
    return signs.at(key);
}

void separate(Tape& tape) {
    if (!tape.lines.isEmpty() && tape.lines.last() != betweenSums) tape.lines += betweenSums;
}
}  // namespace

Tape& deskTape() {
    static Tape tape;
    return tape;
}

AddingMachine::AddingMachine(Tape& tape, int places) : tape_(tape), places_(places) { separate(tape_); }

QString AddingMachine::format(double value) const { return fixedText(value, places_); }

AddingMachine::Answer AddingMachine::press(MachineKey key, int index) {
    switch (key) {
        case MachineKey::Digit:
            return digit(index);
        case MachineKey::Operator:
            return operate(static_cast<MachineOperator>(index));
        case MachineKey::SquareRoot:
            return shown() < 0 ? Answer::Done : standFraction("sqrt ", std::sqrt(shown()));
        case MachineKey::OneOver:
            return shown() == 0 ? Answer::Done : standFraction("1/x ", 1 / shown());
        case MachineKey::Memory:
            useMemory(index);
            break;
        case MachineKey::Point:
            point();
            break;
        case MachineKey::Percent:
            stand(wholeText(shown() / 100 * accumulator_));
            break;
        case MachineKey::Negate:
            negate();
            break;
        case MachineKey::Backspace:
            backspace();
            break;
        case MachineKey::CancelEntry:
            stand(".");
            break;
        case MachineKey::Cancel:
            cancel();
            break;
        case MachineKey::Clear:
            cancel();
            tape_ = {};
            break;
        case MachineKey::CopyTape:
        case MachineKey::PrintTape:
        case MachineKey::Close:
            break;
    }
    return Answer::Done;
}

// A number after a total begins a new sum.
void AddingMachine::beginNumber() {
    if (mode_ == Mode::Number) return;
    if (pending_ == Equals) cancel();
    display_ = ".";
    afterPoint_ = false;
    mode_ = Mode::Number;
}

AddingMachine::Answer AddingMachine::digit(int digit) {
    beginNumber();
    const auto isDigit = [](QChar each) { return each.isDigit(); };
    if (std::ranges::count_if(display_, isDigit) == mostDigits) return Answer::Full;
    display_.insert(afterPoint_ ? display_.size() : display_.indexOf(u'.'), QString::number(digit));
    return Answer::Done;
}

void AddingMachine::point() {
    beginNumber();
    afterPoint_ = true;
}

void AddingMachine::stand(const QString& display) {
    display_ = display;
    mode_ = Mode::Standing;
}

// The pending operator is applied, and not the one pressed.
AddingMachine::Answer AddingMachine::operate(MachineOperator pressed) {
    if (pressed == Subtract && display_ == "." && pending_ != Equals) {
        display_ = "-.";
        mode_ = Mode::Number;
        afterPoint_ = false;
        return Answer::Done;
    }
    const double operand = shown();
    const bool entered = mode_ == Mode::Number || mode_ == Mode::Standing;
    if (entered)
        if (const Answer answer = apply(operand); answer != Answer::Done) return answer;
    display_ = format(accumulator_);
    if (entered || pressed != Equals)
        tape_.lines += format(entered ? operand : accumulator_) + u' ' + signOf(pressed);
    if (pressed == Equals) printTotal();
    pending_ = pressed;
    mode_ = pressed == Equals ? Mode::Total : Mode::Operator;
    operatorSign_ = signOf(pressed);
    return Answer::Done;
}

AddingMachine::Answer AddingMachine::apply(double operand) {
    double result = operand;  // after a total
    if (pending_ == Add) result = decimalSum(accumulator_, operand);
    if (pending_ == Subtract) result = decimalSum(accumulator_, -operand);
    if (pending_ == Multiply) result = accumulator_ * operand;
    if (pending_ == Divide) result = accumulator_ / operand;
    const bool dividesByZero = pending_ == Divide && operand == 0;
    if (dividesByZero || !std::isfinite(result)) {
        mode_ = Mode::Standing;
        return dividesByZero ? Answer::DividesByZero : Answer::Overflow;
    }
    accumulator_ = result;
    return Answer::Done;
}

void AddingMachine::printTotal() {
    tape_.lastTotal = format(accumulator_);
    const QString line = tape_.lastTotal + "= ";
    if (tape_.lines.isEmpty() || tape_.lines.last() != line) tape_.lines += line;
}

AddingMachine::Answer AddingMachine::standFraction(const QString& name, double value) {
    if (!std::isfinite(value)) return Answer::Overflow;
    stand(std::abs(value) < 1 ? fractionText(value) : format(value));
    tape_.lines += name + display_;
    return Answer::Done;
}

// The point stays in place. A result in exponent form is given up whole.
void AddingMachine::backspace() {
    if (display_.size() <= 2 || display_.contains(u'E'))
        display_ = ".";
    else
        display_.remove(display_.size() - (display_.endsWith(u'.') ? 2 : 1), 1);
    afterPoint_ = afterPoint_ || !display_.endsWith(u'.');
    mode_ = Mode::Number;
}

void AddingMachine::negate() {
    const QString turned = display_.startsWith(u'-') ? display_.mid(1) : u'-' + display_;
    if (mode_ == Mode::Number)
        display_ = turned;
    else
        stand(turned);
}

void AddingMachine::cancel() {
    separate(tape_);
    display_ = ".";
    operatorSign_.clear();
    afterPoint_ = false;
    accumulator_ = 0;
    pending_ = Add;
    mode_ = Mode::Number;
}

void AddingMachine::useMemory(int index) {
    if (index == 0) memory_ = decimalSum(memory_, shown());
    if (index == 1) memory_ = decimalSum(memory_, -shown());
    if (index == 3) memory_ = 0;
    stand(index == 2 ? format(memory_) : display_);
}

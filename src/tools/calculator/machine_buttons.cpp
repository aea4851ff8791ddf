#include "tools/calculator/machine_buttons.h"

#include "platform/ui/enter_key.h"

#include <algorithm>

namespace {
MachineButton number(int digit, const char* caption) {
    return {MachineKey::Digit, digit, "cmdNumber", caption, "", caption};
}

MachineButton sum(MachineOperator key, const char* caption, const char* spoken, const char* characters) {
    return {MachineKey::Operator, key, "cmdOperator", caption, spoken, characters};
}

MachineButton memory(int index, const char* caption, const char* spoken) {
    return {MachineKey::Memory, index, "cmdMemory", caption, spoken, ""};
}
}  // namespace

QString MachineButton::name() const {
    return index < 0 ? QString(control) : QString("%1_%2").arg(control).arg(index);
}

const std::vector<MachineButton>& machineButtons() {
    using enum MachineKey;
    static const std::vector<MachineButton> buttons{
        memory(0, "M+", "Add to memory"),
        memory(1, "M–", "Subtract from memory"),
        memory(2, "Recall", "Recall memory"),
        memory(3, "Clear", "Clear memory"),
        {Backspace, -1, "cmdBackspace", "«", "Backspace", "", Qt::Key_Backspace},

        number(7, "7"),
        number(8, "8"),
        number(9, "9"),
        sum(Divide, "/", "Divide", "/"),
        {Cancel, -1, "cmdCancel", "C", "Cancel the sum", "c", Qt::Key_Escape},

        number(4, "4"),
        number(5, "5"),
        number(6, "6"),
        sum(Multiply, "x", "Multiply", "*"),
        {CancelEntry, -1, "cmdCancelEntry", "C&E", "Cancel the entry", "e"},

        number(1, "1"),
        number(2, "2"),
        number(3, "3"),
        sum(Subtract, "–", "Subtract", "-"),
        {SquareRoot, -1, "cmdSqrt", "sqrt", "Square root", ""},

        number(0, "0"),
        {Point, -1, "cmdDecimal", ".", "Point", "."},
        {Negate, -1, "cmdNegitive", "+/–", "Change the sign", ""},
        sum(Add, "+", "Add", "+"),
        {OneOver, -1, "cmd1OverX", "1/x", "One over x", ""},

        {Percent, -1, "cmdPercent", "%", "Percent", "%"},
        sum(Equals, "=", "Total", "="),
        {Clear, -1, "cmdClear", "Clear Machine [L]", "", "l"},
        {CopyTape, -1, "cmdCopy", "Copy Tape Results", "", ""},
        {PrintTape, -1, "cmdPrint", "Print Tape [P]", "", "p"},
        {Close, -1, "cmdClose", "Close Machine [ESC]", "", "x"},
    };
    return buttons;
}

const MachineButton* machineButtonFor(Qt::Key key, const QString& typed) {
    const QString text = isEnterKey(key) ? "=" : typed.toLower();
    const auto found = std::ranges::find_if(machineButtons(), [&](const MachineButton& button) {
        const bool isTyped = text.size() == 1 && QString(button.characters).contains(text);
        return isTyped || (key == button.other && key != Qt::Key_unknown);
    });
    return found == machineButtons().end() ? nullptr : &*found;
}

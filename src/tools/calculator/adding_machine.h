#pragma once
#include <QString>
#include <QStringList>

// The paper of the adding machine. It lies on the desk for as long as the program runs, whatever becomes of
// the machine.
struct Tape {
    QStringList lines;
    QString lastTotal;  // as it was printed; empty: none since the tape was cleared
};
Tape& deskTape();

enum class MachineKey {
    Digit,     // 0 to 9
    Operator,  // of the MachineOperator
    Memory,    // 0 add, 1 subtract, 2 recall, 3 clear
    Point,
    Percent,
    Negate,
    SquareRoot,
    OneOver,
    Backspace,
    CancelEntry,
    Cancel,
    Clear,
    CopyTape,  // these three are the screen's own
    PrintTape,
    Close,
};

enum MachineOperator { Divide, Add, Multiply, Subtract, Equals };

// A desk adding machine: registers, mode of entry and tape, without a window. The display always holds a
// point: blank is ".", and a number keeps it at its end until the point key is pressed.
class AddingMachine {
  public:
    AddingMachine(Tape& tape, int places);

    // Full: the display takes no more digits. After DividesByZero and Overflow the running sum and the tape
    // are as they were, and the next digit starts the number over.
    enum class Answer { Done, Full, DividesByZero, Overflow };
    Answer press(MachineKey key, int index = 0);
    // The decimal places of what is shown and printed from now on, 0 to 4.
    void setPlaces(int places) { places_ = places; }

    const QString& display() const { return display_; }
    const QString& operatorSign() const { return operatorSign_; }
    bool hasMemory() const { return memory_ != 0; }
    // No sum is under way and nothing was entered.
    bool isIdle() const { return display_ == "." && accumulator_ == 0 && operatorSign_.isEmpty(); }

  private:
    double shown() const { return display_.toDouble(); }
    Answer digit(int digit);
    void point();
    void beginNumber();
    void stand(const QString& display);
    Answer operate(MachineOperator pressed);
    Answer apply(double operand);
    void printTotal();
    Answer standFraction(const QString& name, double value);
    void backspace();
    void negate();
    void cancel();
    void useMemory(int index);
    QString format(double value) const;

    Tape& tape_;
    int places_;
    double accumulator_ = 0;
    double memory_ = 0;
    QString display_ = ".";
    QString operatorSign_;
    MachineOperator pending_ = Add;
    bool afterPoint_ = false;
    // Number: it is being entered. Operator, Total: the display shows the running sum. Standing: the display
    // counts as entered, and the next digit starts a new number.
    enum class Mode { Number, Operator, Total, Standing } mode_ = Mode::Number;
};

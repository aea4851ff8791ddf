#pragma once
#include "tools/calculator/adding_machine.h"

#include <Qt>
#include <vector>

// The keys of the adding machine: the buttons on its pad, and what is typed for them.
struct MachineButton {
    MachineKey key;
    int index;               // among those of its kind; -1: the only one
    const char* control;     // "cmdNumber"
    const char* caption;     // of the button
    const char* spoken;      // its accessible name; empty: the caption
    const char* characters;  // that stand for it, in either case
    Qt::Key other = Qt::Key_unknown;
    QString name() const;  // "cmdNumber_7"
};

// In the rows of the pad, five to a row, from the top; the last ones stand below the tape.
const std::vector<MachineButton>& machineButtons();
inline constexpr int padColumns = 5;
inline constexpr int padButtons = 27;

// The button that a key stands for; null: none.
const MachineButton* machineButtonFor(Qt::Key key, const QString& typed);

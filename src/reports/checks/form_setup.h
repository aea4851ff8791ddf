#pragma once
#include "platform/outcome.h"

// The three printing settings of the firm, as letters. Empty: the file holds none that is known.
struct FormSetup {
    QString checkBook;      // "C" commercial, "P" personal
    QString checkPrinter;   // "D" dot matrix, "L" laser or inkjet
    QString reportPrinter;  // the same
    bool operator==(const FormSetup&) const = default;
};

// As the files have them now, in letters of either case. A file that is blank or not there stands for the
// first letter.
FormSetup loadFormSetup();
// Writes all three, one after another; what is empty is written as the first letter. A file that cannot be
// written is a Fault, and those behind it stay as they are.
Outcome saveFormSetup(const FormSetup& setup);

#pragma once
#include "reports/frame/report_layout.h"

// The check books of the firm, and the papers that their checks are printed on.
enum class CheckBook { Commercial, Personal };

// One paper: its layout, and the mark around payee, amount and words.
struct CheckPaper {
    ReportLayout layout;
    QString stars;
};

const CheckPaper& prtCheckOnly();
const CheckPaper& prtCheckOnlySmall();
const CheckPaper& prtCheckOnlyDotMatrix();
const CheckPaper& prtCheckOnlySmallDotMatrix();

// The book that the firm's setting names, read anew.
CheckBook defaultCheckBook();
// The paper of a book on the firm's check printer, whose setting is read anew: a dot matrix printer unless it
// is named otherwise.
const CheckPaper& checkPaper(CheckBook book);
// The same for an entry screen, which knows two kinds of printers: null for another one.
const CheckPaper* checkPaperFromEntry();

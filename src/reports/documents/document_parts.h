#pragma once
#include "reports/frame/report_events.h"

class Connection;

// What the papers of a sale and of a purchase share: the heading with company, party and number, the lines
// with their net price, and the foot with remarks, total and signatures. All places in twips.

struct ColumnPlace {
    int left, width;
};

struct DocumentColumns {
    ColumnPlace ordered, moved, unit, item, description, gross, discount, net, amount;
};

struct Signature {
    const char* caption;
    const char* name;  // of the label that gets the person
    int left;
};

// One of the papers: its words, what it is bound to, and its columns.
struct DocumentPaper {
    const char* title;
    const char* party;
    const char* number;
    const char* numberColumn;
    const char* date;
    const char* dateColumn;
    const char* moved;  // the quantity that changed hands: column, and head of the column
    const char* totalName;
    DocumentColumns columns;
    QList<Signature> signatures;
};

ReportSection documentHeader(const DocumentPaper& paper);
ReportSection documentLine(const DocumentPaper& paper);
// With room for more controls of the paper's own.
ReportSection documentFooter(const DocumentPaper& paper, const QList<ReportControl>& more = {});

// The figures of a paper. The store is read while the run lays out its pages.
ReportEvents documentEvents(Connection& store);
// The company and the persons of the signatures.
RunTexts documentTexts(Connection& store);

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
    int numberLeft = 7650;        // of title and number
    const char* moved = nullptr;  // the quantity that changed hands: column, and head of the column
    const char* totalName = nullptr;
    DocumentColumns columns = {};
    QList<Signature> signatures;
};

ReportSection documentHeader(const DocumentPaper& paper);
// Of a paper with columns of its own: their heads, from the left.
ReportSection documentHeader(const DocumentPaper& paper, const QList<ReportControl>& heads);
ReportSection documentLine(const DocumentPaper& paper);
// With room for more controls of the paper's own.
ReportSection documentFooter(const DocumentPaper& paper, const QList<ReportControl>& more = {});
QList<ReportControl> documentSignatures(const DocumentPaper& paper);

// The figures of a paper. The store is read while the run lays out its pages.
ReportEvents documentEvents(Connection& store);
// Their heading: the party's address and terms.
void fillDocumentHeading(const ReportSource& row, SectionFields& fields);
// The company and the persons of the signatures.
RunTexts documentTexts(Connection& store);

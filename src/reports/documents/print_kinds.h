#pragma once
#include "reports/frame/report_start.h"

class Connection;

// One kind of document that the hub prints: what its list shows, its words, and its paper.
struct PrintKind {
    const char* code;
    const char* table;
    const char* number;  // columns of the list
    const char* date;
    const char* numberHead;
    const char* dateHead;
    const char* printed;  // captions of the two lists
    const char* unprinted;
    std::optional<ReportJobParts> (*report)(Connection& store, const QString& number);
    const DocumentTagging& (*tagging)();
    void (*readSettings)() = nullptr;  // before the first paper
    bool hasChecks = false;            // prints checks, too; neither they nor its paper go to a file
};

// Null: this version does not print that kind.
const PrintKind* findPrintKind(const QString& code);

// A kind that this version lacks, as the menu calls it.
QString laterPrintKind(const QString& code);

// The documents whose Printed is as the flag says, by number: number and date "mm-dd-yyyy". "True" and
// "False" are the values that the store keeps; any other flag is compared as the number that it is, so that
// "1" finds nothing.
QList<QStringList> documentsToPrint(Connection& store, const PrintKind& kind, const QString& flag);

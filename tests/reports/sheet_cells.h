#pragma once
#include <QByteArray>
#include <QStringList>
#include <vector>

// A row of a spreadsheet as it is read: the texts of its cells by column, each in its mask.
struct SheetLine {
    int level = 0;
    QStringList cells;
};

struct SheetFile {
    std::vector<SheetLine> lines;
    QStringList figures;  // what cells hold as numbers and moments, as they are shown
    int frozenLines = 0;
};

// Reads a spreadsheet back. Fails the test when unzip is not there or cannot read it.
SheetFile readSheet(const QByteArray& xlsx);
// "1| Ana | 1,000.50": the level and the cells of each row.
QString sheetText(const SheetFile& sheet);

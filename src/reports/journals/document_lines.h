#pragma once
#include "books/key_numbers.h"
#include "platform/currency.h"
#include "platform/store/connection.h"

#include <QDate>
#include <vector>

// The lines of the documents of one side of the books, in memory: their documents and items are numbers, by
// which a report sorts and sums them up without asking the store for each. Two statements, however many.
class DocumentLines {
  public:
    enum class Side { Sales, Purchases };
    // documents: the condition of the master, " WHERE (RefDate BETWEEN ? AND ?)"; lines: one more of the
    // lines, "ItemID = ?". Empty: all.
    DocumentLines(Connection& store, Side side, const Sql& documents, const Sql& lines = {});

    // In the order of date and number.
    struct Document {
        QByteArray contact;
        QByteArray date;  // as stored
        Currency total;
    };
    struct Line {
        int document, item, unit;
        Currency quantity, price, discount, total;
    };
    const Document& document(int number) const { return documents_[static_cast<size_t>(number)]; }
    const KeyNumbers& numbers() const { return numbers_; }  // of the documents
    const KeyNumbers& items() const { return items_; }
    const KeyNumbers& units() const { return units_; }
    const std::vector<Line>& lines() const { return lines_; }
    QString number(int document) const { return QString::fromUtf8(numbers_.at(document)); }
    QString item(int number) const { return QString::fromUtf8(items_.at(number)); }
    QString unit(int number) const { return QString::fromUtf8(units_.at(number)); }
    QDate date(int number) const;

  private:
    void readLines(Connection& store, const Sql& statement);

    KeyNumbers numbers_, items_, units_;
    std::vector<Document> documents_;
    std::vector<Line> lines_;
};

// What the master says of the items of lines, by their number; one that it does not have is unknown.
struct ItemNames {
    bool isKnown = false;
    QString description = {}, unit = {};
};
std::vector<ItemNames> namesOf(Connection& store, const KeyNumbers& items);

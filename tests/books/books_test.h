#pragma once
#include "platform/box.h"
#include "support/test_store.h"

#include <QDate>

inline QDate day(int number) { return QDate(2026, 1, 1).addDays(number - 1); }

// Posts and costs all that waits; the boxes it gave.
Boxes runEndOfDay(Connection& store);

// The first column of a query, row by row.
QStringList rowsOf(Connection& store, const Sql& query);

// A delivered store with the contact C1 "Ana".
class BooksTest : public testing::Test {
  protected:
    void SetUp() override { addContact(store, {"C1", "Ana"}); }

    void addItems(const QStringList& codes);
    // Documents as their saves leave them, queued for the end of day.
    void buy(const QString& number, int date, const std::vector<LineRow>& lines,
             const QString& contact = "C1");
    void sell(const QString& number, int date, const std::vector<LineRow>& lines);
    void write(const QString& statement, const QVariantList& values = {});
    // The values of one column, joined with blanks.
    QString column(const QString& statement, const QVariantList& values = {});

  private:
    TestStore file_;

  protected:
    Connection& store = file_.connection();
};

#include "books/books_test.h"

#include "books/end_of_day.h"

Boxes runEndOfDay(Connection& store) {
    EndOfDayView view;
    Boxes boxes;
    const auto documents = LoadPostingQueue(store, Progress::none());
    const auto items = LoadPostingItems(store, Progress::none());
    EXPECT_EQ(PostStockValuation(store, documents, view, boxes), !documents.isEmpty());
    EXPECT_EQ(InitializeStockValuation(store, items, view, boxes), !items.isEmpty());
    return boxes;
}

QStringList rowsOf(Connection& store, const Sql& query) {
    QStringList rows;
    for (auto row = store.execute(query); !row.eof(); row.moveNext()) rows += row.textAt(0);
    return rows;
}

void BooksTest::addItems(const QStringList& codes) {
    for (const QString& code : codes) addItem(store, {code, "Item " + code});
}

void BooksTest::buy(const QString& number, int date, const std::vector<LineRow>& lines,
                    const QString& contact) {
    addPurchase(store, {number, day(date), contact, lines});
}

void BooksTest::sell(const QString& number, int date, const std::vector<LineRow>& lines) {
    addSale(store, {number, day(date), "C1", lines});
}

void BooksTest::write(const QString& statement, const QVariantList& values) {
    store.run({statement, values});
}

QString BooksTest::column(const QString& statement, const QVariantList& values) {
    return rowsOf(store, {statement, values}).join(u' ');
}

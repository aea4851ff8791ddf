#pragma once
#include "books/random_books.h"

// The figures of some books, worked out plainly in memory in whole ten-thousandths, by other ways than the
// program's: no query, no running layer.
class BooksModel {
  public:
    explicit BooksModel(const Books& books);

    qint64 salesBalance(const QString& refNo) const;
    qint64 purchaseBalance(const QString& number) const;
    qint64 customerBalance(const QString& contact) const;
    qint64 supplierBalance(const QString& contact) const;
    qint64 itemBalance(const QString& item) const;
    qint64 itemBalanceUntil(const QString& item, const QDate& date) const;
    qint64 servedOnOrder(const QString& item, const QString& refNo) const;

    struct Row {
        QString bookId, reference, item;
        QDate date;
        size_t place = 0;  // in the order of posting
        qint64 quantity = 0, price = 0, balance = 0, salesCost = 0;
    };
    // After the end of day, in the order of posting.
    const std::vector<Row>& ledger() const { return ledger_; }
    qint64 valuation(const QString& item, const QDate& from, const QDate& to) const;
    qint64 periodSalesCost(const QString& item, const QDate& from, const QDate& to) const;
    qint64 costPrice(const QString& item) const;

  private:
    using Rows = std::vector<Row*>;
    void post();
    Rows rowsOf(const QString& item);
    static void balance(const Rows& rows);
    static void cost(const Rows& rows);
    qint64 moved(const QString& item, const std::function<bool(const Books::Document&)>& counts) const;

    const Books& books_;
    std::vector<Row> ledger_;
};

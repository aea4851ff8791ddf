#pragma once
#include "demo/demo_dice.h"

#include <QDate>
#include <QMultiMap>
#include <QString>

class Connection;

// What the demo firm collects: most customers pay within their terms, some in two parts, some promptly with a
// discount, some long after, by cash or by check; some checks are dated ahead, and a few bounce. The same
// each time but for the dates. Throws std::runtime_error with the text of a refused step, and StoreError.
class DemoCollections {
  public:
    explicit DemoCollections(Connection& store) : store_(store) {}

    // Decides when and how a sale will be paid.
    void sold(const QString& refNo, const QString& customer, int termDays, const QDate& day);
    // Posts the receipts of all payments that fall due by this day: one for each customer.
    void collect(const QDate& day);
    // What became of the checks dated up to this day.
    void settleChecks(const QDate& day);

  private:
    struct Due {
        QString refNo;
        QString customer;
        bool half;
        bool prompt;  // with the discount
    };
    void post(const QString& customer, const QList<Due>& dues, const QDate& day);

    Connection& store_;
    QMultiMap<QDate, Due> planned_;
    int lastCheck_ = 104200;
    DemoDice dice_{0x9E3779B97F4A7C15ULL};
};

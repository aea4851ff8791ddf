#pragma once
#include "demo/demo_dice.h"
#include "platform/currency.h"

#include <QDate>
#include <QList>
#include <QMultiMap>
#include <QString>

class Connection;
struct VoucherDocument;

// What the demo firm pays: its suppliers once a week for the orders that are due, small sums in cash, others
// by one to three checks of which the later ones are dated ahead; and its rent, electricity and fuel. The
// same each time but for the dates. Throws std::runtime_error with the text of a refused step, and
// StoreError.
class DemoPayments {
  public:
    explicit DemoPayments(Connection& store) : store_(store) {}

    // Decides when a purchase order will be paid.
    void bought(const QString& orderNo, const QString& supplier, int termDays, const QDate& day);
    // What is paid on a day that lies so many days before the last one.
    void pay(const QDate& day, int daysLeft);
    // The checks dated up to this day are cleared, but for the few that nobody has brought to the bank.
    void settleChecks(const QDate& day);

  private:
    void paySupplier(const QString& supplier, const QStringList& orders, const QDate& day);
    void payExpenses(const QDate& day, int daysLeft);
    void issueChecks(VoucherDocument& voucher, const QDate& day);

    Connection& store_;
    struct Due {
        QString orderNo, supplier;
    };
    QMultiMap<QDate, Due> planned_;
    int lastCheck_ = 880100;
    DemoDice dice_{0xD1B54A32D192ED03ULL};
};

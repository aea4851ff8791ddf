#pragma once
#include "demo/day_hand.h"
#include "demo/day_script.h"

class QWidget;

// The steps of a played day that are about money: receipts, vouchers and what becomes of checks. Throws
// DayFault.
class DayMoney {
  public:
    explicit DayMoney(DayHand& hand) : hand_(hand) {}

    // The number of the document.
    QString receipt(const DayStep& step);
    QString voucher(const DayStep& step);
    void checks(const DayStep& step);

  private:
    void payOrder(QWidget* dialog, const DayPayment& payment, const QString& checkNo);
    void payPurchases(QWidget* entry, const DayStep& step);
    void payExpenses(QWidget* entry, const DayStep& step);
    void issueCheck(QWidget* entry, const DayCheck& check);
    void bounce(QWidget* screen, const QString& dialog, const QString& status);
    void clear(QWidget* screen, int count);
    QWidget* popup(QWidget* entry, const char* button, const QString& dialog);

    DayHand& hand_;
};

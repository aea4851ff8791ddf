#pragma once
#include "support/box_script.h"
#include "support/program_driver.h"
#include "support/test_store.h"

#include <QDate>
#include <QWidget>

// The whole program over a store of its own: a firm with the supplier "Rizal Mill", the customer "Cora Store"
// and the item RICE (selling price 10.00, nothing in stock). Its clock stands on a day of the test's own.
class Journey : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    Connection& store() { return StoreConnection(); }
    // Closes every window and the store, and saves nothing; the process goes on.
    static void closeProgram();
    // The clock stands on this day of the firm's month.
    static QDate onDay(int day);
    // Plays steps of a day (see demo/day.txt), and gives the numbers of the documents saved.
    static QStringList play(const QString& script);
    static QString playOne(const QString& script) { return play(script).value(0); }

    // Opens the journal by its menu item and goes to the document.
    static QWidget* journalAt(const QString& menuItem, const QString& keyColumn, const QString& number);
    static QWidget* sale(const QString& number) { return journalAt("mnuTransactionItem_2", "RefNo", number); }
    static QWidget* purchase(const QString& number) {
        return journalAt("mnuTransactionItem_5", "PurchaseNo", number);
    }
    // Deletes the document that the journal is at, and closes the journal.
    static void deleteCurrent();

    // A figure of the store, as it is printed; "none" with no row.
    QString figure(const QString& column, const QString& table, const QString& key, const QString& value);
    QString itemFigure(const QString& column, const QString& item = "1001") {
        return figure(column, "tblItemMaster", "ItemCode", item);
    }
    QString costOf(const QString& sale) {
        return figure("SalesCost", "tblStockValuation", "BookID = 'S' AND Reference", sale);
    }

  private:
    QTemporaryDir folder_;
};

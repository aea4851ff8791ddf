#pragma once
#include "foundation/session.h"
#include "platform/store/connection.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

// A delivered store in a folder of its own, open. The delivered store is made once in a test program and
// copied.
class TestStore {
  public:
    TestStore();
    Connection& connection() { return connection_; }
    QString path() const { return folder_.filePath(storeFileName); }

  private:
    QTemporaryDir folder_;
    Connection connection_;
};

// Puts a copy of the delivered store at this path.
void copyDeliveredStore(const QString& path);

// A test on the session's own connection: the program's folder is a fresh one with a delivered store, the
// user is ADMIN. A clock that the test has frozen goes on after it.
class SessionTest : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;
    Connection& store() { return StoreConnection(); }
    QString storePath() const { return folder_.filePath(storeFileName); }

    QTemporaryDir folder_;
};

// One row, with these of its columns: "RefNo, Balance".
void insertRow(Connection& store, const QString& table, const QString& columns, const QVariantList& values);

// Rows as the documents and masters of a firm would leave them, written straight into the tables.
struct ContactRow {
    QString id;
    QString name;
    bool customer = true;
    bool supplier = true;
    Currency discount = {};
    Currency terms = {};
    Currency creditLimit = {};
};
void addContact(Connection& store, const ContactRow& contact);

struct ItemRow {
    QString code;
    QString description;
    Currency cost = {};
    Currency selling = {};
    Currency wholesale = {};
    Currency orderLevel = {};
    QString unit = "PC";
};
void addItem(Connection& store, const ItemRow& item);

// A line of a sale (quantity: served) or of a purchase (quantity: delivered).
struct LineRow {
    QString item;
    Currency quantity;
    Currency price;
    Currency discount = {};
};
struct DocumentRow {
    QString number;
    QDate date;
    QString contactId;
    std::vector<LineRow> lines;
    bool printed = false;
    bool queued = true;  // for the end of day, with its items
};
// The document's total is the sum of its lines, and its balance the same.
void addSale(Connection& store, const DocumentRow& sale);
void addPurchase(Connection& store, const DocumentRow& purchase);

inline Currency amount(double value) { return Currency::fromDouble(value); }
// The one value that a statement finds, as text; "none" without a row.
QString valueOf(Connection& store, const Sql& statement);

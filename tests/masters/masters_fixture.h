#pragma once
#include "foundation/shared_routines.h"
#include "masters/contact_document.h"
#include "masters/item_document.h"
#include "platform/outcome.h"
#include "support/test_store.h"

#include <gtest/gtest.h>

struct FaultText {
    QString text;
    QString focus;
    bool operator==(const FaultText&) const = default;
};
void PrintTo(const FaultText& fault, std::ostream* out);

// Text and focus of a fault; empty texts when it is done.
FaultText faultOf(const Outcome& outcome);

// The delivered store with one supplier, "Mabuhay Trading", on 2 March 2026; ADMIN is at work.
class MastersTest : public SessionTest {
  protected:
    void SetUp() override;

    QString supplierId() const { return supplierId_; }
    ItemEntry goodItem() const;        // "1000000001"
    ContactEntry goodContact() const;  // a customer
    void addItem(const QString& code, const QString& description);
    void addContact(const QString& name, bool customer, bool supplier);

    Recordset one(const Sql& statement) { return store().execute(statement); }
    // The rows of a table, with a condition: "tblItemMaster WHERE Unit = 'PC'".
    qint64 count(const QString& rows);

  private:
    QString supplierId_;
};

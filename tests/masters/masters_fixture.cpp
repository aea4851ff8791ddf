#include "masters_fixture.h"

#include "platform/clock.h"

void PrintTo(const FaultText& fault, std::ostream* out) {
    *out << '"' << fault.text.toStdString() << "\" at " << fault.focus.toStdString();
}

FaultText faultOf(const Outcome& outcome) {
    if (const auto* fault = std::get_if<Fault>(&outcome)) return {fault->box.text, fault->focus};
    return {"", ""};
}

void MastersTest::SetUp() {
    SessionTest::SetUp();
    Clock::freeze(QDateTime(QDate(2026, 3, 2), QTime(9, 30)));
    addContact("Mabuhay Trading", false, true);
    supplierId_ = lastRecord(store(), contactMaster);
}

ItemEntry MastersTest::goodItem() const {
    return {.ItemCode = "1000000001",
            .Description = "COMMON WIRE NAIL",
            .Unit = "PC",
            .Locator = "A1",
            .SupplierName = "Mabuhay Trading",
            .CostPrice = "10.00",
            .SellingPrice = "15.00",
            .WholesalePrice = "12.00",
            .DateAquired = "01/15/2026",
            .OrderLevel = "5",
            .InventoryBalance = "0"};
}

ContactEntry MastersTest::goodContact() const {
    return {.ContactName = "Juan dela Cruz",
            .Terms = "30",
            .CreditLimit = "5,000.00",
            .Discount = "99.99",
            .IsCustomer = true};
}

void MastersTest::addItem(const QString& code, const QString& description) {
    ItemEntry entry = goodItem();
    entry.ItemCode = code;
    entry.Description = description;
    ASSERT_EQ(faultOf(SaveItem(store(), entry, true, {})).text, "");
}

void MastersTest::addContact(const QString& name, bool customer, bool supplier) {
    ContactEntry entry = goodContact();
    entry.ContactName = name;
    entry.IsCustomer = customer;
    entry.IsSupplier = supplier;
    QString id;
    ASSERT_EQ(faultOf(SaveContact(store(), entry, true, id)).text, "");
}

qint64 MastersTest::count(const QString& rows) {
    return one("SELECT COUNT(*) AS Ihap FROM " + rows).integer("Ihap");
}

#pragma once
#include "masters/master_records.h"
#include "platform/store/connection.h"

#include <QDate>
#include <optional>
#include <variant>

// The cash of the counter: what a cashier begins a day with, and the audit of what the day collected. Without
// a window; failures are StoreError.

inline constexpr MasterTable cashMaster{"tblPOS", "ZevRef"};

// As typed.
struct CashEntry {
    QString cashier;  // the full name
    QString saleDate;
    QString cash;
    MasterEdit edit = {};
};

inline constexpr const char* invalidSaleDate = "Invalid Sale Date Format!";

// Adds the beginning cash of a cashier's day, whose key is then set, or changes that of the row with the key:
// the cash alone.
Outcome SaveCash(Connection& store, const CashEntry& entry, bool addMode, QString& key);
Outcome DeleteCash(Connection& store, const QString& key);

// The cashier of the audit that means all of them.
inline constexpr const char* wholeDay = "Total Collection for the Day";

// The collections of one day, of one user or of all.
struct CashAudit {
    Currency cashSales;      // all payments received
    Currency beginningCash;  // of the first row found
    Currency total() const { return cashSales + beginningCash; }
    Currency nonCash;  // of the payments below
    Sql payments;      // that were not cash, by their status
    bool hasPayments = false;
};
struct CashAuditRequest {
    QString cashier;  // the full name, or wholeDay
    QString date;     // as typed
};
// The audit, or what refuses it: an unknown cashier, no date, a day without a payment.
std::variant<CashAudit, Fault> auditCash(Connection& store, const CashAuditRequest& request);
Fault invalidAuditDate();
// What is tested before anything else is asked.
std::optional<Fault> auditFault(const CashAuditRequest& request);

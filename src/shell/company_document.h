#pragma once
#include "foundation/stored_state.h"
#include "platform/outcome.h"
#include "platform/store/connection.h"

#include <QString>
#include <vector>

// One text of the firm's row (the letters of the menu bar are not taken again by the labels) in
// tblSystemProfile, with the box that it is typed into.
struct CompanyField {
    const char* control;
    const char* label;
    const char* column;
    int capacity = 0;  // in letters; 0: that of any box
};
const std::vector<CompanyField>& companyFields();

// The firm's details as typed.
struct CompanyProfile {
    QHash<QString, QString> texts;  // by column
    QString tax;                    // as typed; read as "#,##0.0000"
    StoredState loaded;             // the row as it was then
};

// Empty texts from a store that has no row.
CompanyProfile loadCompany(Connection& store);
// Writes the one row, or adds it; one that someone else has changed meanwhile is refused. Throws StoreError.
Outcome saveCompany(Connection& store, const CompanyProfile& profile);

#include "shell/company_document.h"

#include "masters/field_widths.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/store/transaction.h"

const std::vector<CompanyField>& companyFields() {
    static const std::vector<CompanyField> fields{
        {"txtCompanyName", "Company &Name :", "CompanyName", width::contactName},
        {"txtCompanyAddress", "Company A&ddress :", "CompanyAddress", width::address},
        {"txtCompanyTelNo", "Company Te&l. No. :", "CompanyTelNo", width::telNo},
        {"txtCompanyEmail", "Company eMa&il :", "CompanyEmail", width::eMail},
        {"txtCompanyLogo", "Company Lo&go :", "CompanyLogo"},
        {"txtTIN", "Compan&y TIN No. :", "CompanyTIN", width::documentNo},
        {"txtPrepare", "&Prepared By :", "Prepared", width::contactName},
        {"txtChecked", "Chec&ked By :", "Checked", width::contactName},
        {"txtApproved", "Approved &By :", "Approved", width::contactName},
    };
    return fields;
}

CompanyProfile loadCompany(Connection& store) {
    const Recordset key = store.execute("SELECT RowNo FROM tblSystemProfile");
    CompanyProfile profile;
    if (key.eof()) return profile;
    profile.loaded = StoredState(store, {{"tblSystemProfile", "RowNo"}}, key.integer("RowNo"));
    const Recordset row = store.execute("SELECT * FROM tblSystemProfile");
    for (const CompanyField& field : companyFields()) profile.texts[field.column] = row.trimmed(field.column);
    profile.tax = formatNumber(row.currency("ValueTax"), mask::price);
    return profile;
}

Outcome saveCompany(Connection& store, const CompanyProfile& profile) {
    if (profile.texts["CompanyName"].isEmpty())
        return errorFault("Please Enter Company Name!", "txtCompanyName");
    const auto tax = parseNumber(profile.tax);
    if (!tax) return errorFault("Please Enter Numeric Value for Value Added Tax!", "txtTax");
    Transaction save(store);
    if (auto fault = profile.loaded.overtaken(store, {})) return *fault;
    Recordset row = store.openTable("tblSystemProfile", "WHERE 1 = 1");
    if (row.eof()) row.addNew();
    for (const CompanyField& field : companyFields())
        row.set(field.column, trim(profile.texts[field.column]));
    row.set("ValueTax", *tax);
    row.update();
    save.commit();
    return Done{{information("Saved!", "Record Successfully Saved!")}};
}

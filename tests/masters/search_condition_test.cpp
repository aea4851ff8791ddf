#include "masters/contact_document.h"
#include "masters/item_document.h"
#include "masters_fixture.h"

namespace {
QString shownCondition(const SearchCondition& condition) {
    if (const Box* box = std::get_if<Box>(&condition)) return box->title + '|' + box->text;
    const Sql& sql = std::get<Sql>(condition);
    QString text = sql.text;
    for (const QVariant& value : sql.values) text += '|' + storedValue(value).toString();
    return text;
}

TEST(SearchCondition, IsBuiltByTheCategory) {
    struct Row {
        const QList<SearchField>& fields;
        const char *category, *first, *second, *condition;
    };
    const auto& items = itemSearchFields();
    const auto& contacts = contactSearchFields();
    const Row rows[] = {
        {items, "Item Code", "10", "", " WHERE ItemCode LIKE ?|%10%"},
        {items, "Unit", "", "", ""},
        {items, "Supplier Code", "1000000001", "", " WHERE SupplierCode LIKE ?|%1000000001%"},
        {items, "Description", " nail ", "", " WHERE Description LIKE ?|%nail%"},
        {items, "Description", "", "2in", " WHERE Description LIKE ?|%2in%"},
        {items, "Description", "nail", "2in",
         " WHERE Description LIKE ? AND Description LIKE ?|%nail%|%2in%"},
        {items, "Description", " ", "", "Error!|Please Enter Search Value to Search!"},
        {items, "Cost Price", "1,250.5", "", " WHERE CostPrice = ?|12505000"},
        {items, "Inventory Balance", "", "", ""},
        {items, "Who Updated", "admin", "", " WHERE UpdatedBy = ?|admin"},
        {items, "Who Updated", "", "", ""},
        {items, "Colour", "x", "", "Please select!|Please enter proper search category!"},
        {contacts, "Name", "o'hara", "", " WHERE ContactName LIKE ?|%o'hara%"},
        {contacts, "Terms", "30", "", " WHERE Terms = ?|300000"},
        {contacts, "Type", "Customer", "", "Please select!|Please enter proper search category!"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(shownCondition(searchCondition(row.fields, row.category, row.first, row.second)),
                  row.condition)
            << row.category;
}

class WalkTheTable : public MastersTest {};

TEST_F(WalkTheTable, GoesInTheOrderOfTheKeys) {
    EXPECT_EQ(firstRecord(store(), itemMaster), "");
    for (const char* code : {"B", "a", "1000000010", "c"}) addItem(code, code);
    EXPECT_EQ(firstRecord(store(), itemMaster), "1000000010");
    EXPECT_EQ(lastRecord(store(), itemMaster), "c");
    EXPECT_EQ(nextRecord(store(), itemMaster, " 1000000010 "), "a");
    EXPECT_EQ(nextRecord(store(), itemMaster, "A"), "B") << "keys compare without regard to case";
    EXPECT_EQ(previousRecord(store(), itemMaster, "B"), "a");
    EXPECT_EQ(nextRecord(store(), itemMaster, "c"), std::nullopt);
    EXPECT_EQ(previousRecord(store(), itemMaster, "1000000010"), std::nullopt);
}

}  // namespace

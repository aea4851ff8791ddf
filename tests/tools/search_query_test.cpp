#include "tools/search/search_query.h"

#include "books/balances.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/store/transaction.h"
#include "support/test_store.h"

namespace {

constexpr const char* kinds[] = {"Inquire Item", "Inquire Contact Balance", "Inquire Transaction Balance"};

// Few words for many rows, so that every combination of filters finds some and leaves some out.
QString word(int number) { return QStringList{"Alpha", "beta", "GAMMA", "Ñandu"}.at(number % 4); }

class SearchQueryTest : public ::testing::Test {
  protected:
    void SetUp() override {
        Transaction unit(store());
        for (int i = 0; i < 6; ++i)
            addContact(store(),
                       {.id = QString::number(i), .name = word(i) + QString::number(i), .terms = amount(30)});
        for (int i = 0; i < 500; ++i)
            insertRow(store(), "tblItemMaster", "ItemCode, Description, SupplierCode, Unit, Locator",
                      {QString("%1-%2").arg(word(i)).arg(i), word(i / 4), QString::number(i / 16 % 8),
                       word(i / 64), i % 5 ? word(i / 128) : QString()});
        for (int i = 0; i < 200; ++i) {
            const QDate date(2026, 3, 1 + i / 4 % 3);
            const QString contact = QString::number(i / 12 % 7);
            const QString number = QString("%1-%2").arg(i % 4).arg(i);
            addSale(store(),
                    {.number = number, .date = date, .contactId = contact, .lines = {}, .queued = false});
            addPurchase(store(),
                        {.number = number, .date = date, .contactId = contact, .lines = {}, .queued = false});
            insertRow(store(), "tblReceiptMaster", "PayNo, PaymentDate, CustomerNo", {i, date, contact});
            insertRow(store(), "tblDisbursementMaster", "VoucherNo, VoucherDate, ContactNo",
                      {number, date, contact});
        }
        unit.commit();
    }
    Connection& store() { return store_.connection(); }

    QList<QStringList> found(const SearchRequest& request, int rows = 7) {
        QList<QStringList> all;
        const SearchAnswer answer = prepareSearch(request);
        if (!std::holds_alternative<Search>(answer)) return all;
        std::optional<qint64> after = -1;
        while (after) {
            SearchPage page = readPage(store(), std::get<Search>(answer), *after, rows);
            all += page.rows;
            after = page.last;
        }
        return all;
    }

    // The keys that hold all these texts, found by reading every row.
    QStringList plain(const QString& select, const QString& key,
                      const QList<std::pair<QString, QString>>& conditions) {
        QStringList keys;
        Recordset rows = store().execute(select);
        for (; !rows.eof(); rows.moveNext())
            if (std::ranges::all_of(conditions, [&](const auto& condition) {
                    return rows.text(condition.first).contains(condition.second, Qt::CaseInsensitive);
                }))
                keys += rows.text(key);
        keys.sort();
        return keys;
    }

    static QStringList column(const QList<QStringList>& rows, int place) {
        QStringList texts;
        for (const QStringList& row : rows) texts += row.at(place);
        texts.sort();
        return texts;
    }

  private:
    TestStore store_;
};

TEST_F(SearchQueryTest, EveryCombinationOfItemFiltersFindsWhatAPlainReadingFinds) {
    const QStringList columns{"ItemCode", "Description", "ContactName", "Unit", "Locator"};
    const QStringList typed{"alpha-", " BET", "A0", "ñandu", "l"};
    int some = 0;
    for (int mask = 1; mask < 32; ++mask) {
        SearchRequest request{kinds[0], {}, {"", "", "", "", ""}, {}};
        QList<std::pair<QString, QString>> conditions;
        for (int bit = 0; bit < 5; ++bit)
            if (mask >> bit & 1) {
                request.filters[bit] = typed[bit];
                conditions += {columns[bit], trim(typed[bit])};
            }
        const QStringList codes = column(found(request), 0);
        EXPECT_EQ(codes,
                  plain("SELECT tblItemMaster.*, ContactName FROM tblItemMaster LEFT JOIN tblContactMaster "
                        "ON ContactID = SupplierCode",
                        "ItemCode", conditions))
            << mask;
        some += !codes.isEmpty();
    }
    EXPECT_GT(some, 8);
    EXPECT_EQ(found({kinds[0], {}, {}, {}, true}).size(), 500);
    EXPECT_TRUE(found({kinds[0], {}, {"", " "}, {}}).isEmpty());
}

TEST_F(SearchQueryTest, EveryCombinationOfDocumentFiltersFindsWhatAPlainReadingFinds) {
    for (const SearchJournal& journal : searchJournals())
        for (int mask = 1; mask < 8; ++mask) {
            const QStringList typed{"1", "3/2/26", "GAM"};
            SearchRequest request{kinds[2], journal.name, {"", "", ""}, {}};
            QList<std::pair<QString, QString>> conditions;
            const QStringList columns{journal.reference, journal.date, "ContactName"};
            for (int bit = 0; bit < 3; ++bit)
                if (mask >> bit & 1) {
                    request.filters[bit] = typed[bit];
                    conditions += {columns[bit], bit == 1 ? "2026-03-02" : typed[bit]};
                }
            const QStringList references = column(found(request), 1);
            EXPECT_EQ(references,
                      plain(QString("SELECT * FROM %1 INNER JOIN tblContactMaster ON %2 = ContactID")
                                .arg(journal.table, journal.contact),
                            journal.reference, conditions))
                << journal.name << mask;
            EXPECT_FALSE(references.isEmpty()) << journal.name << mask;
        }
    EXPECT_EQ(
        found({kinds[2], "Purchase Journal", {"0-0"}, {}}).first(),
        (QStringList{"Purchase", "0-0", "03/01/2026", "30 Days", "03/31/2026", "0.00", "0.00", "Alpha0"}));
    EXPECT_EQ(found({kinds[2], "Receipt Journal", {"17"}, {}}).first(),
              (QStringList{"Receipt", "17", "03/02/2026", "-NA-", "-NA-", "0.00", "-NA-", "beta1"}));
}

TEST_F(SearchQueryTest, TheBalancesOfAllContactsAreThoseOfEach) {
    store().run("UPDATE tblSalesMaster SET TotalAmount = 1000000 + RowNo");
    store().run("UPDATE tblReceiptMaster SET PaymentAmount = PayNo * 3, TotalDiscAmount = PayNo");
    store().run("UPDATE tblPurchaseMaster SET PurchaseAmount = RowNo * 70000");
    store().run(
        "INSERT INTO tblDisbursementDetails (VoucherID, PayAmount, DirectPayment) "
        "SELECT VoucherNo, RowNo * 5, RowNo % 3 - 1 FROM tblDisbursementMaster");
    const auto expectAll = [this] {
        const QList<QStringList> rows = found({kinds[1], {}, {"a"}, {}}, 2);
        EXPECT_EQ(rows.size(), 6);
        for (const QStringList& row : rows) {
            const QString id =
                valueOf(store(), {"SELECT ContactID FROM tblContactMaster WHERE ContactName = ?", {row[0]}});
            EXPECT_EQ(row[5], formatNumber(CustomerBalance(store(), id), mask::amount));
            EXPECT_EQ(row[6], formatNumber(SupplierBalance(store(), id), mask::amount));
        }
    };
    expectAll();
    // A sum beyond the range fails for one contact, not for the others.
    store().run("UPDATE tblSalesMaster SET TotalAmount = 9000000000000000000 WHERE ContactNo = '3'");
    expectAll();
}

TEST_F(SearchQueryTest, WhatCannotBeAskedIsRefused) {
    const std::pair<SearchRequest, const char*> refused[] = {
        {{"Inquire Moon", {}, {}, {}}, "Please Select Proper Search Type!"},
        {{kinds[2], "Cash Journal", {}, {}}, "Please Select Transaction Journal First!"},
        {{kinds[2], "Sales Journal", {"", "13/13/2026"}, {}}, "Invalid Date Value!"},
        {{kinds[0], {}, {"", "rice"}, "13/13/2026"}, "Invalid Date Value!"},
    };
    for (const auto& [request, text] : refused) {
        const SearchAnswer answer = prepareSearch(request);
        ASSERT_TRUE(std::holds_alternative<Fault>(answer)) << text;
        EXPECT_EQ(std::get<Fault>(answer).box.text, text);
    }
}

}  // namespace

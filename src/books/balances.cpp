#include "books/balances.h"

#include "books/balance_figures.h"
#include "books/cached_balance.h"
#include "books/passed_over.h"
#include "foundation/shared_routines.h"

#include <array>

static Term termOf(const Recordset& row, const char* alias) {
    return row.isNull(alias) ? Term() : Term(row.currency(alias));
}

// The one value of a summing query.
static Term sumOf(Connection& store, const Sql& query, const char* alias) {
    Term sum;
    passOverRead([&] { sum = termOf(store.execute(query), alias); });
    return sum;
}

// The terms of a figure in one statement, for every line of a save asks for them. Nothing where it fails:
// then each sum counts by itself.
template <size_t count>
static std::optional<std::array<Term, count>> termsOf(Connection& store, const Sql& query,
                                                      const char* const (&aliases)[count]) {
    std::array<Term, count> terms;
    const bool together = passOverRead([&] {
        const Recordset row = store.execute(query);
        for (size_t i = 0; i < count; ++i) terms[i] = termOf(row, aliases[i]);
    });
    return together ? std::optional(terms) : std::nullopt;
}

namespace {
struct Payment {
    Term paid;
    Term granted;
};
}  // namespace

// Both sums come from one query: where one fails, neither counts.
static Payment paymentOf(Connection& store, const Sql& query) {
    Payment payment;
    passOverRead([&] {
        const Recordset row = store.execute(query);
        payment = {termOf(row, "Bayad"), termOf(row, "Palugit")};
    });
    return payment;
}

static Currency receivable(Connection& store, const Sql& sales, const Sql& receipts) {
    const Term sold = sumOf(store, sales, "Halin");
    const auto [paid, granted] = paymentOf(store, receipts);
    return receivableFigure(sold, paid, granted);
}

static const QString termsOfSale =
    "(SELECT SUM(TotalAmount) AS Halin FROM tblSalesMaster WHERE RefNo = ?) AS Halin,"
    " SUM(Amount) AS Bayad, SUM(DiscountAmount) AS Palugit FROM tblReceiptDetails WHERE Reference = ?";

Currency SalesBalance(Connection& store, const QString& refNo) {
    static const QString together = "SELECT " + termsOfSale;
    if (const auto terms = termsOf(store, {together, {refNo, refNo}}, {"Halin", "Bayad", "Palugit"}))
        return receivableFigure((*terms)[0], (*terms)[1], (*terms)[2]);
    return receivable(store,
                      {"SELECT SUM(TotalAmount) AS Halin FROM tblSalesMaster WHERE RefNo = ?", {refNo}},
                      {"SELECT SUM(Amount) AS Bayad, SUM(DiscountAmount) AS Palugit FROM tblReceiptDetails "
                       "WHERE Reference = ?",
                       {refNo}});
}

std::optional<PostedOnSale> postedOnSale(Connection& store, const QString& refNo) {
    static const QString together =
        "SELECT (SELECT MAX(RefNo) FROM tblSalesMaster WHERE RefNo = ?) AS Found, " + termsOfSale;
    std::optional<PostedOnSale> posted;
    passOverRead([&] {
        const Recordset row = store.execute({together, {refNo, refNo, refNo}});
        if (row.isNull("Found")) return;
        const Term granted = termOf(row, "Palugit");
        posted = {receivableFigure(termOf(row, "Halin"), termOf(row, "Bayad"), granted),
                  granted.value_or(Currency())};
    });
    return posted;
}

Currency CustomerBalance(Connection& store, const QString& contactId) {
    return receivable(
        store, {"SELECT SUM(TotalAmount) AS Halin FROM tblSalesMaster WHERE ContactNo = ?", {contactId}},
        {"SELECT SUM(PaymentAmount) AS Bayad, SUM(TotalDiscAmount) AS Palugit FROM "
         "tblReceiptMaster WHERE CustomerNo = ?",
         {contactId}});
}

static constexpr const char* purchasedOnOrder =
    "SELECT SUM(PurchaseAmount) AS Gipalit FROM tblPurchaseMaster WHERE PurchaseNo = ?";
static constexpr const char* paidOnOrder =
    "SELECT SUM(PayAmount) AS Bayad FROM tblDisbursementDetails WHERE PuchaseID = ? AND DirectPayment = 0";

Currency PurchaseBalance(Connection& store, const QString& purchaseNo) {
    static const QString together =
        QString("SELECT (%1) AS Gipalit, (%2) AS Bayad").arg(purchasedOnOrder, paidOnOrder);
    if (const auto terms = termsOf(store, {together, {purchaseNo, purchaseNo}}, {"Gipalit", "Bayad"}))
        return differenceFigure((*terms)[0], (*terms)[1]);
    const Term purchased = sumOf(store, {purchasedOnOrder, {purchaseNo}}, "Gipalit");
    return differenceFigure(purchased, sumOf(store, {paidOnOrder, {purchaseNo}}, "Bayad"));
}

Currency SupplierBalance(Connection& store, const QString& contactId) {
    const Term purchased = sumOf(
        store,
        {"SELECT SUM(PurchaseAmount) AS Gipamalit FROM tblPurchaseMaster WHERE ContactNo = ?", {contactId}},
        "Gipamalit");
    const Term paid = sumOf(store,
                            {"SELECT SUM(tblDisbursementDetails.PayAmount) AS Gipangbayran"
                             " FROM tblDisbursementMaster INNER JOIN"
                             " tblDisbursementDetails ON tblDisbursementMaster.VoucherNo ="
                             " tblDisbursementDetails.VoucherID"
                             " WHERE tblDisbursementMaster.ContactNo = ?"
                             " AND tblDisbursementDetails.DirectPayment = 0",
                             {contactId}},
                            "Gipangbayran");
    return differenceFigure(purchased, paid);
}

static constexpr const char* deliveredOfItem =
    "SELECT SUM(Delivered) As TotalDelivery FROM tblPurchaseDetails WHERE ItemID = ?";
static constexpr const char* servedOfItem =
    "SELECT SUM(Served) As TotalSales FROM tblSalesDetails WHERE ItemID = ?";

Currency ItemBalance(Connection& store, const QString& itemCode) {
    static const QString together =
        QString("SELECT (%1) AS TotalDelivery, (%2) AS TotalSales").arg(deliveredOfItem, servedOfItem);
    if (const auto terms = termsOf(store, {together, {itemCode, itemCode}}, {"TotalDelivery", "TotalSales"}))
        return differenceFigure((*terms)[0], (*terms)[1]);
    const Term delivered = sumOf(store, {deliveredOfItem, {itemCode}}, "TotalDelivery");
    return differenceFigure(delivered, sumOf(store, {servedOfItem, {itemCode}}, "TotalSales"));
}

static QDate firstDocumentDate(Connection& store) {
    QDate first;
    passOverRead([&] { first = std::min(GetFirstPurchaseDate(store), GetFirstSalesDate(store)); });
    return first;
}

Currency ItemBalanceBetween(Connection& store, const QString& itemCode, const QDate& date) {
    const QVariantList period{itemCode, firstDocumentDate(store), date};
    const Term delivered = sumOf(store,
                                 {"SELECT SUM(tblPurchaseDetails.Delivered) AS TotalDelivery"
                                  " FROM tblPurchaseDetails INNER JOIN tblPurchaseMaster ON"
                                  " tblPurchaseDetails.Reference = tblPurchaseMaster.PurchaseNo"
                                  " WHERE ItemID = ? AND tblPurchaseMaster.PurchaseDate BETWEEN ? AND ?",
                                  period},
                                 "TotalDelivery");
    const Term served = sumOf(store,
                              {"SELECT SUM(tblSalesDetails.Served) AS TotalSales"
                               " FROM tblSalesDetails INNER JOIN tblSalesMaster ON"
                               " tblSalesDetails.Reference = tblSalesMaster.RefNo"
                               " WHERE ItemID = ? AND tblSalesMaster.RefDate BETWEEN ? AND ?",
                               period},
                              "TotalSales");
    return differenceFigure(delivered, served);
}

Currency ServedOnOrder(Connection& store, const QString& itemCode, const QString& reference) {
    return sumOf(store,
                 {"SELECT SUM(Served) As TotalSales FROM tblSalesDetails"
                  " WHERE ItemID = ? AND Reference = ?",
                  {itemCode, reference}},
                 "TotalSales")
        .value_or(Currency());
}

void StoreSalesBalance(Connection& store, const QString& refNo, Boxes& boxes) {
    storeBalance(store, receivableBalance, refNo, boxes);
}

void StorePurchaseBalance(Connection& store, const QString& purchaseNo, Boxes& boxes) {
    storeBalance(store, payableBalance, purchaseNo, boxes);
}

void StoreItemBalance(Connection& store, const QString& itemCode, Boxes& boxes) {
    storeBalance(store, inventoryBalance, itemCode, boxes);
}

void UpdateSalesBalance(Connection& store, const QString& refNo, Boxes&) {
    updateBalance(store, receivableBalance, refNo);
}

void UpdatePurchaseBalance(Connection& store, const QString& purchaseNo, Boxes&) {
    updateBalance(store, payableBalance, purchaseNo);
}

void UpdateItemBalance(Connection& store, const QString& itemCode, Boxes&) {
    updateBalance(store, inventoryBalance, itemCode);
}

void RecomputeReceivableBalances(Connection& store, Progress& progress) {
    recomputeBalances(store, receivableBalance, progress);
}

void RecomputePayableBalances(Connection& store, Progress& progress) {
    recomputeBalances(store, payableBalance, progress);
}

void RecomputeInventoryBalances(Connection& store, Progress& progress) {
    recomputeBalances(store, inventoryBalance, progress);
}

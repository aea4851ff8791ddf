#include "books/balances.h"

#include "books/balance_figures.h"
#include "books/cached_balance.h"
#include "books/passed_over.h"
#include "foundation/shared_routines.h"

static Term termOf(const Recordset& row, const char* alias) {
    return row.isNull(alias) ? Term() : Term(row.currency(alias));
}

// The values of summing queries, as one statement: Sum0, Sum1, ...
static Sql joined(const std::vector<Sql>& sums) {
    Sql all("SELECT ");
    for (size_t at = 0; at < sums.size(); ++at)
        all += Sql(at > 0 ? ", (" : "(") + sums[at] + Sql(QString(") AS Sum%1").arg(at));
    return all;
}

static std::vector<Term> together(Connection& store, const std::vector<Sql>& sums) {
    const Recordset row = store.execute(joined(sums));
    std::vector<Term> terms;
    for (size_t at = 0; at < sums.size(); ++at)
        terms.push_back(termOf(row, qPrintable(QString("Sum%1").arg(at))));
    return terms;
}

// Nothing where they fail.
static std::vector<Term> sumsOrNothing(Connection& store, const std::vector<Sql>& sums) {
    std::vector<Term> terms(sums.size());
    passOverRead([&] { terms = together(store, sums); });
    return terms;
}

// In one statement, for every line of a save asks for them; where that fails, each by itself.
static std::vector<Term> sumsOf(Connection& store, const std::vector<Sql>& sums) {
    std::vector<Term> terms;
    if (passOverRead([&] { terms = together(store, sums); })) return terms;
    for (const Sql& sum : sums) terms.push_back(sumsOrNothing(store, {sum})[0]);
    return terms;
}

// What was sold, paid and granted. Where one of the two sums of what was received fails, neither counts.
static Currency receivable(Connection& store, const std::vector<Sql>& sums) {
    std::vector<Term> terms;
    if (!passOverRead([&] { terms = together(store, sums); })) {
        const std::vector<Term> received = sumsOrNothing(store, {sums[1], sums[2]});
        terms = {sumsOrNothing(store, {sums[0]})[0], received[0], received[1]};
    }
    return receivableFigure(terms[0], terms[1], terms[2]);
}

static Currency difference(Connection& store, const std::vector<Sql>& sums) {
    const std::vector<Term> terms = sumsOf(store, sums);
    return differenceFigure(terms[0], terms[1]);
}

static std::vector<Sql> sumsOfSale(const QString& refNo) {
    return {{"SELECT SUM(TotalAmount) FROM tblSalesMaster WHERE RefNo = ?", {refNo}},
            {"SELECT SUM(Amount) FROM tblReceiptDetails WHERE Reference = ?", {refNo}},
            {"SELECT SUM(DiscountAmount) FROM tblReceiptDetails WHERE Reference = ?", {refNo}}};
}

static std::vector<Sql> sumsOfPurchase(const QString& purchaseNo) {
    return {{"SELECT SUM(PurchaseAmount) FROM tblPurchaseMaster WHERE PurchaseNo = ?", {purchaseNo}},
            {"SELECT SUM(PayAmount) FROM tblDisbursementDetails WHERE PuchaseID = ? AND DirectPayment = 0",
             {purchaseNo}}};
}

static std::vector<Sql> sumsOfItem(const QString& itemCode) {
    return {{"SELECT SUM(Delivered) FROM tblPurchaseDetails WHERE ItemID = ?", {itemCode}},
            {"SELECT SUM(Served) FROM tblSalesDetails WHERE ItemID = ?", {itemCode}}};
}

Currency SalesBalance(Connection& store, const QString& refNo) {
    return receivable(store, sumsOfSale(refNo));
}

Currency PurchaseBalance(Connection& store, const QString& purchaseNo) {
    return difference(store, sumsOfPurchase(purchaseNo));
}

Currency ItemBalance(Connection& store, const QString& itemCode) {
    return difference(store, sumsOfItem(itemCode));
}

Sql SalesBalanceSums(const QString& refNo) { return joined(sumsOfSale(refNo)); }

Sql PostedOnSaleQuery(const QString& refNo) {
    std::vector<Sql> sums = sumsOfSale(refNo);
    sums.push_back({"SELECT MAX(RefNo) FROM tblSalesMaster WHERE RefNo = ?", {refNo}});
    return joined(sums);
}

std::optional<PostedOnSale> postedOnSale(Connection& store, const QString& refNo) {
    std::optional<PostedOnSale> posted;
    passOverRead([&] {
        const Recordset row = store.execute(PostedOnSaleQuery(refNo));
        if (row.isNull("Sum3")) return;
        const Term granted = termOf(row, "Sum2");
        posted = {receivableFigure(termOf(row, "Sum0"), termOf(row, "Sum1"), granted),
                  granted.value_or(Currency())};
    });
    return posted;
}

Sql PurchaseBalanceSums(const QString& purchaseNo) { return joined(sumsOfPurchase(purchaseNo)); }

Sql ItemBalanceSums(const QString& itemCode) { return joined(sumsOfItem(itemCode)); }

Currency CustomerBalance(Connection& store, const QString& contactId) {
    return receivable(
        store, {{"SELECT SUM(TotalAmount) FROM tblSalesMaster WHERE ContactNo = ?", {contactId}},
                {"SELECT SUM(PaymentAmount) FROM tblReceiptMaster WHERE CustomerNo = ?", {contactId}},
                {"SELECT SUM(TotalDiscAmount) FROM tblReceiptMaster WHERE CustomerNo = ?", {contactId}}});
}

Currency SupplierBalance(Connection& store, const QString& contactId) {
    return difference(
        store,
        {{"SELECT SUM(PurchaseAmount) FROM tblPurchaseMaster WHERE ContactNo = ?", {contactId}},
         {"SELECT SUM(tblDisbursementDetails.PayAmount) FROM tblDisbursementMaster INNER JOIN"
          " tblDisbursementDetails ON tblDisbursementMaster.VoucherNo = tblDisbursementDetails.VoucherID"
          " WHERE tblDisbursementMaster.ContactNo = ? AND tblDisbursementDetails.DirectPayment = 0",
          {contactId}}});
}

// On hand as of the date, and what an order serves already.
static std::vector<Sql> sumsOfStock(const QString& itemCode, const QDate& date, const QString& reference) {
    return {{"SELECT SUM(tblPurchaseDetails.Delivered) FROM tblPurchaseDetails INNER JOIN tblPurchaseMaster"
             " ON tblPurchaseDetails.Reference = tblPurchaseMaster.PurchaseNo"
             " WHERE ItemID = ? AND tblPurchaseMaster.PurchaseDate <= ?",
             {itemCode, date}},
            {"SELECT SUM(tblSalesDetails.Served) FROM tblSalesDetails INNER JOIN tblSalesMaster"
             " ON tblSalesDetails.Reference = tblSalesMaster.RefNo"
             " WHERE ItemID = ? AND tblSalesMaster.RefDate <= ?",
             {itemCode, date}},
            {"SELECT SUM(Served) FROM tblSalesDetails WHERE ItemID = ? AND Reference = ?",
             {itemCode, reference}}};
}

Currency ItemBalanceBetween(Connection& store, const QString& itemCode, const QDate& date) {
    const std::vector<Sql> sums = sumsOfStock(itemCode, date, {});
    return difference(store, {sums[0], sums[1]});
}

Currency ServedOnOrder(Connection& store, const QString& itemCode, const QString& reference) {
    return sumsOf(store, {sumsOfStock(itemCode, {}, reference)[2]})[0].value_or(Currency());
}

Currency StockForOrder(Connection& store, const QString& itemCode, const QDate& date,
                       const QString& reference) {
    const std::vector<Term> terms = sumsOf(store, sumsOfStock(itemCode, date, reference));
    return differenceFigure(terms[0], terms[1]) + terms[2].value_or(Currency());
}

Sql StockForOrderSums(const QString& itemCode, const QDate& date, const QString& reference) {
    return joined(sumsOfStock(itemCode, date, reference));
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
    UpdateSalesBalances(store, {refNo});
}

void UpdatePurchaseBalance(Connection& store, const QString& purchaseNo, Boxes&) {
    UpdatePurchaseBalances(store, {purchaseNo});
}

void UpdateItemBalance(Connection& store, const QString& itemCode, Boxes&) {
    UpdateItemBalances(store, {itemCode});
}

void UpdateSalesBalances(Connection& store, const QStringList& refNos) {
    updateBalances(store, receivableBalance, refNos);
}

void UpdatePurchaseBalances(Connection& store, const QStringList& purchaseNos) {
    updateBalances(store, payableBalance, purchaseNos);
}

void UpdateItemBalances(Connection& store, const QStringList& itemCodes) {
    updateBalances(store, inventoryBalance, itemCodes);
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

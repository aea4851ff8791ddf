#include "books/end_of_day.h"
#include "foundation/store_place.h"
#include "masters/contact_document.h"
#include "masters/item_document.h"
#include "masters/unit_master.h"
#include "purchases/voucher_books.h"
#include "sales/receipt_document.h"
#include "shell/company_document.h"

#include <functional>

// Two programs on one store: what one of them does while the other has something open.
namespace {
class TwoPrograms : public VoucherBooks {
  protected:
    // A screen that has loaded something: its save.
    using Save = std::function<Outcome()>;

    void SetUp() override {
        VoucherBooks::SetUp();
        other.open(storePlace(), passwordFor(storePlace()));
        AddUnitCode(store, "PC");
        sale_ = saved(salesOrders, {line("I1", "10", "10", "15"), line("I1", "10", "10", "15")});
        voucher_ = savedVoucher({paid(order1_, "1000")}, {check("77", "1000")});
        insertRow(store, "tblReceiptMaster", "PayNo, CustomerNo, PaymentDate", {7, "C1", QDate(2026, 3, 3)});
        insertRow(store, "tblReceiptDetails", "ZevRef, PayCode, Reference, Amount, CheckNo, CheckStatus",
                  {1, 7, sale_, bound(money("50")), "9", "Pending"});
    }

    Save editOrder(const OrderBook& book, const QString& key) {
        return [this, &book, document = reopened(book, key)] { return saveOrder(store, book, document); };
    }
    Save editVoucher() {
        return
            [this, document = loadVoucher(store, voucher_).document] { return saveVoucher(store, document); };
    }
    Save editReceipt() {
        return [this, document = loadReceipt(store, "7").document] { return saveReceipt(store, document); };
    }
    Save editItem(const QSet<QString>& changed) {
        const ItemEntry entry{.ItemCode = "I1",
                              .Description = "RICE",
                              .Unit = "PC",
                              .SupplierName = "Nena",
                              .CostPrice = "10",
                              .SellingPrice = "16",
                              .WholesalePrice = "13",
                              .DateAquired = "3/1/2026",
                              .OrderLevel = "0",
                              .InventoryBalance = "0",
                              .edit = {changed, StoredState(store, {itemMaster}, "I1")}};
        return [this, entry] { return SaveItem(store, entry, false, "I1"); };
    }
    Save editContact() {
        const ContactEntry entry{.ContactName = "Nena",
                                 .Terms = "30",
                                 .CreditLimit = "1",
                                 .Discount = "5",
                                 .IsCustomer = true,
                                 .edit = {{"CreditLimit"}, StoredState(store, {contactMaster}, "C1")}};
        return [this, entry, id = QString("C1")]() mutable { return SaveContact(store, entry, false, id); };
    }

    Save editCompany() {
        return [this, profile = loadCompany(store)] { return saveCompany(store, profile); };
    }

    Connection other;
    QString sale_, voucher_;
};

TEST_F(TwoPrograms, AChangeOfSomeoneElseIsNotSavedOver) {
    const auto sale = [this] { return editOrder(salesOrders, sale_); };
    const auto purchase = [this] { return editOrder(purchaseOrders, order1_); };
    const auto voucher = [this] { return editVoucher(); };
    const auto receipt = [this] { return editReceipt(); };
    const auto description = [this] { return editItem({"Description"}); };
    const auto price = [this] { return editItem({"Description", "SellingPrice"}); };
    const auto contact = [this] { return editContact(); };
    const auto company = [this] { return editCompany(); };
    const struct {
        std::function<Save()> open;
        const char* change;
        bool isRefused;
    } cases[]{
        {sale, "UPDATE tblSalesMaster SET Remarks = 'theirs'", true},
        {sale, "UPDATE tblSalesMaster SET DateUpdate = '2026-03-04T08:00:01'", true},
        {sale, "UPDATE tblSalesDetails SET Served = 10000", true},
        {sale, "DELETE FROM tblSalesDetails WHERE RowNo = (SELECT MAX(RowNo) FROM tblSalesDetails)", true},
        {sale, "UPDATE tblSalesMaster SET Printed = True, RecordLock = True, Balance = 1", false},
        {sale, "UPDATE tblSalesDetails SET Unit = 'BOX' WHERE Reference = 'another'", false},
        {purchase, "UPDATE tblPurchaseDetails SET UnitPrice = 1 WHERE ItemID = 'I1'", true},
        {purchase, "UPDATE tblPurchaseMaster SET Printed = True, Balance = 1", false},
        {voucher, "UPDATE tblDisbursementDetails SET Particulars = 'theirs'", true},
        {voucher, "UPDATE tblChecks SET CheckStatus = 'Good', Negotiated = True", true},
        {voucher, "UPDATE tblChecks SET Printed = True", false},
        {receipt, "UPDATE tblReceiptDetails SET CheckStatus = 'Good'", true},
        {receipt, "UPDATE tblReceiptMaster SET RecordLock = True", false},
        {description, "UPDATE tblItemMaster SET Remarks = 'theirs'", true},
        {description, "UPDATE tblItemMaster SET SellingPrice = 170000, Balance = 1", false},
        {price, "UPDATE tblItemMaster SET SellingPrice = 180000", true},
        {company, "UPDATE tblSystemProfile SET Approved = 'theirs'", true},
        {contact, "UPDATE tblContactMaster SET TelNo = '123'", true},
        {contact, "UPDATE tblContactMaster SET Remarks = 'theirs' WHERE ContactID = 'C2'", false}};
    for (const auto& [open, change, isRefused] : cases) {
        const Save save = open();
        other.run(change);
        bool writes = false;
        Connection::setStatementHook([&](const QString&) { writes = true; });
        const std::string answer = said(save());
        Connection::setStatementHook({});
        EXPECT_EQ(answer.starts_with("Record Changed!: "), isRefused) << change << ": " << answer;
        EXPECT_NE(writes, isRefused) << change;
        EXPECT_EQ(said(open()()), "done") << "loaded anew";
    }
    EXPECT_EQ(itemFigure("I1", "SellingPrice"), money("16")) << "what its own clerk typed in the end";
}

TEST_F(TwoPrograms, AnEditOfOneFieldKeepsThePriceOfAnothersSale) {
    const Save save = editItem({"Description"});
    OrderDocument theirs = order(salesOrders, {line("I1", "1", "1", "17")});
    ASSERT_EQ(said(saveOrder(other, salesOrders, theirs)), "done");
    EXPECT_EQ(said(save()), "done");
    EXPECT_EQ(itemFigure("I1", "SellingPrice"), money("17"));
}

TEST_F(TwoPrograms, TheSameStockIsSoldOnce) {
    OrderLine all = line("I1", "80", "80", "15");
    all.tested = money("80");
    const OrderDocument mine = order(salesOrders, {all});
    OrderDocument theirs = mine;
    theirs.serial = "7777";
    theirs.code = "03-7777-2026";
    ASSERT_EQ(said(saveOrder(other, salesOrders, theirs)), "done");
    EXPECT_EQ(said(saveOrder(store, salesOrders, mine)),
              "Error!: Purchase This Item First! Inventory Balance For This Sales Period is Less Than your "
              "Served Item!");
    EXPECT_EQ(itemFigure("I1", "Balance"), Currency());
}

// The lists of the end of day stand on the screen while another clerk sells an item of theirs.
TEST_F(TwoPrograms, ASaleThatComesDuringTheEndOfDayIsCostedByTheNextOne) {
    const auto documents = LoadPostingQueue(store, Progress::none());
    const auto items = LoadPostingItems(store, Progress::none());
    const OrderDocument theirs = order(salesOrders, {line("I1", "5", "5", "15")});
    ASSERT_EQ(said(saveOrder(other, salesOrders, theirs)), "done");
    EndOfDayView view;
    Boxes boxes;
    EXPECT_TRUE(PostStockValuation(store, documents, view, boxes));
    EXPECT_TRUE(InitializeStockValuation(store, items, view, boxes));
    boxes += postAndCostAll(store);
    EXPECT_EQ(boxes, Boxes());
    EXPECT_EQ(valueOf(store, {"SELECT SalesCost FROM tblStockValuation WHERE Reference = ? AND BookID = 'S'",
                              {theirs.code}}),
              "500000");
}

TEST_F(TwoPrograms, TheRefusalNamesWhoSavedLastAndWhen) {
    const Save save = editOrder(salesOrders, sale_);
    other.run("UPDATE tblSalesMaster SET UpdatedBy = 'CORA', DateUpdate = '2026-03-04T08:05:01'");
    EXPECT_THAT(said(save()), ::testing::HasSubstr("It was last saved by CORA on 03/04/2026 08:05:01."));
}

TEST_F(TwoPrograms, AUnitThatWasRenamedMeanwhileIsNotRenamedAgain) {
    ASSERT_EQ(said(SaveUnit(other, "PIECE", false, "PC")), "done");
    EXPECT_EQ(focusOf(SaveUnit(store, "PCS", false, "PC")), "txtUnit");
}
}  // namespace

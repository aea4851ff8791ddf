#include "masters/master_records.h"
#include "platform/clock.h"
#include "platform/store/place.h"
#include "purchases/voucher_document.h"
#include "sales/receipt_document.h"
#include "sales/sales_document.h"
#include "support/statement_count.h"
#include "support/test_store.h"

namespace {
// Five items and five open orders of each side, all of one contact.
class RoundTrips : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addContact(store, {.id = "C1", .name = "Nena"});
        for (const char* number : {"1", "2", "3", "4", "5"}) {
            addItem(store, {number, number});
            addPurchase(store, {number, today, "C1", {{number, thousand, one}}});
            addSale(store, {number, today, "C1", {{number, one, one}}});
        }
    }

    Outcome sell() {
        OrderDocument document = newOrder(store, salesOrders);
        document.contactName = "Nena";
        for (const char* item : {"1", "2", "3", "4", "5"}) {
            document.lines += makeOrderLine(item, "Goods", "PC", one, one, one, Currency());
            document.lines.last().tested = thousand;
        }
        return saveOrder(store, salesOrders, document);
    }

    Outcome collect() {
        ReceiptDocument document = newReceipt(store);
        document.contactName = "Nena";
        for (const char* order : {"1", "2", "3", "4", "5"})
            document.lines += lineOf(store, {.orderNo = order, .payment = "1.00", .cash = true});
        return saveReceipt(store, document);
    }

    Outcome pay() {
        VoucherDocument document = newVoucher(store);
        document.contactName = "Nena";
        for (const char* order : {"1", "2", "3", "4", "5"})
            document.payments += makePayment(PaymentKind::Payable, order, today, one, "");
        document.checks += makeCheck("1", today, Currency::fromInteger(5), "Nena");
        return saveVoucher(store, document);
    }

    Connection& store = StoreConnection();
    const QDate today = Clock::today();
    const Currency one = Currency::fromInteger(1), thousand = Currency::fromInteger(1000);
};
}  // namespace

// Over a slow network each takes as long as a hundred statements: a new one here wants a reason.
TEST_F(RoundTrips, ASaveOfFiveLinesTakesFew) {
    const struct {
        const char* name;
        std::function<Outcome()> save;
        int most;
    } saves[]{{"sale", [this] { return sell(); }, 20},
              {"receipt", [this] { return collect(); }, 20},
              {"voucher", [this] { return pay(); }, 20}};
    constexpr int mostInAFile = 100;
    for (const auto& [name, save, most] : saves) {
        Outcome outcome;
        const int taken = statementsOf(store, [&] { outcome = save(); });
        EXPECT_TRUE(isDone(outcome)) << name;
        EXPECT_LE(taken, isOnServer(store) ? most : mostInAFile) << name;
    }
}

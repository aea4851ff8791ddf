#include "masters/contact_document.h"
#include "masters_fixture.h"

namespace {
class ContactDocument : public MastersTest {
  protected:
    Outcome save(const ContactEntry& entry) {
        id_.clear();
        return SaveContact(store(), entry, true, id_);
    }
    QString id_;
};

TEST_F(ContactDocument, ChecksRunInTheSystemsOrder) {
    ContactEntry entry{
        .ContactName = "mabuhay trading", .Terms = "", .CreditLimit = "1.2.3", .Discount = "ten"};
    struct Step {
        const char* text;
        const char* focus;
        std::function<void()> mend;
    };
    const Step steps[] = {
        {"Invalid Term Entered!", "txtTerm", [&] { entry.Terms = "30"; }},
        {"Invalid Credit Limit Amount!", "txtCreditLimit", [&] { entry.CreditLimit = "5,000.00"; }},
        {"Invalid Discount Percentage!", "txtDiscount", [&] { entry.Discount = "100"; }},
        {"Discount Should Not Be Greater Than 100 Percent!", "txtDiscount",
         [&] { entry.Discount = "99.99"; }},
        {"Please Select At Least One Contact Category!", "chkCustomer", [&] { entry.IsCustomer = true; }},
        {"Contact Name Already Exist!", "txtName", [&] { entry.ContactName = "Juan Niño"; }},
    };
    for (const Step& step : steps) {
        EXPECT_EQ(faultOf(save(entry)), (FaultText{step.text, step.focus}));
        step.mend();
    }
    EXPECT_TRUE(isDone(save(entry)));
}

TEST_F(ContactDocument, NamesAreTheSameInEitherCaseOfAnyLetter) {
    ContactEntry entry = goodContact();
    const std::pair<const char*, bool> names[] = {
        {"Niño 100%", true}, {" NIÑO 100%", false}, {"Nino 100%", true}, {"Niño 1000", true}};
    for (const auto& [name, isNew] : names) {
        entry.ContactName = QString::fromUtf8(name);
        EXPECT_EQ(isDone(save(entry)), isNew) << name;
    }
}

TEST_F(ContactDocument, StoresWhatWasTyped) {
    ContactEntry entry = goodContact();
    entry.ContactName = " O'Hara & Sons <b> ";
    entry.IsSupplier = true;
    ASSERT_TRUE(isDone(save(entry)));
    const Recordset row = one({"SELECT * FROM tblContactMaster WHERE ContactID = ?", {id_}});
    EXPECT_EQ(row.text("ContactName"), "O'Hara & Sons <b>") << "names stay as typed";
    EXPECT_EQ(row.currency("Terms").toPlainText(), "30");
    EXPECT_EQ(row.currency("Discount").toPlainText(), "99.99");
    EXPECT_TRUE(row.flag("IsCustomer") && row.flag("IsSupplier"));
    EXPECT_EQ(count("tblContactMaster WHERE IsCustomer = True"), 1);
    EXPECT_EQ(row.date("DateUpdate"), QDate(2026, 3, 2));
}

TEST_F(ContactDocument, IdsFollowTheHighestAndComeAgain) {
    store().run("DELETE FROM tblContactMaster");
    EXPECT_EQ(NextContactID(store()), "1000000001");
    ASSERT_TRUE(isDone(save(goodContact())));
    EXPECT_EQ(id_, "1000000001");
    EXPECT_EQ(NextContactID(store()), "1000000002");
    ASSERT_TRUE(isDone(DeleteContact(store(), id_)));
    EXPECT_EQ(NextContactID(store()), "1000000001");
    store().run("INSERT INTO tblContactMaster (ContactID, ContactName) VALUES ('OLD-7', 'x')");
    EXPECT_THROW(NextContactID(store()), StoreError);
    EXPECT_EQ(std::get<Fault>(save(goodContact())).box.title, "Error...");
}

TEST_F(ContactDocument, AnEditTestsNoName) {
    ASSERT_TRUE(isDone(save(goodContact())));
    ContactEntry entry = goodContact();
    entry.ContactName = "MABUHAY TRADING";
    entry.edit.changed = {"ContactName"};
    EXPECT_TRUE(isDone(SaveContact(store(), entry, false, id_)));
    EXPECT_EQ(count("tblContactMaster WHERE ContactName = 'mabuhay trading'"), 2);
    entry.ContactName = "";
    EXPECT_TRUE(isDone(SaveContact(store(), entry, false, id_))) << "a blank name can be stored";
    QString gone = "999";
    EXPECT_EQ(std::get<Fault>(SaveContact(store(), entry, false, gone)).box.title, "Error...");
}

TEST_F(ContactDocument, DeletionIsGuardedInOrder) {
    struct Guard {
        const char* insert;
        const char* table;
        const char* text;
    };
    const Guard guards[] = {
        {"tblChecks (ZevRef, ContactNo) VALUES (1, ?)", "tblChecks",
         "You Cannot Delete This Contact, You have Issued a Check to this Payee!"},
        {"tblSalesMaster (RefNo, ContactNo) VALUES ('S1', ?)", "tblSalesMaster",
         "You Cannot Delete This Contact, You have Sales Order for this Customer!"},
        {"tblReceiptMaster (PayNo, CustomerNo) VALUES (1, ?)", "tblReceiptMaster",
         "You Cannot Delete This Contact, You have Received Payment from this Customer!"},
        {"tblPurchaseMaster (PurchaseNo, ContactNo) VALUES ('P1', ?)", "tblPurchaseMaster",
         "You Cannot Delete This Contact, You have Purchase Order for this Supplier!"},
        {"tblDisbursementMaster (VoucherNo, ContactNo) VALUES ('V1', ?)", "tblDisbursementMaster",
         "You Cannot Delete This Contact, You have Issued Payment Voucher to this Payee!"},
        {"tblItemMaster (ItemCode, SupplierCode) VALUES ('I1', ?)", "tblItemMaster",
         "You Cannot Delete This Contact, it is a Default Supplier in one of the Products!"},
    };
    for (const Guard& guard : guards) store().run({QString("INSERT INTO ") + guard.insert, {supplierId()}});
    for (const Guard& guard : guards) {
        EXPECT_EQ(faultOf(DeleteContact(store(), supplierId())).text, guard.text);
        store().run(QString("DELETE FROM ") + guard.table);
    }
    EXPECT_TRUE(isDone(DeleteContact(store(), supplierId())));
    EXPECT_EQ(count("tblContactMaster"), 0);
}
}  // namespace

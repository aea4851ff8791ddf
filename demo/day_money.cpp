#include "demo/day_money.h"

#include "foundation/session.h"
#include "platform/clock.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/store/connection.h"
#include "platform/ui/list_view.h"
#include "support/program_driver.h"

namespace {
const DayPaper invoice{"Do you want to Print Invoice for this Payment Transaction?", "prtSalesInvoice",
                       "tblReceiptMaster", "PayNo"};
const DayPaper voucherPaper{"Do you want to Print Voucher for this Transaction?", "prtVoucher",
                            "tblDisbursementMaster", "VoucherNo"};
// A firm that has not set its check printer up prints personal checks in dots.
const DayPaper checkPaper{"Do you want to Print Check for this Transaction?", "prtCheckOnlySmallDotMatrix",
                          "tblDisbursementMaster", "VoucherNo"};

constexpr const char* openSales =
    "SELECT RefNo AS Number FROM tblSalesMaster INNER JOIN tblContactMaster ON ContactNo = ContactID"
    " WHERE ContactName = ? AND Balance >= ? ORDER BY RefDate, RefNo";
constexpr const char* openPurchases =
    "SELECT PurchaseNo AS Number FROM tblPurchaseMaster INNER JOIN tblContactMaster ON ContactNo = ContactID"
    " WHERE ContactName = ? AND Balance >= ? ORDER BY PurchaseDate, PurchaseNo";

// The numbers of a contact's open orders, the oldest first; less than a peso is left to the books.
QStringList openOrders(const char* statement, const QString& contact) {
    const QVariant onePeso = bound(Currency::fromInteger(1));
    QStringList numbers;
    for (Recordset row = StoreConnection().execute({statement, {contact, onePeso}}); !row.eof();
         row.moveNext())
        numbers += row.text("Number");
    return numbers;
}

QString orderOf(const QStringList& open, const DayPayment& payment) {
    DayHand::require(payment.order <= open.size(), QString("only %1 orders are open").arg(open.size()));
    return open[payment.order - 1];
}

void enter(QWidget* dialog, const char* field, const QString& text) {
    person::fill(dialog, field, text);
    person::press(Qt::Key_Return);
}

void saveLine(QWidget* dialog) {
    person::goTo(dialog, "cmdSave");
    person::press(Qt::Key_Return);
}

int rowsOf(QWidget* entry, const char* list) { return person::find<ListView>(entry, list)->rowCount(); }
}  // namespace

QWidget* DayMoney::popup(QWidget* entry, const char* button, const QString& dialog) {
    QWidget* opened = nullptr;
    hand_.act({}, [&] {
        entry->activateWindow();
        person::pushButton(entry, button);
        opened = person::screen(dialog);
    });
    return opened;
}

// Receipts

QString DayMoney::receipt(const DayStep& step) {
    hand_.say("payment from " + step.contact);
    const QStringList open = openOrders(openSales, step.contact);
    QWidget* entry = hand_.openEntry("mnuTransactionItem_3", "frmReceiptGrid", "frmReceiptEntry");
    hand_.chooseContact(entry, step.contact);
    QWidget* dialog = popup(entry, "cmdAdd", "frmAddReceipt");
    for (DayPayment payment : step.payments) {
        payment.reference = orderOf(open, payment);
        payOrder(dialog, payment, step.checkNo);
    }
    hand_.closeDialog("frmAddReceipt");
    hand_.require(rowsOf(entry, "lvwItems") == step.payments.size(), "a payment was not taken");
    const QString number = hand_.save(entry, {invoice}, step.isPrinted, "Payment Successfully Posted!");
    hand_.closeScreens();
    return number;
}

void DayMoney::payOrder(QWidget* dialog, const DayPayment& payment, const QString& checkNo) {
    hand_.act({}, [&] {
        enter(dialog, "txtSANo", payment.reference);
        enter(dialog, "txtDiscount", payment.discount);
        const QString required = person::read(dialog, "txtRequired");
        person::fill(dialog, "txtPayment", payment.amount.isEmpty() ? required : payment.amount);
        if (!checkNo.isEmpty()) {
            person::fill(dialog, "txtCheckNo", checkNo);
            person::fill(dialog, "txtCheckDate", formatDate(Clock::today()));
        }
        hand_.say(QString("    %1: %2").arg(payment.reference, person::read(dialog, "txtPayment")));
        hand_.picture("frmAddReceipt");
        saveLine(dialog);
    });
}

// Vouchers

QString DayMoney::voucher(const DayStep& step) {
    hand_.say("voucher to " + step.contact);
    QWidget* entry = hand_.openEntry("mnuTransactionItem_6", "frmDisbursementGrid", "frmDisbursementEntry");
    hand_.chooseContact(entry, step.contact);
    const bool paysOrders = step.payments.first().order > 0;
    paysOrders ? payPurchases(entry, step) : payExpenses(entry, step);
    hand_.require(rowsOf(entry, "lvwItems") == step.payments.size(), "a payment was not taken");
    if (step.inCash) person::pushButton(entry, "chkCash");
    for (const DayCheck& check : step.checks) issueCheck(entry, check);
    const QString number =
        hand_.save(entry, {voucherPaper, checkPaper}, step.isPrinted, "Record Successfully Saved!");
    hand_.closeScreens();
    return number;
}

void DayMoney::payPurchases(QWidget* entry, const DayStep& step) {
    const QStringList open = openOrders(openPurchases, step.contact);
    QWidget* dialog = popup(entry, "cmdAdd", "frmAddPayment");
    for (const DayPayment& payment : step.payments)
        hand_.act({}, [&] {
            enter(dialog, "cboCode", orderOf(open, payment));
            if (!payment.amount.isEmpty()) person::fill(dialog, "txtAmount", payment.amount);
            hand_.say(QString("    %1: %2")
                          .arg(person::read(dialog, "cboCode"), person::read(dialog, "txtAmount")));
            hand_.picture("frmAddPayment");
            saveLine(dialog);
        });
    hand_.closeDialog("frmAddPayment");
}

void DayMoney::payExpenses(QWidget* entry, const DayStep& step) {
    QWidget* dialog = popup(entry, "cmdInsert", "frmAddPayment");
    for (const DayPayment& payment : step.payments)
        hand_.act({}, [&] {
            person::fill(dialog, "cboCode", payment.reference);
            person::fill(dialog, "txtDate", formatDate(Clock::today()));
            person::fill(dialog, "txtAmount", payment.amount);
            person::fill(dialog, "txtParticulars", payment.particulars);
            hand_.say(QString("    %1: %2").arg(payment.reference, payment.amount));
            saveLine(dialog);
        });
    hand_.closeDialog("frmAddPayment");
}

static QString amountOf(QWidget* entry, const DayCheck& check) {
    Currency left = numberOrZero(person::read(entry, "txtAmount"));
    if (check.amount == "half") return formatNumber(divide(left, Currency::fromInteger(2)), mask::amount);
    if (check.amount != "rest") return check.amount;
    for (const QStringList& row : person::find<ListView>(entry, "lvwCheck")->rows())
        left -= numberOrZero(row[2]);
    return formatNumber(left, mask::amount);
}

void DayMoney::issueCheck(QWidget* entry, const DayCheck& check) {
    const QString amount = amountOf(entry, check);
    QWidget* dialog = popup(entry, "cmdAddCheck", "frmAddCheck");
    hand_.act({}, [&] {
        person::fill(dialog, "txtCheckNo", check.number);
        person::fill(dialog, "txtDate", formatDate(Clock::today().addDays(check.days)));
        person::fill(dialog, "txtCheckAmount", amount);
        hand_.picture("frmAddCheck");
        saveLine(dialog);
        person::waitFor([] { return !person::isOpen("frmAddCheck"); }, "the check to be taken");
    });
    hand_.say(QString("    check %1: %2").arg(check.number, amount));
}

// Checks

void DayMoney::checks(const DayStep& step) {
    const bool received = step.kind == DayStep::ChecksReceived;
    hand_.say(received ? "checks received" : "checks issued");
    QWidget* screen = nullptr;
    hand_.act({}, [&] {
        person::choose(received ? "mnuManageCheckItem_0" : "mnuManageCheckItem_1");
        screen = person::screen(received ? "frmNegReceivableChecks" : "frmNegPayableChecks");
    });
    hand_.picture(screen->objectName());
    if (!step.bounced.isEmpty())
        bounce(screen, received ? "frmNegReceivableStatus" : "frmNegPayableStatus", step.bounced);
    if (step.cleared > 0) clear(screen, step.cleared);
    hand_.closeScreens();
}

// The first one of the list.
void DayMoney::bounce(QWidget* screen, const QString& dialog, const QString& status) {
    auto* list = person::find<ListView>(screen, "lvwRecord");
    const QString number = list->text(0, 4);
    hand_.act({{"Saved!", "Record Successfully Updated!"}}, [&] {
        person::goTo(screen, "lvwRecord");
        person::press(Qt::Key_Return);
        QWidget* opened = person::screen(dialog);
        person::goTo(opened, "cboCheckStatus");
        for (int tries = 0; tries < 8 && person::read(opened, "cboCheckStatus") != status; ++tries)
            person::press(Qt::Key_Down);
        hand_.require(person::read(opened, "cboCheckStatus") == status, status + " is not offered");
        hand_.picture(dialog);
        person::goTo(opened, "cmdOK");
        person::press(Qt::Key_Return);
        person::waitFor([&] { return !person::isOpen(dialog); }, "the status to be kept");
    });
    hand_.say(QString("    check %1: %2").arg(number, status));
}

// The last ones of the list, each marked by its own key.
void DayMoney::clear(QWidget* screen, int count) {
    auto* list = person::find<ListView>(screen, "lvwRecord");
    const int before = list->rowCount();
    hand_.act({{"Proceed?", QString("This will Tag %1 Checks as Cleared!").arg(count), BoxAnswer::Yes},
               {{}, QString("%1 Checks Successfully Tagged!").arg(count)}},
              [&] {
                  screen->activateWindow();
                  person::goTo(screen, "lvwRecord");
                  person::press(Qt::Key_End, Qt::ControlModifier);
                  for (int check = 0; check < count; ++check) {
                      person::press(Qt::Key_Space);
                      person::press(Qt::Key_Up);
                  }
                  person::pushButton(screen, "imgNegotiate");
              });
    hand_.require(list->rowCount() == before - count, "the checks are still pending");
    hand_.say(QString("    %1 cleared").arg(count));
}

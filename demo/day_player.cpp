#include "demo/day_player.h"

#include "books/posting_queue.h"
#include "demo/day_money.h"
#include "foundation/session.h"
#include "platform/ui/list_view.h"
#include "support/program_driver.h"

#include <QCheckBox>

DayPlayer::DayPlayer(const QString& folder, Say say) : hand_(folder, std::move(say)) {}

void DayPlayer::play(const QList<DayStep>& steps) {
    for (const DayStep& step : steps) {
        line_ = step.number;
        try {
            playStep(step);
        } catch (const std::exception& error) {
            hand_.picture("fault");
            throw DayFault(QString("line %1: %2").arg(line_).arg(QString::fromUtf8(error.what())));
        }
    }
}

void DayPlayer::playStep(const DayStep& step) {
    switch (step.kind) {
        case DayStep::LogIn:
            return logIn(step);
        case DayStep::Purchase:
        case DayStep::Sale:
            return document(step);
        case DayStep::Receipt:
            saved_ += DayMoney(hand_).receipt(step);
            return;
        case DayStep::Voucher:
            saved_ += DayMoney(hand_).voucher(step);
            return;
        case DayStep::ChecksReceived:
        case DayStep::ChecksIssued:
            return DayMoney(hand_).checks(step);
        case DayStep::EndOfDay:
            return endOfDay();
        case DayStep::LogOff:
            return logOff();
    }
}

void DayPlayer::logIn(const DayStep& step) {
    hand_.say(QString("log in as %1").arg(step.user));
    QWidget* login = person::window("frmOpening");
    hand_.picture("login");
    hand_.act({}, [&] {
        person::fill(login, "txtUserName", step.user);
        person::press(Qt::Key_Return);
        person::fill(login, "txtPassword", step.password);
        person::throughModal(
            "frmDateChecker",
            [this](QWidget* checker) {
                hand_.picture("date and time");
                person::pushButton(checker, "cmdOK");
            },
            [] { person::press(Qt::Key_Return); });
        person::window("mdiMain");
    });
    hand_.picture("main window");
    hand_.closeScreens();
    hand_.picture("shortcuts");
}

// What the two sides of the trade call their things.
namespace {
struct Side {
    const char* menuItem;
    const char* journal;
    const char* entry;
    DayPaper paper;
};

const Side& sideOf(const DayStep& step) {
    static const Side sale{"mnuTransactionItem_2",
                           "frmSalesGrid",
                           "frmSalesEntry",
                           {"Do you want to Print Delivery Receipt for this Sales Transaction?",
                            "prtDelivery", "tblSalesMaster", "RefNo"}};
    static const Side purchase{"mnuTransactionItem_5",
                               "frmPurchaseGrid",
                               "frmPurchaseEntry",
                               {"Do you want to Print Purchase Order for this Purchase Transaction?",
                                "prtPurchase", "tblPurchaseMaster", "PurchaseNo"}};
    return step.kind == DayStep::Sale ? sale : purchase;
}

int linesOn(QWidget* entry) { return person::find<ListView>(entry, "lvwItems")->rowCount(); }
}  // namespace

void DayPlayer::document(const DayStep& step) {
    QWidget* entry = compose(step);
    saved_ += hand_.save(entry, {sideOf(step).paper}, step.isPrinted, "Record Successfully Saved!");
    hand_.closeScreens();
}

QWidget* DayPlayer::compose(const DayStep& step) {
    const bool sale = step.kind == DayStep::Sale;
    hand_.say(QString(sale ? "sale to %1%2" : "purchase from %1%2")
                  .arg(step.contact, step.wholesale ? ", at wholesale prices" : ""));
    const Side& side = sideOf(step);
    QWidget* entry = hand_.openEntry(side.menuItem, side.journal, side.entry);
    hand_.chooseContact(entry, step.contact);
    if (step.wholesale) chooseWholesale(entry);
    if (!step.remarks.isEmpty()) person::fill(entry, "txtRemarks", step.remarks);
    addLines(entry, step);
    return entry;
}

void DayPlayer::chooseWholesale(QWidget* entry) {
    person::pushButton(entry, "chkWholesale");
    hand_.require(person::find<QCheckBox>(entry, "chkWholesale")->isChecked(),
                  "wholesale prices were not chosen");
}

void DayPlayer::addLines(QWidget* entry, const DayStep& step) {
    QWidget* dialog = nullptr;
    for (const DayLine& line : step.lines) {
        line_ = line.number;
        if (!dialog) dialog = openLineDialog(entry);
        if (line.refused)
            refuseLine(entry, dialog, line);
        else
            addLine(entry, dialog, line);
        if (line.refused) dialog = nullptr;
    }
    if (dialog) hand_.closeDialog("frmAddItem");
    line_ = step.number;
}

QWidget* DayPlayer::openLineDialog(QWidget* entry) {
    QWidget* dialog = nullptr;
    hand_.act({}, [&] {
        entry->activateWindow();
        person::press(Qt::Key_Insert);
        dialog = person::screen("frmAddItem");
    });
    return dialog;
}

void DayPlayer::typeLine(QWidget* dialog, const DayLine& line) {
    person::walkTo("cboDescription", Qt::Key_Tab);
    person::fill(dialog, "cboDescription", line.item);
    person::press(Qt::Key_Return);
    hand_.pick(person::screen("frmFound"), "Description", line.item);
    person::waitFor([] { return person::focusName() == "txtCost"; }, "the pick to fill the line");
    if (!line.price.isEmpty()) person::type(line.price);
    person::walkTo("txtOrder");
    person::type(line.ordered);
    person::walkTo("txtServe");
    person::type(line.moved);
}

static QString told(const DayLine& line) {
    const QString moved =
        line.moved == line.ordered ? QString() : QString(", %1 of them now").arg(line.moved);
    const QString price = line.price.isEmpty() ? QString() : " at " + line.price;
    return QString("    %1 x %2%3%4").arg(line.ordered, line.item, price, moved);
}

void DayPlayer::addLine(QWidget* entry, QWidget* dialog, const DayLine& line) {
    hand_.say(told(line));
    const int before = linesOn(entry);
    hand_.act({}, [&] {
        typeLine(dialog, line);
        hand_.picture("line");
        person::press(Qt::Key_Return);
    });
    hand_.require(linesOn(entry) == before + 1, "the line was not taken");
}

void DayPlayer::refuseLine(QWidget* entry, QWidget* dialog, const DayLine& line) {
    hand_.say(told(line));
    const int before = linesOn(entry);
    hand_.act({{"Error!", "Purchase This Item First!"}}, [&] {
        typeLine(dialog, line);
        person::press(Qt::Key_Return);
    });
    hand_.require(linesOn(entry) == before, "the line was taken although it was refused");
    hand_.closeDialog("frmAddItem");
}

void DayPlayer::endOfDay() {
    hand_.say("end of day");
    hand_.act({{"Zevrin!", "End of Day Transactions Successfully Uploaded!"}}, [this] {
        person::choose("mnuFileItem_0");
        QWidget* screen = person::screen("frmForUpload");
        hand_.picture("frmForUpload");
        person::pushButton(screen, "imgUpload");
        person::waitFor([] { return !person::isOpen("frmForUpload"); }, "the end of day to close", 60000);
    });
    hand_.require(!HasPendingPosting(StoreConnection()), "documents still wait for the end of day");
}

void DayPlayer::logOff() {
    hand_.say("log off");
    hand_.act({}, [] {
        person::choose("mnuFileItem_8");
        person::window("frmOpening");
    });
}

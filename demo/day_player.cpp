#include "demo/day_player.h"

#include "books/posting_queue.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "support/program_driver.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

DayPlayer::DayPlayer(const QString& folder, Say say)
    : folder_(folder), say_(std::move(say)), boxes_([this](const QString& line) { say_(line); }) {}

void DayPlayer::play(const QList<DayStep>& steps) {
    for (const DayStep& step : steps) {
        line_ = step.number;
        try {
            playStep(step);
        } catch (const std::exception& error) {
            picture("fault");
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
        case DayStep::EndOfDay:
            return endOfDay();
        case DayStep::LogOff:
            return logOff();
    }
}

// Does something that brings these boxes, and no other.
void DayPlayer::act(const QList<DayBoxes::Expected>& boxes, const std::function<void()>& action) {
    boxes_.expect(boxes);
    action();
    const QString fault = boxes_.settle();
    if (!fault.isEmpty()) throw DayFault(fault);
}

void DayPlayer::require(bool happened, const QString& fault) {
    if (!happened) throw DayFault(fault);
}

void DayPlayer::logIn(const DayStep& step) {
    say_(QString("log in as %1").arg(step.user));
    QWidget* login = person::window("frmOpening");
    picture("login");
    act({}, [&] {
        person::fill(login, "txtUserName", step.user);
        person::press(Qt::Key_Return);
        person::fill(login, "txtPassword", step.password);
        person::throughModal(
            "frmDateChecker",
            [this](QWidget* checker) {
                picture("date and time");
                person::pushButton(checker, "cmdOK");
            },
            [] { person::press(Qt::Key_Return); });
        person::window("mdiMain");
    });
    picture("main window");
    closeScreens();
    picture("shortcuts");
}

// What the two sides of the trade call their things.
namespace {
struct Side {
    const char* menuItem;
    const char* journal;
    const char* entry;
    const char* master;
    const char* key;
    const char* printQuestion;
    const char* paper;
};

const Side& sideOf(const DayStep& step) {
    static const Side sale{"mnuTransactionItem_2",
                           "frmSalesGrid",
                           "frmSalesEntry",
                           "tblSalesMaster",
                           "RefNo",
                           "Do you want to Print Delivery Receipt for this Sales Transaction?",
                           "prtDelivery"};
    static const Side purchase{
        "mnuTransactionItem_5", "frmPurchaseGrid",
        "frmPurchaseEntry",     "tblPurchaseMaster",
        "PurchaseNo",           "Do you want to Print Purchase Order for this Purchase Transaction?",
        "prtPurchase"};
    return step.kind == DayStep::Sale ? sale : purchase;
}

bool isFlagged(const Side& side, const QString& number, const char* flag) {
    return FlagFieldSet(StoreConnection(), side.master, side.key, number, flag);
}

int linesOn(QWidget* entry) { return person::find<ListView>(entry, "lvwItems")->rowCount(); }
}  // namespace

void DayPlayer::document(const DayStep& step) {
    save(compose(step), step);
    closeScreens();
}

QWidget* DayPlayer::compose(const DayStep& step) {
    const bool sale = step.kind == DayStep::Sale;
    say_(QString(sale ? "sale to %1%2" : "purchase from %1%2")
             .arg(step.contact, step.wholesale ? ", at wholesale prices" : ""));
    QWidget* entry = openEntry(step);
    chooseContact(entry, step);
    if (!step.remarks.isEmpty()) person::fill(entry, "txtRemarks", step.remarks);
    addLines(entry, step);
    return entry;
}

QWidget* DayPlayer::openEntry(const DayStep& step) {
    const Side& side = sideOf(step);
    QWidget* entry = nullptr;
    act({}, [&] {
        person::choose(side.menuItem);
        person::screen(side.journal);
        picture(side.journal);
        person::press(Qt::Key_N, Qt::ControlModifier);
        entry = person::screen(side.entry);
    });
    return entry;
}

void DayPlayer::chooseContact(QWidget* entry, const DayStep& step) {
    act({}, [&] {
        person::fill(entry, "cboCustomer", step.contact);
        person::press(Qt::Key_Return);
        pick(person::screen("frmContactFound"), "ContactName", step.contact);
    });
    require(person::read(entry, "cboCustomer") == step.contact,
            QString("the pick left \"%1\" as the contact").arg(person::read(entry, "cboCustomer")));
    if (!step.wholesale) return;
    person::pushButton(entry, "chkWholesale");
    require(person::find<QCheckBox>(entry, "chkWholesale")->isChecked(), "wholesale prices were not chosen");
}

// Goes down the picker to the row with this value and picks it.
void DayPlayer::pick(QWidget* picker, const QString& column, const QString& value) {
    require(person::walkToRow(person::find<DataGrid>(picker, "dbgSearch"), column, value),
            QString("the picker does not list \"%1\"").arg(value));
    const QString name = picker->objectName();
    picture(name);
    person::press(Qt::Key_Return);
    person::waitFor([&] { return !person::isOpen(name); }, name + " to close");
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
    if (dialog) closeLineDialog();
    line_ = step.number;
}

QWidget* DayPlayer::openLineDialog(QWidget* entry) {
    QWidget* dialog = nullptr;
    act({}, [&] {
        entry->activateWindow();
        person::press(Qt::Key_Insert);
        dialog = person::screen("frmAddItem");
    });
    return dialog;
}

// Esc closes the dialog; a line that was not taken is given up.
void DayPlayer::closeLineDialog() {
    act({}, [] {
        person::press(Qt::Key_Escape);
        person::waitFor([] { return !person::isOpen("frmAddItem"); }, "the line dialog to close");
    });
}

void DayPlayer::typeLine(QWidget* dialog, const DayLine& line) {
    person::walkTo("cboDescription", Qt::Key_Tab);
    person::fill(dialog, "cboDescription", line.item);
    person::press(Qt::Key_Return);
    pick(person::screen("frmFound"), "Description", line.item);
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
    say_(told(line));
    const int before = linesOn(entry);
    act({}, [&] {
        typeLine(dialog, line);
        picture("line");
        person::press(Qt::Key_Return);
    });
    require(linesOn(entry) == before + 1, "the line was not taken");
}

void DayPlayer::refuseLine(QWidget* entry, QWidget* dialog, const DayLine& line) {
    say_(told(line));
    const int before = linesOn(entry);
    act({{"Error!", "Purchase This Item First!"}}, [&] {
        typeLine(dialog, line);
        person::press(Qt::Key_Return);
    });
    require(linesOn(entry) == before, "the line was taken although it was refused");
    closeLineDialog();
}

void DayPlayer::save(QWidget* entry, const DayStep& step) {
    const Side& side = sideOf(step);
    const QString number = person::read(entry, "txtCode");
    const QString total = person::read(entry, "txtAmount");
    picture(side.entry);
    const BoxAnswer prints = step.isPrinted ? BoxAnswer::Yes : BoxAnswer::No;
    act({{{}, side.printQuestion, prints, !step.isPrinted}, {"Saved!", "Record Successfully Saved!"}},
        [] { person::press(Qt::Key_S, Qt::ControlModifier); });
    require(RecordFound(StoreConnection(), side.master, side.key, number), number + " is not in the books");
    saved_ += number;
    say_(QString("    %1 saved, %2").arg(number, total));
    if (step.isPrinted) savePaper(step, number);
}

// The paper comes up in front, is saved as a PDF, and is tagged in the books.
void DayPlayer::savePaper(const DayStep& step, const QString& number) {
    const Side& side = sideOf(step);
    const QTemporaryDir passing;
    const QString file = QDir(folder_.isEmpty() ? passing.path() : folder_)
                             .filePath(QString("%1 %2.pdf").arg(side.paper, number));
    desk::setDoors({.saveFile = [file](const QString&) { return file; }});
    act({}, [&] {
        person::screen(side.paper);
        person::waitFor([&] { return isFlagged(side, number, "Printed"); }, "the paper to be tagged");
        picture(side.paper);
        person::press(Qt::Key_S, Qt::ControlModifier);
        person::press(Qt::Key_Escape);
        person::waitFor([&] { return !person::isOpen(side.paper); }, "the paper to close");
    });
    desk::setDoors({});
    require(QFileInfo(file).size() > 0, file + " was not written");
    require(isFlagged(side, number, "RecordLock"), number + " can still be changed");
    say_(QString("    %1 printed").arg(number));
}

void DayPlayer::endOfDay() {
    say_("end of day");
    act({{"Zevrin!", "End of Day Transactions Successfully Uploaded!"}}, [this] {
        person::choose("mnuFileItem_0");
        QWidget* screen = person::screen("frmForUpload");
        picture("frmForUpload");
        person::pushButton(screen, "imgUpload");
        person::waitFor([] { return !person::isOpen("frmForUpload"); }, "the end of day to close", 60000);
    });
    require(!HasPendingPosting(StoreConnection()), "documents still wait for the end of day");
}

void DayPlayer::logOff() {
    say_("log off");
    act({}, [] {
        person::choose("mnuFileItem_8");
        person::window("frmOpening");
    });
}

// The open screens, one after the other, by the key for it.
void DayPlayer::closeScreens() {
    act({}, [] {
        while (!ScreenRegistry::instance().openScreens().isEmpty()) {
            const qsizetype before = ScreenRegistry::instance().openScreens().size();
            person::press(Qt::Key_W, Qt::ControlModifier);
            person::waitFor([&] { return ScreenRegistry::instance().openScreens().size() < before; },
                            "Ctrl+W to close a screen");
        }
    });
}

void DayPlayer::picture(const QString& name) {
    if (folder_.isEmpty()) return;
    const QString file = QString("%1 %2.png").arg(++pictureNumber_, 3, 10, QChar('0')).arg(name);
    if (!person::picture().save(QDir(folder_).filePath(file))) say_("    no picture: " + file);
}

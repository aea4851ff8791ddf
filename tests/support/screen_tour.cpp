#include "support/screen_tour.h"

#include "platform/ui/boxes.h"
#include "platform/ui/screen_registry.h"
#include "support/program_driver.h"

#include <stdexcept>

namespace {

BoxAnswer pass(const Box& box) {
    return box.buttons == BoxButtons::YesNoCancel ? BoxAnswer::No : defaultAnswer(box);
}

void tourLogin(const QString& user, const QString& password, const VisitScreen& visit) {
    QWidget* login = person::window("frmOpening");
    visit("frmOpening", login);
    person::fill(login, "txtUserName", user);
    person::throughModal(
        "frmChangePassword",
        [&](QWidget* change) {
            visit("frmChangePassword", change);
            person::press(Qt::Key_Escape);
        },
        [&] { person::pushButton(login, "lblChangePassword"); });
    person::fill(login, "txtPassword", password);
    person::throughModal(
        "frmDateChecker",
        [&](QWidget* checker) {
            visit("frmDateChecker", checker);
            person::press(Qt::Key_Escape);
        },
        [] { person::press(Qt::Key_Return); });
}

void tourFrame(const VisitScreen& visit) {
    QWidget* frame = person::window("mdiMain");
    closeOpenScreens();
    person::waitFor([&] { return person::control(frame, "lvMenu")->isVisible(); }, "the panel");
    visit("frmShortcuts", person::control(frame, "frmShortcuts"));
    person::throughModal(
        "frmAbout",
        [&](QWidget* about) {
            visit("frmAbout", about);
            person::press(Qt::Key_Escape);
        },
        [] { person::choose("mnuHelpItem_4"); });
}

// From the customer to the quantity popup of a line.
void tourPopups(const VisitScreen& visit) {
    QWidget* entry = openRegistered("frmSalesEntry");
    person::goTo(entry, "cboCustomer");
    person::press(Qt::Key_Return);
    visit("frmContactFound", person::screen("frmContactFound"));
    person::press(Qt::Key_Return);
    person::waitFor([] { return !person::isOpen("frmContactFound"); }, "the contact picker to close");
    person::press(Qt::Key_Insert);
    person::screen("frmAddItem");
    person::walkTo("cboDescription", Qt::Key_Tab);
    person::press(Qt::Key_Return);
    visit("frmFound", person::screen("frmFound"));
    person::press(Qt::Key_Return);
    person::waitFor([] { return person::focusName() == "txtCost"; }, "the pick to fill the line");
    person::walkTo("txtOrder");
    person::type("1");
    person::walkTo("txtServe");
    visit("frmAddItem", person::screen("frmAddItem"));
    person::press(Qt::Key_Return);
    person::press(Qt::Key_Escape);
    person::waitFor([] { return !person::isOpen("frmAddItem"); }, "the line dialog to close");
    person::goTo(entry, "lvwItems");
    person::press(Qt::Key_Home);
    person::press(Qt::Key_Return);
    visit("frmInputInList", person::screen("frmInputInList"));
    closeOpenScreens();
}

void pickFirstContact(QWidget* entry) {
    person::goTo(entry, "cboCustomer");
    person::press(Qt::Key_Return);
    person::screen("frmContactFound");
    person::press(Qt::Key_Return);
    person::waitFor([] { return !person::isOpen("frmContactFound"); }, "the contact picker to close");
}

// A popup does not close by its close box.
void leave(const QString& popup) {
    person::press(Qt::Key_Escape);
    person::waitFor([&popup] { return !person::isOpen(popup); }, popup + " to close");
}

// The line popups of receipts and vouchers, each with the picker that Enter in its first field opens.
void tourPayments(const VisitScreen& visit) {
    const struct {
        const char *entry, *button, *popup, *picker;
        const char* name = popup;
    } popups[] = {{"frmReceiptEntry", "cmdAdd", "frmAddReceipt", "frmSalesFound"},
                  {"frmDisbursementEntry", "cmdAdd", "frmAddPayment", "frmDisbursementFound"},
                  {"frmDisbursementEntry", "cmdInsert", "frmAddPayment", "", "frmAddPayment direct"},
                  {"frmDisbursementEntry", "cmdAddCheck", "frmAddCheck", ""}};
    for (const auto& each : popups) {
        QWidget* entry = openRegistered(each.entry);
        pickFirstContact(entry);
        person::pushButton(entry, each.button);
        visit(each.name, person::screen(each.popup));
        if (*each.picker) person::press(Qt::Key_Return);
        if (person::isOpen(each.picker)) {
            visit(each.picker, person::screen(each.picker));
            leave(each.picker);
        }
        person::screen(each.popup);
        leave(each.popup);
        closeOpenScreens();
    }
}

// What becomes of the first pending check of each side.
void tourChecks(const VisitScreen& visit) {
    const struct {
        const char *screen, *dialog;
    } sides[] = {{"frmNegReceivableChecks", "frmNegReceivableStatus"},
                 {"frmNegPayableChecks", "frmNegPayableStatus"}};
    for (const auto& side : sides) {
        QWidget* screen = openRegistered(side.screen);
        person::goTo(screen, "lvwRecord");
        person::press(Qt::Key_Home);
        person::press(Qt::Key_Return);
        visit(side.dialog, person::screen(side.dialog));
        closeOpenScreens();
    }
}

}  // namespace

QWidget* openRegistered(const QString& name) {
    ChildScreen* screen = ScreenRegistry::instance().open(name);
    if (!screen) throw std::runtime_error(("no screen " + name).toStdString());
    person::waitFor([&] { return screen->isVisible(); }, name);
    return screen;
}

void closeOpenScreens() {
    while (!ScreenRegistry::instance().openScreens().isEmpty()) {
        ChildScreen* last = ScreenRegistry::instance().openScreens().last();
        const QString name = last->objectName();
        if (!last->unload()) throw std::runtime_error((name + " does not close").toStdString());
        person::settle();
    }
}

void tourScreens(const QString& user, const QString& password, const VisitScreen& visit) {
    setBoxAnswerer(pass);
    tourLogin(user, password, visit);
    tourFrame(visit);
    for (const QString& name : ScreenRegistry::instance().names()) {
        visit(name, openRegistered(name));
        closeOpenScreens();
    }
    tourPopups(visit);
    tourPayments(visit);
    tourChecks(visit);
    setBoxAnswerer({});
}

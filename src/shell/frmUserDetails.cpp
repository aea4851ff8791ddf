#include "shell/frmUserDetails.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/field_widths.h"
#include "platform/masks.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"
#include "shell/late_calls.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace {
constexpr int codeColumn = 1;
// The pairs of rights stand in two columns below the first three: four of the journals, three of inquiries.
constexpr int singleRights = 3;
constexpr int journalPairs = 4;
}  // namespace

frmUserDetails::frmUserDetails()
    : RecordScreen("frmUserDetails", "User Administration"),
      txtUserLogin(makeBox("txtUserLogin", width::userCode)),
      txtFullName(makeBox("txtFullName", width::contactName)),
      txtDescription(makeBox("txtDescription", width::contactName)),
      txtPassword(makeBox("txtPassword", width::userCode)),
      txtConfirm(makeBox("txtConfirm", width::userCode)),
      txtUpdatedBy(readOnlyBox("txtUpdatedBy")),
      txtDateUpdated(readOnlyBox("txtDateUpdated")),
      lvwMenu(new ListView("lvwMenu", {{"Menu Name", 36}, {"Menu Code", 11}})) {
    for (TextBox* box : {txtPassword, txtConfirm}) box->setEchoMode(QLineEdit::Password);
    form::keepReadable(txtUserLogin, {QPalette::Text});
    QGroupBox* administration = form::frame("fraAdministration", "User Administration :");
    auto* left = new QVBoxLayout;
    left->addWidget(makeUserFrame());
    left->addWidget(makeUpdateFrame());
    left->addStretch();
    auto* halves = new QHBoxLayout;
    halves->addLayout(left);
    halves->addWidget(makeMenuFrame(), 1);
    auto* inside = new QVBoxLayout(administration);
    inside->addLayout(halves, 1);
    inside->addWidget(makeAccessFrame());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(administration);
}

TextBox* frmUserDetails::makeBox(const QString& name, int capacity) {
    auto* box = new TextBox(name);
    box->setKeyFilter(keys::freeText());
    box->setCapacity(capacity);
    box->setMinimumWidth(form::charactersWide(box, 24));
    connect(box, &TextBox::textChanged, this, &frmUserDetails::changed);
    return box;
}

QGroupBox* frmUserDetails::makeUserFrame() {
    QGroupBox* frame = form::frame("fraUser", "User Details :");
    auto* grid = new QGridLayout(frame);
    form::row(grid, 0, 0, "&User Login ID :", txtUserLogin);
    form::row(grid, 1, 0, "Full &Name :", txtFullName);
    form::row(grid, 2, 0, "&Description :", txtDescription);
    form::row(grid, 3, 0, "&Password :", txtPassword);
    form::row(grid, 4, 0, "&Confirm :", txtConfirm);
    return frame;
}

QGroupBox* frmUserDetails::makeUpdateFrame() {
    QGroupBox* frame = form::frame("fraUpdate", "Update Details :");
    auto* grid = new QGridLayout(frame);
    form::row(grid, 0, 0, "Updated By :", txtUpdatedBy);
    form::row(grid, 1, 0, "Date Updated :", txtDateUpdated);
    return frame;
}

QGroupBox* frmUserDetails::makeMenuFrame() {
    QGroupBox* frame = form::frame("fraMenu", "Please Define User Menu Access :");
    lvwMenu->setAccessibleName("Menus");
    lvwMenu->showMarks();
    connect(lvwMenu->model(), &QAbstractItemModel::dataChanged, this, &frmUserDetails::changed);
    auto* imgMark = form::imageButton("imgMark", "mark", "Mark All Items");
    auto* imgUnMark = form::imageButton("imgUnMark", "unmark", "UnMark All Items");
    connect(imgMark, &QToolButton::clicked, this, [this] { lvwMenu->setAllMarked(true); });
    connect(imgUnMark, &QToolButton::clicked, this, [this] { lvwMenu->setAllMarked(false); });
    auto* marks = new QHBoxLayout;
    marks->addStretch();
    marks->addWidget(imgMark);
    marks->addWidget(imgUnMark);
    auto* column = new QVBoxLayout(frame);
    column->addWidget(lvwMenu, 1);
    column->addLayout(marks);
    return frame;
}

QCheckBox* frmUserDetails::makeAccessBox(const AccessRight& right) {
    auto* box = new QCheckBox(right.caption);
    box->setObjectName(right.control);
    if (*right.spoken) box->setAccessibleName(right.spoken);
    access_[right.column] = box;
    connect(box, &QCheckBox::toggled, this, [this, control = right.control](bool checked) {
        changed();
        if (!checked) clearWhatNeeds(control);
    });
    return box;
}

QGroupBox* frmUserDetails::makeAccessFrame() {
    QGroupBox* frame = form::frame("fraAccess", "Window Access Details :");
    auto* grid = new QGridLayout(frame);
    auto* singles = new QHBoxLayout;
    grid->addLayout(singles, 0, 0, 1, 4);
    for (int place = 0; place < static_cast<int>(accessRights().size()); ++place) {
        QCheckBox* box = makeAccessBox(accessRights().at(static_cast<size_t>(place)));
        const int pair = (place - singleRights) / 2;
        const bool inquiry = pair >= journalPairs;
        if (place < singleRights)
            singles->addWidget(box);
        else
            grid->addWidget(box, 1 + (inquiry ? pair - journalPairs : pair),
                            (inquiry ? 2 : 0) + (place - singleRights) % 2);
    }
    return frame;
}

void frmUserDetails::clearWhatNeeds(const QString& control) {
    for (const AccessRight& right : accessRights())
        if (control == right.needs) access_[right.column]->setChecked(false);
}

bool frmUserDetails::receive(const ScreenArguments& arguments) {
    if (!queryUnload()) return false;
    return guarded([&] {
               const bool adds = arguments.key.isEmpty();
               before_ = adds ? std::nullopt : std::optional(loadUser(StoreConnection(), arguments.key));
               mblnAddmode = adds;
               showUser(before_.value_or(newUser()));
           }) &&
           RecordScreen::receive(arguments);
}

void frmUserDetails::LoadMenu() {
    QList<QStringList> rows;
    for (const MenuEntry& entry : listMenuRights(StoreConnection()))
        rows += {entry.name, QString::number(entry.code)};
    lvwMenu->setRows(rows);
}

// The code of a user stays what it is; a person's own rows go by it.
void frmUserDetails::showUser(const UserProfile& user) {
    txtUserLogin->setText(user.code);
    txtUserLogin->setEnabled(mblnAddmode);
    txtFullName->setText(user.fullName);
    txtDescription->setText(user.description);
    txtPassword->setText(user.password);
    txtConfirm->setText(user.confirm);
    txtUpdatedBy->setText(user.updatedBy);
    txtDateUpdated->setText(formatDate(user.dateUpdated));
    for (auto box = access_.begin(); box != access_.end(); ++box)
        box.value()->setChecked(user.flags.contains(box.key()));
    LoadMenu();
    for (int row = 0; row < lvwMenu->rowCount(); ++row)
        lvwMenu->setMarked(row, user.menus.contains(lvwMenu->text(row, codeColumn).toInt()));
    mblnUpdated = false;
}

UserProfile frmUserDetails::typed() const {
    UserProfile user;
    user.code = txtUserLogin->text();
    user.fullName = txtFullName->text();
    user.description = txtDescription->text();
    user.password = txtPassword->text();
    user.confirm = txtConfirm->text();
    for (auto box = access_.begin(); box != access_.end(); ++box)
        if (box.value()->isChecked()) user.flags += box.key();
    for (const int row : lvwMenu->markedRows()) user.menus += lvwMenu->text(row, codeColumn).toInt();
    return user;
}

bool frmUserDetails::save() {
    try {
        const Outcome outcome = saveUser(StoreConnection(), typed(), before_ ? &*before_ : nullptr);
        if (isDone(outcome)) {
            mblnUpdated = false;
            callCommand(ScreenRegistry::instance().opened("frmUserGrid"), "LoadGrid");
        }
        return settled(outcome, this);
    } catch (const StoreError& error) {
        showBox(saveErrorBox(error));
        return false;
    }
}

void frmUserDetails::SaveRecord() {
    if (save()) unload();
}

bool frmUserDetails::queryUnload() {
    if (!mblnUpdated) return true;
    const auto ask = [](const char* title, const char* text) {
        return showBox({title, text, BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes});
    };
    const BoxAnswer answer =
        mblnAddmode
            ? ask("Confirm Add Record!", "Add New Record to Existing User File then Exit?")
            : ask("Confirm Update Record!", "User Access Record Has Been Updated.  Save Changes then Exit?");
    return answer == BoxAnswer::Yes ? save() : answer == BoxAnswer::No;
}

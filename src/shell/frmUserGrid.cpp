#include "shell/frmUserGrid.h"

#include "foundation/session.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/list_look.h"
#include "platform/ui/list_view.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/settled.h"
#include "shell/user_document.h"

#include <QVBoxLayout>

frmUserGrid::frmUserGrid()
    : ChildScreen("frmUserGrid", "System User Profile"),
      lvwRecord(
          new ListView("lvwRecord", {{"User Code", 16}, {"Full Name", 32}, {"Description", 40}}, this)) {
    lvwRecord->setAccessibleName("Users");
    list_look::sayWhenEmpty(lvwRecord, "No users. New Record (Ctrl+N) enters one.");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lvwRecord);
    connect(lvwRecord, &ListView::rowDoubleClicked, this, &frmUserGrid::EditRecord);
    connect(lvwRecord, &ListView::entered, this, &frmUserGrid::EditRecord);
    connect(lvwRecord, &ListView::deletePressed, this, &frmUserGrid::DeleteRecord);
    LoadGrid();
}

QSize frmUserGrid::sizeHint() const { return {form::charactersWide(this, 100), fontMetrics().height() * 24}; }

// The user that was selected stays selected.
void frmUserGrid::LoadGrid() {
    guarded([this] {
        const QString selected = lvwRecord->text(lvwRecord->currentRow(), 0);
        QList<QStringList> rows;
        for (const UserListRow& user : listUsers(StoreConnection()))
            rows += {user.code, user.fullName, user.description};
        lvwRecord->setRows(rows);
        const int row = lvwRecord->findRow(0, selected);
        if (row >= 0) lvwRecord->setCurrentRow(row);
    });
}

void frmUserGrid::NewRecord() { ScreenRegistry::instance().open("frmUserDetails"); }

void frmUserGrid::EditRecord() {
    const QString code = lvwRecord->text(lvwRecord->currentRow(), 0);
    if (!code.isEmpty()) ScreenRegistry::instance().open("frmUserDetails", {{}, code, {}});
}

void frmUserGrid::DeleteRecord() {
    const QString code = lvwRecord->text(lvwRecord->currentRow(), 0);
    if (code.isEmpty()) return;
    guarded([&] {
        const Outcome outcome = askUntilSettled(
            [&](const Answers& answers) { return deleteUser(StoreConnection(), code, answers); });
        if (settled(outcome, this)) LoadGrid();
    });
}

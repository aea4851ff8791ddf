#include "shell/frmRecordLock.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/form.h"
#include "platform/ui/settled.h"

#include <QVBoxLayout>

frmRecordLock::frmRecordLock()
    : ChildScreen("frmRecordLock", "Transaction Locking Module"),
      cboJournal(new ComboBox("cboJournal", ComboBox::Closed)),
      cboSelection(new ComboBox("cboSelection", ComboBox::Open)),
      fraSelection(form::frame("fraSelection", lockJournals().front().caption)),
      cmdLock(form::button("cmdLock", "&Lock")),
      cmdUnlock(form::button("cmdUnlock", "&UnLock")) {
    build();
    for (const LockJournal& journal : lockJournals()) cboJournal->addItem(journal.name);
    cboJournal->setText(lockJournals().front().name);
    fillSelection();
    reset();
    connect(cboJournal, &ComboBox::picked, this, &frmRecordLock::journalChanged);
    cboSelection->setFiller([this] { fillSelection(); });
    connect(cboSelection, &ComboBox::picked, this, &frmRecordLock::readStatus);
    connect(cboSelection, &ComboBox::focusLost, this, &frmRecordLock::readStatus);
    connect(cmdLock, &QPushButton::clicked, this, [this] { change(LockChange::Lock); });
    connect(cmdUnlock, &QPushButton::clicked, this, [this] { change(LockChange::Release); });
}

void frmRecordLock::build() {
    cboSelection->setKeyFilter(keys::freeText());
    cboSelection->setMinimumWidth(form::charactersWide(cboSelection, 26));
    cboSelection->setAccessibleName("Document number");
    cboJournal->setMinimumWidth(form::charactersWide(cboJournal, 30));
    auto* inside = new QVBoxLayout(fraSelection);
    inside->addWidget(cboSelection);

    QPushButton* cancel = form::button("cmdCancel", "&Close");
    connect(cancel, &QPushButton::clicked, this, &frmRecordLock::CloseRecord);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    auto* journal = new QGridLayout;
    form::row(journal, 0, 0, "Select Transaction &Journal :", cboJournal);
    layout->addLayout(journal);
    layout->addWidget(fraSelection);
    layout->addStretch();
    layout->addLayout(form::buttonsAtRight({cmdLock, cmdUnlock, cancel}));
}

void frmRecordLock::journalChanged() {
    if (const LockJournal* journal = findLockJournal(cboJournal->text()))
        fraSelection->setTitle(journal->caption);
    cboSelection->clear();
    reset();
}

void frmRecordLock::fillSelection() {
    if (const LockJournal* journal = findLockJournal(cboJournal->text()))
        LoadComboBox(journal->book.key, journal->book.table, cboSelection, false);
}

// A document that was not entered yet has no status, and nothing to say.
void frmRecordLock::readStatus() {
    const QString number = cboSelection->text();
    const LockJournal* journal = findLockJournal(cboJournal->text());
    if (!journal || number.isEmpty()) return;
    guarded(
        [&] {
            const DocumentLock lock = documentLock(StoreConnection(), *journal, number);
            if (lock == DocumentLock::Missing) return void(showBox(missingDocument(*journal)));
            cmdLock->setEnabled(lock == DocumentLock::Free);
            cmdUnlock->setEnabled(lock == DocumentLock::Locked);
        },
        "Error");
}

void frmRecordLock::change(LockChange change) {
    guarded(
        [&] {
            const Outcome outcome = askUntilSettled([&](const Answers& answers) {
                return changeLock(StoreConnection(), change, cboJournal->text(), cboSelection->text(),
                                  answers);
            });
            if (settled(outcome, this)) reset();
        },
        "Error");
}

void frmRecordLock::reset() {
    cboSelection->setText("");
    cmdLock->setEnabled(true);
    cmdUnlock->setEnabled(true);
}

#include "documents/check_dialog.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/date_box.h"
#include "platform/ui/form.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"

#include <QCheckBox>

namespace {
QCheckBox* checkBox(const char* name, const char* caption) {
    auto* box = new QCheckBox(caption);
    box->setObjectName(name);
    return box;
}
}  // namespace

CheckDialog::CheckDialog(const CheckBook& book, const QString& name, qint64 key)
    : ChildScreen(name, "Update Check Status", Centred, Popup), book_(book) {
    loaded_.key = key;
    txtPaymentNo = readOnlyBox("txtPaymentNo");
    txtCheckNo = new TextBox("txtCheckNo");
    txtCheckNo->setKeyFilter(keys::freeText());
    txtCheckNo->setCapacity(width::documentNo);
    txtCheckDate = new DateBox("txtCheckDate");
    txtCheckDate->setRefusal(invalidStatusDate());
    cboCheckStatus = new ComboBox("cboCheckStatus", ComboBox::Open);
    cboCheckStatus->setKeyFilter(keys::freeText());
    cboCheckStatus->addItems(offeredStatuses());
    chkCash = checkBox("chkCash", "Cash &Payment");
    chkNegotiated = checkBox("chkNegotiated", "C&leared");
    layOut();
    connectControls();
    load();
}

void CheckDialog::layOut() {
    auto* cmdOK = form::button("cmdOK", "&OK", "save");
    auto* cmdCancel = form::button("cmdCancel", "&Cancel", "close");
    connect(cmdOK, &QPushButton::clicked, this, &CheckDialog::SaveRecord);
    connect(cmdCancel, &QPushButton::clicked, this, &CheckDialog::CloseRecord);
    auto* grid = new QGridLayout(this);
    form::row(grid, 0, 0, "Control No. :", txtPaymentNo);
    form::row(grid, 1, 0, "Check No. :", txtCheckNo);
    form::row(grid, 2, 0, "Check Date :", txtCheckDate);
    form::row(grid, 3, 0, "Check Status :", cboCheckStatus);
    grid->addWidget(chkCash, 4, 1);
    grid->addWidget(chkNegotiated, 5, 1);
    grid->addLayout(form::buttonsAtRight({cmdOK, cmdCancel}), 6, 0, 1, 2);
    form::setAccessibleFromTexts(this);
    setMinimumWidth(form::charactersWide(this, 48));
}

void CheckDialog::connectControls() {
    connect(txtCheckNo, &TextBox::focusLost, this,
            [this] { txtCheckNo->setText(txtCheckNo->text().toUpper()); });
    connect(cboCheckStatus, &ComboBox::picked, this, [this] {
        change([this](CheckStatusEntry& typed) { chooseStatus(typed, cboCheckStatus->text()); });
    });
    connect(chkCash, &QCheckBox::clicked, this,
            [this](bool ticked) { change([ticked](CheckStatusEntry& typed) { tickCash(typed, ticked); }); });
    connect(chkNegotiated, &QCheckBox::clicked, this, [this](bool ticked) {
        change([ticked](CheckStatusEntry& typed) { tickNegotiated(typed, ticked); });
    });
}

// A check that has gone shows its number alone, and saving says so.
void CheckDialog::load() {
    txtPaymentNo->setText(QString::number(loaded_.key));
    guarded([this] {
        loaded_ = findCheck(StoreConnection(), book_, loaded_.key)
                      .value_or(StoredCheck{loaded_.key, {}, {}, {}, {}});
        showEntry(statusEntryOf(loaded_));
    });
}

CheckStatusEntry CheckDialog::entry() const {
    return {txtCheckNo->text(), txtCheckDate->text(), cboCheckStatus->text(), chkCash->isChecked(),
            chkNegotiated->isChecked()};
}

void CheckDialog::showEntry(const CheckStatusEntry& entry) {
    txtCheckNo->setText(entry.number);
    txtCheckDate->setText(entry.date);
    cboCheckStatus->setText(entry.status);
    chkCash->setChecked(entry.cash);
    chkNegotiated->setChecked(entry.negotiated);
    for (QWidget* field : QList<QWidget*>{txtCheckNo, txtCheckDate, cboCheckStatus, chkNegotiated})
        field->setEnabled(!entry.cash);
}

void CheckDialog::change(const std::function<void(CheckStatusEntry&)>& rule) {
    CheckStatusEntry typed = entry();
    rule(typed);
    showEntry(typed);
}

void CheckDialog::SaveRecord() {
    CheckUpdate update;
    if (!guarded([&] { update = updateCheck(StoreConnection(), book_, loaded_, entry()); })) return;
    if (!settled(update.outcome, this)) {
        if (update.overtaken) load();
        return;
    }
    emit saved();
    unload();
}

void CheckDialog::activated() {
    if (!focusWidget()) (txtCheckNo->isEnabled() ? static_cast<QWidget*>(txtCheckNo) : chkCash)->setFocus();
}
void CheckDialog::deactivated() { unload(); }

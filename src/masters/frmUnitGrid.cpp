#include "masters/frmUnitGrid.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "masters/unit_master.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/list_look.h"
#include "platform/ui/list_view.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"

namespace {
// Room for what is too long, so that the rule of 15 characters can say so.
constexpr int typedRoom = 40;

// Cyan while the field is idle, the desk's own colours while it is in use.
void paintIdle(TextBox* box, bool idle) {
    QPalette palette;
    if (idle) {
        palette.setColor(QPalette::Base, Qt::cyan);
        palette.setColor(QPalette::Text, Qt::black);
        palette.setColor(QPalette::PlaceholderText, Qt::black);
    }
    box->setPalette(palette);
}

QLabel* heading(const QString& text) {
    auto* label = form::label(text);
    label->setObjectName("lblHeading");
    form::setFont(label, 1.3, true);
    return label;
}
}  // namespace

frmUnitGrid::frmUnitGrid() : RecordScreen("frmUnitGrid", "Unit Maintenance") {
    lvwRecord = new ListView("lvwRecord", {{"Unit Code", 24}});
    lvwRecord->setAccessibleName("Units");
    list_look::sayWhenEmpty(lvwRecord, "No units yet. New Record (Ctrl+N) enters one.");
    txtUnit = new TextBox("txtUnit");
    txtUnit->setKeyFilter(keys::freeText());
    txtUnit->setCapacity(typedRoom);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading("Unit Information File"));
    layout->addWidget(lvwRecord, 1);
    auto* entry = new QGridLayout;
    form::row(entry, 0, 0, "&Unit Code :", txtUnit);
    layout->addLayout(entry);
    form::setAccessibleFromTexts(this);

    connect(txtUnit, &TextBox::entered, this, [this] { SaveRecord(); });
    connect(lvwRecord, &ListView::rowDoubleClicked, this, [this] { EditRecord(); });
    connect(lvwRecord, &ListView::entered, this, [this] { EditRecord(); });
    connect(lvwRecord, &ListView::deletePressed, this, [this] { DeleteRecord(); });
    closeField();
    LoadGrid();
}

QSize frmUnitGrid::sizeHint() const { return {form::charactersWide(this, 60), fontMetrics().height() * 28}; }

void frmUnitGrid::LoadGrid() {
    guarded([this] {
        QList<QStringList> rows;
        for (const QString& code : UnitCodes(StoreConnection())) rows << QStringList{code};
        lvwRecord->setRows(rows);
    });
}

QString frmUnitGrid::selectedUnit() const {
    const int row = lvwRecord->currentRow();
    return row < 0 ? QString() : lvwRecord->text(row, 0);
}

void frmUnitGrid::openField(const QString& text) {
    txtUnit->setText(text);
    txtUnit->setEnabled(true);
    paintIdle(txtUnit, false);
    txtUnit->setFocus();
}

void frmUnitGrid::closeField() {
    mblnAddmode = false;
    txtUnit->clear();
    txtUnit->setEnabled(false);
    paintIdle(txtUnit, true);
}

void frmUnitGrid::NewRecord() {
    mblnAddmode = true;
    mblnUpdated = false;
    openField({});
}

void frmUnitGrid::EditRecord() {
    if (lvwRecord->currentRow() < 0) return;
    mblnAddmode = false;
    mblnUpdated = false;
    currentUnit_ = selectedUnit();
    openField(currentUnit_);
}

void frmUnitGrid::SaveRecord() {
    guarded([this] {
        const Outcome outcome = SaveUnit(StoreConnection(), txtUnit->text(), mblnAddmode, currentUnit_);
        if (!settled(outcome, this)) return;
        LoadGrid();
        closeField();
    });
}

void frmUnitGrid::DeleteRecord() {
    const QString unit = selectedUnit();
    if (unit.isEmpty()) return;
    if (!askYes(confirmDeleteBox())) return;
    guarded([&] {
        DeleteUnit(StoreConnection(), unit);
        closeField();
        LoadGrid();
    });
}

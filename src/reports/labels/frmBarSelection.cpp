#include "reports/labels/frmBarSelection.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "platform/parsing.h"
#include "platform/progress_scope.h"
#include "platform/search_field.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/form.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/list_view.h"
#include "platform/ui/text_box.h"
#include "reports/frame/report_start.h"
#include "reports/labels/prtBarCode.h"

#include <QBoxLayout>

namespace {
constexpr int labelDigits = 4;

constexpr const char* instructions =
    "Select item from the list below and click on the arrow to the right button to add it to the selected "
    "list "
    "or click on arrow to the left button to remove selected item from the list. To select all click on the "
    "double arrow button to the right, to unselect all click on the double arrow button to the left.";

const QList<SearchField>& categories() {
    static const QList<SearchField> fields{{"Code", "ItemCode"}, {"Description", "Description"}};
    return fields;
}

// Whatever else is typed as a category, the description is searched.
const SearchField& categoryOf(const QString& caption) {
    const SearchField* field = findField(categories(), caption);
    return field ? *field : categories().last();
}

QList<QStringList> itemsWhere(const Sql& condition) {
    QList<QStringList> items;
    for (Recordset rows = StoreConnection().execute(Sql("SELECT ItemCode, Description FROM tblItemMaster") +
                                                    condition + Sql(" ORDER BY ItemCode"));
         !rows.eof(); rows.moveNext())
        items += {rows.trimmed("ItemCode"), rows.trimmed("Description")};
    return items;
}

QPushButton* arrow(const char* name, const char* caption, const char* words) {
    QPushButton* button = form::button(name, caption);
    button->setAccessibleName(words);
    button->setToolTip(words);
    return button;
}
}  // namespace

frmBarSelection::frmBarSelection() : ChildScreen("frmBarSelection", "Generate Item Bar Code . . .") {
    makeLists();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(instruction());
    layout->addLayout(searchRow());
    layout->addLayout(lists(), 1);
    layout->addLayout(foot());
    form::setAccessibleFromTexts(this);
    load();
}

QSize frmBarSelection::sizeHint() const {
    const QSize roomy(form::charactersWide(this, 146), fontMetrics().height() * 32);
    return roomy.expandedTo(minimumSizeHint());
}

void frmBarSelection::makeLists() {
    const QList<ListColumn> columns{{"Item Code", 13}, {"Description", 38}};
    lvwItems = new ListView("lvwItems", columns);
    lvwSelected = new ListView("lvwSelected", columns);
    lvwItems->setAccessibleName("Items");
    lvwSelected->setAccessibleName("Labels, one line each");
    lvwItems->keepSort();
    for (const auto signal : {&ListView::rowDoubleClicked, &ListView::entered})
        connect(lvwItems, signal, this, &frmBarSelection::selectOne);
    connect(lvwSelected, &ListView::rowDoubleClicked, this, &frmBarSelection::unselectOne);
    connect(lvwSelected, &ListView::deletePressed, this, &frmBarSelection::unselectOne);
}

QGroupBox* frmBarSelection::instruction() {
    QGroupBox* frame = form::frame("fraInstruction", "Instruction:");
    QLabel* lblInformation = form::label(instructions);
    lblInformation->setObjectName("lblInformation");
    lblInformation->setWordWrap(true);
    (new QVBoxLayout(frame))->addWidget(lblInformation);
    return frame;
}

QBoxLayout* frmBarSelection::searchRow() {
    cboSearchBy = new ComboBox("cboSearchBy", ComboBox::Open);
    cboSearchBy->setAccessibleName("Search Category");
    cboSearchBy->setKeyFilter(keys::freeText());
    cboSearchBy->addItems(captionsOf(categories()));
    cboSearchBy->setText("Description");
    txtSearch = new TextBox("txtSearch");
    txtSearch->setKeyFilter(keys::freeText());
    txtSearch->setCapacity(width::search);
    connect(txtSearch, &TextBox::entered, this, &frmBarSelection::search);
    QToolButton* cmdSearch = form::imageButton("cmdSearch", "search", "Search Item");
    connect(cmdSearch, &QToolButton::clicked, this, &frmBarSelection::search);
    QLabel* lblItem = form::label("&Search Item :", txtSearch);
    lblItem->setObjectName("lblItem");
    auto* row = new QHBoxLayout;
    for (QWidget* control : QList<QWidget*>{lblItem, cboSearchBy, txtSearch, cmdSearch})
        row->addWidget(control);
    row->setStretchFactor(txtSearch, 1);
    return row;
}

QBoxLayout* frmBarSelection::lists() {
    auto* row = new QHBoxLayout;
    row->addWidget(lvwItems, 1);
    row->addLayout(arrows());
    row->addWidget(lvwSelected, 1);
    return row;
}

QBoxLayout* frmBarSelection::arrows() {
    const struct {
        const char *name, *caption, *words;
        void (frmBarSelection::*command)();
    } rows[] = {{"cmdSelectOne", ">", "Add Item", &frmBarSelection::selectOne},
                {"cmdUnselectOne", "<", "Remove Label", &frmBarSelection::unselectOne},
                {"cmdSelectAll", ">>", "Add All Items", &frmBarSelection::selectAll},
                {"cmdUnselectAll", "<<", "Remove All Labels", &frmBarSelection::unselectAll}};
    auto* column = new QVBoxLayout;
    column->addStretch();
    for (const auto& row : rows) {
        QPushButton* button = arrow(row.name, row.caption, row.words);
        connect(button, &QPushButton::clicked, this, row.command);
        column->addWidget(button);
    }
    column->addStretch();
    return column;
}

QBoxLayout* frmBarSelection::foot() {
    QGroupBox* frame = form::frame("fraNumber", "No. of Labels :");
    txtNumber = new TextBox("txtNumber");
    txtNumber->setKeyFilter(keys::wholeNumber());
    txtNumber->setCapacity(labelDigits);
    txtNumber->setAlignment(Qt::AlignRight);
    txtNumber->setText("1");
    form::row(new QGridLayout(frame), 0, 0, "&Count per Item :", txtNumber);
    QPushButton* proceed = form::button("cmdProceed", "&Proceed", "print");
    QPushButton* exit = form::button("cmdExit", "E&xit", "exit");
    connect(proceed, &QPushButton::clicked, this, &frmBarSelection::PrintRecord);
    connect(exit, &QPushButton::clicked, this, &frmBarSelection::CloseRecord);
    auto* row = new QHBoxLayout;
    row->addWidget(frame);
    row->addStretch();
    row->addLayout(form::buttonsAtRight({proceed, exit}));
    return row;
}

void frmBarSelection::list(const Sql& condition) {
    lvwItems->clear();
    lvwItems->setRows(itemsWhere(condition));
}

void frmBarSelection::load() {
    guarded([this] {
        frmStatus status;
        const ProgressScope scope(status, "System is Loading Item Master File...", 0);
        list({});
    });
}

void frmBarSelection::search() {
    if (trim(cboSearchBy->text()).isEmpty())
        return showFault(errorFault("Please Select Search Category First!", "cboSearchBy"), this);
    guarded([this] {
        const QString typed = txtSearch->text();
        frmStatus status;
        const ProgressScope scope(status, "System is Searching for " + typed + "...", 0);
        list(Sql(" WHERE ") + *comparison(categoryOf(cboSearchBy->text()), typed, false));
    });
    if (lvwItems->rowCount() == 0)
        showFault(errorFault("System Could Not Generate BarCode for this Item... Product Does Not Exist!",
                             "txtSearch"),
                  this);
}

void frmBarSelection::selectOne() {
    const auto count = parseNumber(txtNumber->text());
    if (!count)
        return showFault(errorFault("Please Enter a Numeric Value for Item Count!", "txtNumber"), this);
    const int row = lvwItems->currentRow();
    if (row < 0)
        return showFault(errorFault("Please Select an Item to Generate Bar Code!", "lvwItems"), this);
    const int labels = static_cast<int>(count->toDouble());
    for (int label = 0; label < labels; ++label) lvwSelected->addRow(lvwItems->row(row));
}

void frmBarSelection::unselectOne() {
    const int row = lvwSelected->currentRow();
    if (row < 0) return;
    lvwSelected->removeRow(row);
    lvwSelected->setCurrentRow(std::min(row, lvwSelected->rowCount() - 1));
}

void frmBarSelection::selectAll() {
    guarded([this] {
        frmStatus status;
        const ProgressScope scope(status, "Transferring Selected Items...", 0);
        list({});
        lvwSelected->setRows(lvwSelected->rows() + lvwItems->rows());
    });
}

void frmBarSelection::unselectAll() {
    lvwSelected->clear();
    load();
}

QStringList frmBarSelection::selectedCodes() const {
    QStringList codes;
    for (const QStringList& row : lvwSelected->rows()) codes += row.first();
    return codes;
}

static std::optional<ReportJobParts> labelsOf(const QStringList& codes) {
    frmStatus status;
    const ProgressScope scope(status, "Initializing Item Database for Printing...", 0);
    return barCodeReport(StoreConnection(), codes);
}

void frmBarSelection::PrintRecord() {
    if (lvwSelected->rowCount() == 0)
        return showFault(errorFault("There are No Items Selected!", "lvwItems"), this);
    guarded([this] { runFromPrintScreen(labelsOf(selectedCodes()), ReportTarget::Preview); });
}

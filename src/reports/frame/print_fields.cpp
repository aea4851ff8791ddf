#include "reports/frame/print_fields.h"

#include "foundation/session.h"
#include "masters/field_widths.h"
#include "masters/frmContactFound.h"
#include "masters/frmFound.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/form.h"
#include "platform/ui/text_box.h"

#include <QPointer>
#include <QTimer>

namespace {
// The records that a picker lists.
struct Records {
    const char* table;
    const char* key;
    void (*open)(const QString& typed, const QString& filter, GridPicker::Pick pick);
};

constexpr Records contacts{"tblContactMaster", "ContactID",
                           [](const QString& typed, const QString& filter, GridPicker::Pick pick) {
                               openContactFound(StoreConnection(), typed, filter, std::move(pick));
                           }};
constexpr Records items{"tblItemMaster", "ItemCode",
                        [](const QString& typed, const QString& filter, GridPicker::Pick pick) {
                            openItemFound(StoreConnection(), typed, filter, std::move(pick));
                        }};

struct Picker {
    const Records* records = nullptr;
    const char* column = nullptr;  // that the field holds
    const char* filter = nullptr;  // null: that of the kind
    int capacity = width::description;
    const char* search = nullptr;  // the words of its button
};

// In the order of PickedFrom.
constexpr Picker pickers[] = {
    {},
    {&contacts, "ContactName", "", width::contactName, "Search Contact Database"},
    {&contacts, "ContactName", "C", width::contactName, "Search Customer Database"},
    {&contacts, "ContactName", "S", width::contactName, "Search Supplier Database"},
    {&contacts, "ContactName", nullptr, width::contactName, "Search Contact Database"},
    {&items, "ItemCode", "P", width::itemCode, "Search Item by Code"},
    {&items, "Description", "D", width::description, "Search Item by Description"}};

const Picker& pickerOf(const PrintField& field) { return pickers[static_cast<int>(field.picker)]; }

constexpr const char* supplierKind = "P";

QString filterOf(const Picker& picker, const QString& kind) {
    if (picker.filter) return picker.filter;
    return kind == supplierKind ? "S" : "C";
}

bool isStop(const QWidget* widget, const QWidget* screen) {
    return (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() && widget->isVisibleTo(screen) &&
           screen->isAncestorOf(widget);
}

void prepare(TextBox* box, const PrintField& field) {
    box->setKeyFilter(keys::freeText());
    box->setCapacity(pickerOf(field).capacity);
    box->setPlaceholderText(field.whenEmpty);
}
}  // namespace

PrintFields::PrintFields(const QList<PrintField>& fields) {
    setLayout(new QGridLayout);
    grid()->setContentsMargins({});
    grid()->setColumnStretch(1, 1);
    for (const PrintField& field : fields) addRow(field);
}

QGridLayout* PrintFields::grid() const { return static_cast<QGridLayout*>(layout()); }

static TextBox* textBox(const PrintField& field) {
    TextBox* box = field.shown ? readOnlyBox(field.name) : new TextBox(field.name);
    if (field.shown) box->setText(field.shown());
    return box;
}

void PrintFields::addRow(const PrintField& field) {
    auto* combo = QString(field.name).startsWith("cbo") ? new ComboBox(field.name, ComboBox::Open) : nullptr;
    TextBox* box = combo ? combo->box() : textBox(field);
    QWidget* control = combo ? static_cast<QWidget*>(combo) : box;
    control->setMinimumWidth(form::charactersWide(control, 40));
    const int line = static_cast<int>(rows_.size());
    Row& row = rows_.emplace_back(Row{field, control, box, form::label(field.caption, control)});
    grid()->addWidget(row.caption, line, 0);
    grid()->addWidget(control, line, 1);
    if (!field.shown) prepare(box, field);
    if (field.search) addSearch(row, line);
    if (field.picker != PickedFrom::Nothing) combo ? watch(combo, row) : watch(box, row);
    if (!combo) return;
    // The list of the box is the search itself; it opens when the box is done with its key or click.
    combo->setFiller([this, &row] { QTimer::singleShot(0, this, [this, &row] { pick(row); }); });
}

void PrintFields::addSearch(Row& row, int line) {
    row.search = form::imageButton(row.field.search, "search", pickerOf(row.field).search);
    connect(row.search, &QToolButton::clicked, this, [this, &row] { pick(row); });
    grid()->addWidget(row.search, line, 2);
}

template <typename Control>
void PrintFields::watch(Control* control, Row& row) {
    connect(control, &Control::keyTyped, this, [this, &row] { type(row); });
    connect(control, &Control::entered, this, [this, &row] { enter(row); });
    connect(control, &Control::focusLost, this, [this, &row] { leave(row); });
}

void PrintFields::setKind(const QString& kind) {
    kind_ = kind;
    for (const Row& row : rows_) {
        const char* ofSupplier = kind == supplierKind ? row.field.captionOfSupplier : nullptr;
        row.caption->setText(ofSupplier ? ofSupplier : row.field.caption);
    }
}

void PrintFields::addTo(PrintRequest& request) {
    for (Row& row : rows_)
        if (row.isTyped) complete(row);
    for (const Row& row : rows_)
        if (row.field.typed) request.*row.field.typed = trim(row.box->text());
}

// Another record is typed: what the other fields show is not its own.
void PrintFields::type(Row& row) {
    row.isTyped = true;
    for (const Row& other : rows_)
        if (&other != &row && pickerOf(other.field).records == pickerOf(row.field).records)
            other.box->clear();
}

void PrintFields::enter(Row& row) {
    guarded([&] {
        const bool isAll = row.field.whenEmpty && trim(row.box->text()).isEmpty();
        isAll || complete(row) ? goOn(row) : pick(row);
    });
}

void PrintFields::leave(Row& row) {
    if (row.isTyped) guarded([&] { complete(row); });
}

// The record that bears what is typed, the one of the lowest key, fills its fields. False: there is none.
bool PrintFields::complete(Row& row) {
    const QString typed = trim(row.box->text());
    if (typed.isEmpty()) return false;
    const Picker& picker = pickerOf(row.field);
    const Recordset found =
        StoreConnection().execute({QString("SELECT * FROM %1 WHERE %2 = ? ORDER BY %3")
                                       .arg(picker.records->table, picker.column, picker.records->key),
                                   {typed}});
    if (found.eof()) return false;
    take(row, [&](const QString& column) { return found.trimmed(column); });
    return true;
}

void PrintFields::pick(Row& row) {
    const Picker& picker = pickerOf(row.field);
    const QPointer<PrintFields> fields(this);
    picker.records->open(trim(row.box->text()), filterOf(picker, kind_),
                         [fields, &row](const GridPicker::Row& value) {
                             if (!fields) return;
                             fields->take(row, value);
                             fields->goOn(row);
                         });
}

void PrintFields::take(const Row& row, const Value& value) {
    const Records* records = pickerOf(row.field).records;
    for (Row& other : rows_) {
        if (pickerOf(other.field).records != records) continue;
        other.box->setText(value(pickerOf(other.field).column));
        other.isTyped = false;
    }
}

void PrintFields::goOn(const Row& row) {
    const QWidget* screen = parentWidget();
    QWidget* const last = row.search ? row.search : row.control;
    for (QWidget* next = last->nextInFocusChain(); next != last; next = next->nextInFocusChain())
        if (isStop(next, screen) && next != row.box) return next->setFocus(Qt::TabFocusReason);
}

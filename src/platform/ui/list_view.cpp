#include "platform/ui/list_view.h"

#include "platform/ui/column_header.h"
#include "platform/ui/desk_memory.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/list_hand.h"
#include "platform/ui/list_look.h"
#include "platform/ui/text_list_model.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>

ListView::ListView(const QString& name, const QList<ListColumn>& columns, QWidget* parent)
    : QTreeView(parent), model_(new TextListModel(columns, this)) {
    setObjectName(name);
    setModel(model_);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    auto* headings = new ColumnHeader(this);
    setHeader(headings);
    headings->setSectionsClickable(true);
    headings->setColumns(columns);
    list_look::dress(this);
    connectSignals();
}

void ListView::connectSignals() {
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { emit rowDoubleClicked(index.row()); });
    connect(model_, &TextListModel::dataChanged, this, [this](auto&, auto&, const QList<int>& roles) {
        if (roles.contains(Qt::CheckStateRole)) emit marksChanged();
    });
    connect(header(), &QHeaderView::sectionClicked, this, &ListView::sortBy);
}

void ListView::setHeadings(const QStringList& headings) { model_->setHeadings(headings); }

int ListView::rowCount() const { return model_->rowCount(); }
QList<QStringList> ListView::rows() const { return model_->rows(); }
QStringList ListView::row(int row) const { return model_->rows().value(row); }
QString ListView::text(int row, int column) const { return this->row(row).value(column); }
void ListView::setText(int row, int column, const QString& text) { model_->setText(row, column, text); }

void ListView::setRows(const QList<QStringList>& rows) {
    model_->setRows(rows);
    forgetSort();
    if (keepsSort_) sortAsKept();
}

void ListView::sortAsKept() {
    const int kept = desk_memory::keptSort(this);
    if (kept == 0 || std::abs(kept) > model_->columnCount()) return;
    sort(std::abs(kept) - 1, kept > 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
}

// New rows stand in their own order, so that no arrow points at a column.
void ListView::forgetSort() {
    sortedColumn_ = -1;
    order_ = Qt::AscendingOrder;
    header()->setSortIndicatorShown(false);
}

void ListView::removeRow(int row) { model_->removeRow(row); }
void ListView::clear() { setRows({}); }

int ListView::addRow(const QStringList& texts) {
    model_->insertRow(rowCount(), texts);
    return rowCount() - 1;
}

void ListView::insertRow(int row, const QStringList& texts) { model_->insertRow(row, texts); }

int ListView::currentRow() const { return currentIndex().isValid() ? currentIndex().row() : -1; }

void ListView::setCurrentRow(int row) {
    const QModelIndex index = model_->index(row, 0);
    setCurrentIndex(index);
    if (index.isValid()) scrollTo(index);
}

int ListView::findRow(int column, const QString& text) const {
    const auto& all = model_->rows();
    for (int row = 0; row < all.size(); ++row)
        if (all.at(row).value(column).compare(text, Qt::CaseInsensitive) == 0) return row;
    return -1;
}

void ListView::showMarks() { model_->showMarks(); }

bool ListView::isMarked(int row) const { return model_->isMarked(row); }
void ListView::setMarked(int row, bool marked) { model_->setMarked(row, marked); }
void ListView::setAllMarked(bool marked) { model_->setAllMarked(marked); }

QList<int> ListView::markedRows() const {
    QList<int> marked;
    for (int row = 0; row < rowCount(); ++row)
        if (isMarked(row)) marked += row;
    return marked;
}

void ListView::toggleSort(int column) {
    const bool again = column == sortedColumn_ && order_ == Qt::AscendingOrder;
    sort(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ListView::sort(int column, Qt::SortOrder order) {
    order_ = order;
    sortedColumn_ = column;
    model_->sort(column, order_);
    header()->setSortIndicatorShown(true);
    header()->setSortIndicator(column, order_);
    if (currentIndex().isValid()) scrollTo(currentIndex());
}

Qt::SortOrder ListView::sortOrder() const { return order_; }
int ListView::sortedColumn() const { return sortedColumn_; }
void ListView::setSortsByHeader(bool sorts) { sortsByHeader_ = sorts; }
void ListView::keepSort() { sortsByHeader_ = keepsSort_ = true; }

QSize ListView::sizeHint() const { return static_cast<const ColumnHeader*>(header())->listSize(this); }

void ListView::sortBy(int column) {
    if (column >= model_->columnCount()) return;
    if (sortsByHeader_) toggleSort(column);
    if (keepsSort_) desk_memory::keepSort(this, order_ == Qt::AscendingOrder ? column + 1 : -column - 1);
    emit headerClicked(column);
}

void ListView::contextMenuEvent(QContextMenuEvent* event) {
    QList<list_hand::Key> keys;
    if (waitsFor(&ListView::entered)) keys += {Qt::Key_Return, "Open"};
    if (waitsFor(&ListView::insertPressed)) keys += {Qt::Key_Insert, "Add"};
    if (waitsFor(&ListView::editPressed)) keys += {Qt::Key_F2, "Edit"};
    if (waitsFor(&ListView::deletePressed)) keys += {Qt::Key_Delete, "Delete"};
    if (model_->showsMarks()) keys += {Qt::Key_Space, "Mark"};
    list_hand::showMenu(this, keys, sortsByHeader_, event->globalPos());
}

// A key that nobody waits for goes on to the screen.
void ListView::keyPressEvent(QKeyEvent* event) {
    const int sorted = sortsByHeader_ ? list_hand::sortColumn(event) : -1;
    if (sorted >= 0) return sortBy(sorted);
    if (event->matches(QKeySequence::Copy)) return list_hand::copyRows(this);
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    const int key = plain ? event->key() : 0;
    const bool enter = isEnterKey(key);
    if (key == Qt::Key_Space && model_->showsMarks())
        setMarked(currentRow(), !isMarked(currentRow()));
    else if (enter && waitsFor(&ListView::entered))
        emit entered(currentRow());
    else if (key == Qt::Key_Insert && waitsFor(&ListView::insertPressed))
        emit insertPressed();
    else if (key == Qt::Key_Delete && waitsFor(&ListView::deletePressed))
        emit deletePressed();
    else if (key == Qt::Key_F2 && waitsFor(&ListView::editPressed))
        emit editPressed();
    else if (enter || event->key() == Qt::Key_Insert || event->key() == Qt::Key_Delete)
        event->ignore();
    else
        QTreeView::keyPressEvent(event);
}

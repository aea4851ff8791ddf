#include "platform/ui/data_grid.h"

#include "platform/ui/boxes.h"
#include "platform/ui/column_header.h"
#include "platform/ui/desk_memory.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/grid_model.h"
#include "platform/ui/list_hand.h"
#include "platform/ui/list_look.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <algorithm>

DataGrid::DataGrid(const QString& name, const QString& dataControlName, const QList<GridColumn>& columns,
                   QWidget* parent)
    : QTableView(parent), model_(new GridModel(columns, this)) {
    setObjectName(name);
    model_->setObjectName(dataControlName);
    setModel(model_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    auto* headings = new ColumnHeader(this);
    setHorizontalHeader(headings);
    headings->setSectionsClickable(true);
    headings->setColumns(columns);
    setUpHeaders();
    list_look::dress(this);
    connect(this, &QTableView::doubleClicked, this, &DataGrid::picked);
    connect(model_, &GridModel::ownRowsAdded, this,
            [this] { guarded([this] { keepPlace([this] { model_->runAgain(); }); }); });
    connect(
        model_, &GridModel::failed, this, [](const QString& text) { showBox(exclamation("Error...", text)); },
        Qt::QueuedConnection);
}

void DataGrid::setUpHeaders() {
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(list_look::rowHeight(this));
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &DataGrid::headerClicked);
    connect(this, &DataGrid::headerClicked, this,
            [this](int column) { desk_memory::keepSort(this, column + 1); });
}

void DataGrid::setSource(Connection& store, const Source& source, Place place) {
    if (place == Place::Kept) return keepPlace([&] { model_->setSource(store, source); });
    model_->setSource(store, source);
    if (!isEmpty()) selectRow(0);
}

void DataGrid::followOwnChanges() { model_->followOwnChanges(); }

// A marked row that has gone leaves its place to the next one.
void DataGrid::keepPlace(const std::function<void()>& query) {
    const int row = currentRow();
    const qint64 current = model_->key(row);
    const qint64 top = model_->key(rowAt(0));
    query();
    if (isEmpty()) return;
    const int found = model_->place(current);
    selectRow(found >= 0 ? found : std::min(row, model_->rowCount() - 1));
    scrollTo(model_->index(std::max(model_->place(top), 0), std::max(columnAt(0), 0)), PositionAtTop);
}

void DataGrid::clearRows() { model_->clearRows(); }
bool DataGrid::isEmpty() const { return model_->rowCount() == 0; }
qint64 DataGrid::recordCount() const { return model_->recordCount(); }
void DataGrid::fetchAll() { model_->fetchAll(); }

int DataGrid::currentRow() const { return currentIndex().isValid() ? currentIndex().row() : 0; }

bool DataGrid::hasCurrent() const { return !isEmpty() && !model_->isGone(currentRow()); }

QString DataGrid::currentText(const QString& column) const {
    return hasCurrent() ? model_->text(currentRow(), column) : QString();
}

void DataGrid::selectKey(const QString& column, const QString& value) {
    if (const int row = model_->find(column, value); row >= 0) selectRow(row);
}

void DataGrid::showOrder(const QString& order) {
    const int column = model_->orderedColumn(order);
    horizontalHeader()->setSortIndicatorShown(column >= 0);
    if (column >= 0) horizontalHeader()->setSortIndicator(column, Qt::AscendingOrder);
}

void DataGrid::keepOrder(const QString& order) {
    desk_memory::keepSort(this, model_->orderedColumn(order) + 1);
}

int DataGrid::keptColumn() const {
    const int column = desk_memory::keptSort(this) - 1;
    return column < model_->columnCount() ? std::max(column, -1) : -1;
}

QSize DataGrid::sizeHint() const {
    return static_cast<const ColumnHeader*>(horizontalHeader())->listSize(this);
}

void DataGrid::contextMenuEvent(QContextMenuEvent* event) {
    QList<list_hand::Key> keys;
    if (isSignalConnected(QMetaMethod::fromSignal(&DataGrid::picked))) keys += {Qt::Key_Return, "Open"};
    if (isSignalConnected(QMetaMethod::fromSignal(&DataGrid::deletePressed)))
        keys += {Qt::Key_Delete, "Delete"};
    const bool sorts = isSignalConnected(QMetaMethod::fromSignal(&DataGrid::headerClicked));
    list_hand::showMenu(this, keys, sorts, event->globalPos());
}

// A key that nobody waits for goes on to the screen.
void DataGrid::keyPressEvent(QKeyEvent* event) {
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    const bool toEnd = event->key() == Qt::Key_Home || event->key() == Qt::Key_End;
    const bool unshifted = !(event->modifiers() & ~(Qt::KeypadModifier | Qt::ControlModifier));
    const int sorted = list_hand::sortColumn(event);
    if (sorted >= 0 && sorted < model_->columnCount()) return emit headerClicked(sorted);
    if (event->matches(QKeySequence::Copy)) return list_hand::copyRows(this);
    if (isEnterKey(event->key())) {
        const bool waited = isSignalConnected(QMetaMethod::fromSignal(&DataGrid::picked));
        event->setAccepted(waited);
        emit picked();
    } else if (event->key() == Qt::Key_Delete) {
        event->setAccepted(plain && isSignalConnected(QMetaMethod::fromSignal(&DataGrid::deletePressed)));
        if (plain) emit deletePressed();
    } else if (unshifted && toEnd) {
        goToEnd(event->key() == Qt::Key_End);
    } else {
        QTableView::keyPressEvent(event);
    }
}

// Home and End go to the first and the last row of all, fetched or not.
void DataGrid::goToEnd(bool last) {
    if (last) model_->fetchMore({});
    if (!isEmpty()) selectRow(last ? model_->rowCount() - 1 : 0);
}

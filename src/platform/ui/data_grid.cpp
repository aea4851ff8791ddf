#include "platform/ui/data_grid.h"

#include "platform/ui/boxes.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/form.h"
#include "platform/ui/grid_model.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>

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
    setUpHeaders();
    form::setColumnWidths(horizontalHeader(), columns);
    connect(this, &QTableView::doubleClicked, this, &DataGrid::picked);
    connect(
        model_, &GridModel::failed, this, [](const QString& text) { showBox(exclamation("Error...", text)); },
        Qt::QueuedConnection);
}

void DataGrid::setUpHeaders() {
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 4 / 3);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setStretchLastSection(true);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &DataGrid::headerClicked);
}

void DataGrid::setSource(Connection& store, const Source& source) {
    model_->setSource(store, source);
    if (!isEmpty()) selectRow(0);
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
    if (const int row = model_->findFetched(column, value); row >= 0) selectRow(row);
}

QSize DataGrid::sizeHint() const { return form::listSize(this, horizontalHeader()); }

// A key that nobody waits for goes on to the screen.
void DataGrid::keyPressEvent(QKeyEvent* event) {
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (isEnterKey(event->key())) {
        const bool waited = isSignalConnected(QMetaMethod::fromSignal(&DataGrid::picked));
        event->setAccepted(waited);
        emit picked();
    } else if (event->key() == Qt::Key_Delete) {
        event->setAccepted(plain && isSignalConnected(QMetaMethod::fromSignal(&DataGrid::deletePressed)));
        if (plain) emit deletePressed();
    } else if (plain && (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)) {
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

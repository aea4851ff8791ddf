#include "platform/ui/grid_picker.h"

#include "platform/ui/boxes.h"
#include "platform/ui/column_header.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/list_look.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>

GridPicker::GridPicker(const QString& name, const QString& caption, const QList<GridColumn>& columns,
                       Pick pick)
    : ChildScreen(name, caption, FillsFrame, Popup),
      grid_(new DataGrid("dbgSearch", "adcSearch", columns)),
      columns_(columns),
      pick_(std::move(pick)) {
    grid_->setAccessibleName(caption);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(grid_);
    setFocusProxy(grid_);
    connect(grid_, &DataGrid::picked, this, &GridPicker::pickCurrent);
    connect(grid_, &DataGrid::headerClicked, this, &GridPicker::reorder);
}

void GridPicker::list(Connection& store, const DataGrid::Source& source, const QString& lookedFor) {
    store_ = &store;
    source_ = source;
    list_look::sayWhenEmpty(
        grid_, lookedFor.isEmpty() ? "There is nothing to choose from." : list_look::nothingFound(lookedFor));
    const int kept = grid_->keptColumn();
    const QString order = kept < 0 ? QString() : columns_.at(kept).order;
    if (!order.isEmpty()) source_.order = order;
    grid_->setSource(store, source_);
    grid_->showOrder(order);
}

QSize GridPicker::sizeHint() const {
    constexpr int mostRows = 20, fewestRows = 3;
    const auto* header = static_cast<const ColumnHeader*>(grid_->horizontalHeader());
    const int frame = 2 * grid_->frameWidth();
    const int rows = std::clamp(grid_->model()->rowCount(), fewestRows, mostRows);
    const QSize list(header->neededLength() + grid_->verticalScrollBar()->sizeHint().width() + frame,
                     header->sizeHint().height() + rows * list_look::rowHeight(grid_) + frame);
    return list.grownBy(layout()->contentsMargins() + contentsMargins());
}

void GridPicker::reorder(int column) {
    const QString& order = columns_.at(column).order;
    if (!store_ || order.isEmpty()) return;
    source_.order = order;
    guarded([&] {
        grid_->setSource(*store_, source_);
        grid_->showOrder(order);
    });
}

// The pick fills the opener, which moves the focus there; the popup is done with before that.
void GridPicker::pickCurrent() {
    if (done_ || !grid_->hasCurrent()) return;
    done_ = true;
    const QPointer<GridPicker> stillOpen = this;
    guarded([this] { pick_([this](const QString& column) { return grid_->currentText(column); }); });
    if (stillOpen) unload();
}

void GridPicker::deactivated() {
    if (!std::exchange(done_, true)) unload();
}

void GridPicker::keyPressEvent(QKeyEvent* event) {
    if (isEnterKey(event->key()))
        pickCurrent();
    else
        ChildScreen::keyPressEvent(event);
}

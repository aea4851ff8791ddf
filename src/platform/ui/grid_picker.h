#pragma once
#include "platform/ui/child_screen.h"
#include "platform/ui/data_grid.h"

// The base of the pickers: a popup with the grid dbgSearch. Enter anywhere or a double click picks the
// current row, hands it to the opener's function and unloads; Esc and the loss of the focus unload without a
// pick. It unloads once, however often the fill moves the focus.
class GridPicker : public ChildScreen {
    Q_OBJECT
  public:
    // Reads a column of the picked row.
    using Row = std::function<QString(const QString& column)>;
    using Pick = std::function<void(const Row& row)>;

    GridPicker(const QString& name, const QString& caption, const QList<GridColumn>& columns, Pick pick);

    // Lists the source; a click on a header lists it again in the order of the column, if it has one. Where
    // it lists nothing, the picker says what was looked for.
    void list(Connection& store, const DataGrid::Source& source, const QString& lookedFor);
    DataGrid* grid() const { return grid_; }
    // As wide as its columns, and as high as its rows, of which it shows twenty at most.
    QSize sizeHint() const override;

  protected:
    void deactivated() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void pickCurrent();
    void reorder(int column);

    DataGrid* grid_;
    QList<GridColumn> columns_;
    Pick pick_;
    Connection* store_ = nullptr;
    DataGrid::Source source_;
    bool done_ = false;
};

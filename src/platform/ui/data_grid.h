#pragma once
#include "platform/store/connection.h"

#include <QTableView>
#include <functional>

// One column of a data grid: a heading over a column of the query, shown through a mask.
struct GridColumn {
    QString heading;
    QString column;
    enum Kind { Text, Amount, Price, Count, Date, DateTime, Flag } kind = Text;
    int characters = 14;  // usable width, in average characters of the font
    QString order = {};   // " ORDER BY RefNo ASC": what a click on the heading gives; empty: the screen's own
};

class GridModel;

// A data grid with its data control: a snapshot of a query that fetches as it scrolls. The first
// screenful is one query with a limit; scrolling leaves out and repeats no row. Rows are one-lined, read
// only, selected whole.
class DataGrid : public QTableView {
    Q_OBJECT
  public:
    DataGrid(const QString& name, const QString& dataControlName, const QList<GridColumn>& columns,
             QWidget* parent = nullptr);

    // Runs "select from where order" and shows it from the top. keyTable is the table whose rows the query
    // lists, one row of the query for each of its rows. Throws StoreError, keeping what it showed.
    struct Source {
        QString columns;   // "tblSalesMaster.*, tblContactMaster.ContactName"
        QString from;      // "tblContactMaster INNER JOIN tblSalesMaster ON ..."
        QString keyTable;  // "tblSalesMaster"
        Sql where;         // " WHERE RefNo = ?", or empty
        QString order;     // " ORDER BY RefNo ASC", or empty: the store's order
    };
    // Kept: the marked row and the scroll place stay, as far as their rows are still listed.
    enum class Place : quint8 { Top, Kept };
    void setSource(Connection& store, const Source& source, Place place = Place::Top);
    // What this program itself writes to the listed rows shows at once, in their places; what others write
    // comes with the next query.
    void followOwnChanges();
    void clearRows();

    bool isEmpty() const;
    qint64 recordCount() const;  // of the whole query, counted when asked
    // The current row of the data control: the selected one, the first one until a person moves.
    bool hasCurrent() const;
    // Of any column of the query, trimmed; a column that the grid shows, as it shows it. Empty with no row,
    // and for a row that has gone from the store since.
    QString currentText(const QString& column) const;
    // Goes to the row of the key table with this value, fetched or not; stays where there is none.
    void selectKey(const QString& column, const QString& value);
    // The arrow over the column that this order names first, " ORDER BY RefNo ASC"; none without one.
    void showOrder(const QString& order);
    // For the next time that its screen opens: the heading that was clicked last, or the column that this
    // order names first; none without one.
    void keepOrder(const QString& order);
    int keptColumn() const;  // -1: none
    void fetchAll();         // for tests and exports

    QSize sizeHint() const override;

  signals:
    void picked();  // double click or Enter on a row
    void headerClicked(int column);
    void deletePressed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void setUpHeaders();
    int currentRow() const;
    void goToEnd(bool last);
    void keepPlace(const std::function<void()>& query);

    GridModel* model_;
};

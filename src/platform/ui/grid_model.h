#pragma once
#include "platform/store/row_watch.h"
#include "platform/ui/data_grid.h"

#include <QAbstractTableModel>
#include <map>
#include <memory>
#include <set>

// The rows of a query, fetched once each. The first page is one query with a limit. When a person scrolls
// beyond it, one query reads the keys of all rows in their order, and the pages are then fetched by key as
// they come into view: rows that are written meanwhile are neither repeated nor left out, and a row that has
// gone stands empty and grey in its place.
class GridModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    static constexpr int pageRows = 100;

    GridModel(const QList<GridColumn>& columns, QObject* parent);

    void setSource(Connection& store, const DataGrid::Source& source);
    void clearRows();
    // The same query once more. Throws StoreError.
    void runAgain() { setSource(*store_, source_); }
    // From the next query on, what this program itself writes to the rows shows in their places.
    void followOwnChanges() { follows_ = true; }
    void fetchAll();
    qint64 recordCount() const;
    bool isGone(int row) const;  // fetches the row when it is not there yet
    QString text(int row, const QString& column) const;
    int find(const QString& column, const QString& value);  // the row of the key table's column; -1: none
    qint64 key(int row) const;                              // of the key table; -1 with no such row
    int place(qint64 key);                                  // its row; -1: none
    int orderedColumn(const QString& order) const;          // -1: it names none of the columns

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

  signals:
    void failed(const QString& text);  // a page could not be read; its rows stand empty
    void ownRowsAdded();               // where they stand only the query knows

  private:
    enum class State : quint8 { Waiting, Fetched, Gone };
    struct Row {
        qint64 key = 0;
        State state = State::Waiting;
        int page = -1;  // of the sets below, and the place in it
        int place = 0;
    };
    static Sql firstPage(const DataGrid::Source& source, const QString& key);
    Sql keysOf(const DataGrid::Source& source) const;
    Sql pageOf(const std::vector<int>& rows) const;
    QString shown(const Row& row, const GridColumn& column) const;
    QString countText(const Recordset& row, const QString& column) const;
    QString plainText(const Recordset& row, const QString& column) const;
    bool isDeclared(const QString& column, const QString& type) const;
    const Recordset& at(const Row& row) const;
    std::vector<Row> rowsOf(Recordset page, int pageNumber) const;
    void appendMissing(Recordset keys);
    int loadedPlace(qint64 key) const;
    void note(RowWatch::Change change, qint64 key);
    void takeChanges();
    void fetchAgain(const std::map<qint64, RowWatch::Change>& changed);
    void removeGone(const std::map<qint64, RowWatch::Change>& changed);
    void fetchPage(int row);
    void fetchRows(const std::vector<int>& rows);
    void fetchWanted();
    void want(int row) const;
    QVariant foreground(const Row& row) const;

    QList<GridColumn> columns_;
    Connection* store_ = nullptr;
    DataGrid::Source source_;
    QString key_;                    // the key table's key, with its table
    QHash<QString, QString> types_;  // of the key table's columns
    std::vector<Row> rows_;
    mutable std::vector<Recordset> pages_;
    mutable std::set<int> wanted_;
    bool complete_ = true;  // rows_ has the keys of the whole query
    bool follows_ = false;
    std::unique_ptr<RowWatch> watch_;
    std::map<qint64, RowWatch::Change>
        changed_;  // what this program has written and the rows do not show yet
};

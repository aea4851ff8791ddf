#pragma once
#include "platform/ui/data_grid.h"

#include <QAbstractTableModel>
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
    void fetchAll();
    qint64 recordCount() const;
    bool isGone(int row) const;  // fetches the row when it is not there yet
    QString text(int row, const QString& column) const;
    int findFetched(const QString& column, const QString& value) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

  signals:
    void failed(const QString& text);  // a page could not be read; its rows stand empty

  private:
    enum class State : quint8 { Waiting, Fetched, Gone };
    struct Row {
        qint64 key = 0;
        State state = State::Waiting;
        int page = -1;  // of the sets below, and the place in it
        int place = 0;
    };
    Sql firstPage(const DataGrid::Source& source) const;
    Sql keysOf(const DataGrid::Source& source) const;
    Sql pageOf(const std::vector<int>& rows) const;
    QString shown(const Row& row, const GridColumn& column) const;
    QString countText(const Recordset& row, const QString& column) const;
    QString plainText(const Recordset& row, const QString& column) const;
    bool isDeclared(const QString& column, const QString& type) const;
    const Recordset& at(const Row& row) const;
    std::vector<Row> rowsOf(Recordset page, int pageNumber) const;
    void appendMissing(Recordset keys);
    void fetchPage(int row);
    void fetchRows(const std::vector<int>& rows);
    void fetchWanted();
    void want(int row) const;
    QVariant foreground(const Row& row) const;

    QList<GridColumn> columns_;
    Connection* store_ = nullptr;
    DataGrid::Source source_;
    QHash<QString, QString> types_;  // of the key table's columns
    std::vector<Row> rows_;
    mutable std::vector<Recordset> pages_;
    mutable std::set<int> wanted_;
    bool complete_ = true;  // rows_ has the keys of the whole query
};

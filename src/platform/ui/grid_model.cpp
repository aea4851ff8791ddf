#include "platform/ui/grid_model.h"

#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/store/place.h"
#include "platform/ui/shown_text.h"

#include <QApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QTimer>
#include <algorithm>
#include <unordered_set>

static const QString keyColumn = "GridRowKey";

GridModel::GridModel(const QList<GridColumn>& columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(columns) {}

static QString keyedColumns(const DataGrid::Source& source, const QString& key) {
    return "SELECT " + key + " AS " + keyColumn + ", " + source.columns + " FROM " + source.from;
}

// Rows that are equal to the query stand in the order of their keys, on every engine.
static QString fullOrder(const QString& order, const QString& key) {
    if (order.isEmpty()) return " ORDER BY " + key;
    return order + ", " + key + (order.endsWith(" DESC") ? " DESC" : "");
}

// The limit is a bound value: the engine would sort every row rather than walk an index of the joined table
// for a limit that it knows beforehand to be small.
Sql GridModel::firstPage(const DataGrid::Source& source, const QString& key) {
    return Sql(keyedColumns(source, key)) + source.where +
           Sql(fullOrder(source.order, key) + " LIMIT ?", {pageRows});
}

Sql GridModel::keysOf(const DataGrid::Source& source) const {
    return Sql("SELECT " + key_ + " AS " + keyColumn + " FROM " + source.from) + source.where +
           Sql(fullOrder(source.order, key_));
}

// Always as many marks as a page has rows, so that the store prepares the statement once.
Sql GridModel::pageOf(const std::vector<int>& rows) const {
    QStringList marks;
    QVariantList keys;
    for (size_t i = 0; i < pageRows; ++i) {
        marks += "?";
        keys += rows_[static_cast<size_t>(rows[std::min(i, rows.size() - 1)])].key;
    }
    return {keyedColumns(source_, key_) + " WHERE " + key_ + " IN (" + marks.join(u',') + u')', keys};
}

std::vector<GridModel::Row> GridModel::rowsOf(Recordset page, int pageNumber) const {
    std::vector<Row> rows;
    for (int place = 0; !page.eof(); page.moveNext(), ++place)
        rows.push_back({page.integer(keyColumn), State::Fetched, pageNumber, place});
    return rows;
}

void GridModel::setSource(Connection& store, const DataGrid::Source& source) {
    const QString key = source.keyTable + u'.' + keyOf(store, source.keyTable);
    const Recordset page = store.execute(firstPage(source, key));
    // Everything that can fail, before anything is changed: painting must not.
    if (!page.eof())
        for (const GridColumn& column : columns_) page.isNull(column.column);
    const auto types = store.columnTypes(source.keyTable);
    std::vector<Row> rows = rowsOf(page, 0);
    beginResetModel();
    store_ = &store;
    source_ = source;
    key_ = key;
    types_ = types;
    rows_ = std::move(rows);
    pages_ = {page};
    wanted_.clear();
    changed_.clear();
    complete_ = rows_.size() < pageRows;
    endResetModel();
    if (follows_)
        watch_ = std::make_unique<RowWatch>(
            store, source.keyTable, [this](RowWatch::Change change, qint64 row) { note(change, row); });
}

void GridModel::clearRows() {
    beginResetModel();
    rows_.clear();
    pages_.clear();
    wanted_.clear();
    complete_ = true;
    endResetModel();
}

bool GridModel::canFetchMore(const QModelIndex& parent) const { return !parent.isValid() && !complete_; }

void GridModel::fetchMore(const QModelIndex& parent) {
    if (!canFetchMore(parent)) return;
    // Before the read, which may let the window live while it waits: one read is enough.
    complete_ = true;
    try {
        appendMissing(store_->execute(keysOf(source_)));
    } catch (const std::exception& error) {
        emit failed(QString::fromUtf8(error.what()));
    }
}

void GridModel::appendMissing(Recordset keys) {
    std::unordered_set<qint64> shownAlready;
    for (const Row& row : rows_) shownAlready.insert(row.key);
    std::vector<Row> more;
    more.reserve(static_cast<size_t>(keys.rowCount()));
    for (; !keys.eof(); keys.moveNext())
        if (const qint64 key = keys.integer(keyColumn); !shownAlready.contains(key)) more.push_back({key});
    if (more.empty()) return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(more.size()) - 1);
    rows_.insert(rows_.end(), more.begin(), more.end());
    endInsertRows();
}

void GridModel::fetchAll() {
    fetchMore({});
    for (int row = 0; row < rowCount(); ++row)
        if (rows_[static_cast<size_t>(row)].state == State::Waiting) fetchPage(row);
}

// The rows around this one that are still to be fetched, a page at most.
void GridModel::fetchPage(int row) {
    const int first = row / pageRows * pageRows;
    const int last = std::min(first + pageRows, rowCount());
    std::vector<int> rows;
    for (int i = first; i < last; ++i)
        if (rows_[static_cast<size_t>(i)].state == State::Waiting) rows.push_back(i);
    if (rows.empty()) return;
    try {
        fetchRows(rows);
    } catch (const std::exception& error) {
        for (const int i : rows) rows_[static_cast<size_t>(i)].state = State::Gone;
        emit failed(QString::fromUtf8(error.what()));
    }
    emit dataChanged(index(rows.front(), 0), index(rows.back(), columnCount() - 1));
}

void GridModel::fetchRows(const std::vector<int>& rows) {
    const Recordset page = store_->execute(pageOf(rows));
    QHash<qint64, Row> found;
    for (const Row& row : rowsOf(page, static_cast<int>(pages_.size()))) found.insert(row.key, row);
    pages_.push_back(page);
    for (const int i : rows) {
        Row& row = rows_[static_cast<size_t>(i)];
        row = found.value(row.key, {row.key, State::Gone});
    }
}

// Within a statement of the store, which is no time to read it.
void GridModel::note(RowWatch::Change change, qint64 key) {
    if (changed_.empty()) QTimer::singleShot(0, this, &GridModel::takeChanges);
    RowWatch::Change& known = changed_.try_emplace(key, change).first->second;
    if (known != RowWatch::Added) known = change;
}

// Once the unit that wrote them has ended, whichever way.
void GridModel::takeChanges() {
    constexpr int whileBusy = 50;
    if (changed_.empty()) return;
    if (store_->inTransaction()) return QTimer::singleShot(whileBusy, this, &GridModel::takeChanges);
    const auto changed = std::exchange(changed_, {});
    const bool added =
        std::ranges::any_of(changed, [](const auto& row) { return row.second == RowWatch::Added; });
    if (added) return emit ownRowsAdded();
    try {
        fetchAgain(changed);
        removeGone(changed);
    } catch (const std::exception& error) {
        emit failed(QString::fromUtf8(error.what()));
    }
}

// A row that still waits to be fetched will come as it is then.
void GridModel::fetchAgain(const std::map<qint64, RowWatch::Change>& changed) {
    std::vector<int> rows;
    const auto fetch = [&] {
        fetchRows(rows);
        for (const int row : rows) emit dataChanged(index(row, 0), index(row, columnCount() - 1));
        rows.clear();
    };
    for (int row = 0; row < rowCount(); ++row) {
        const Row& known = rows_[static_cast<size_t>(row)];
        const auto found = changed.find(known.key);
        if (found == changed.end()) continue;
        if (known.state == State::Waiting && found->second != RowWatch::Deleted) continue;
        rows.push_back(row);
        if (rows.size() == pageRows) fetch();
    }
    if (!rows.empty()) fetch();
}

// What somebody else has deleted stays in its place: only a person's own rows go under their eyes.
void GridModel::removeGone(const std::map<qint64, RowWatch::Change>& changed) {
    for (int row = rowCount() - 1; row >= 0; --row) {
        const Row& known = rows_[static_cast<size_t>(row)];
        const auto found = changed.find(known.key);
        const bool deleted = found != changed.end() && found->second == RowWatch::Deleted;
        if (!deleted || known.state != State::Gone) continue;
        beginRemoveRows({}, row, row);
        rows_.erase(rows_.begin() + row);
        endRemoveRows();
    }
}

// Asked for while painting, which is no time to read the store: the page comes at the next turn.
void GridModel::want(int row) const {
    if (wanted_.empty())
        QTimer::singleShot(0, this, [self = const_cast<GridModel*>(this)] { self->fetchWanted(); });
    wanted_.insert(row / pageRows * pageRows);
}

void GridModel::fetchWanted() {
    for (const int row : std::exchange(wanted_, {}))
        if (row < rowCount()) fetchPage(row);
}

const Recordset& GridModel::at(const Row& row) const {
    Recordset& page = pages_[static_cast<size_t>(row.page)];
    page.moveFirst();
    for (int place = 0; place < row.place; ++place) page.moveNext();
    return page;
}

qint64 GridModel::recordCount() const {
    if (complete_ || !store_) return rowCount();
    return store_->execute(Sql("SELECT COUNT(*) AS Ihap FROM " + source_.from) + source_.where)
        .integer("Ihap");
}

bool GridModel::isGone(int row) const {
    if (row < 0 || row >= rowCount()) return true;
    const_cast<GridModel*>(this)->fetchPage(row);
    return rows_[static_cast<size_t>(row)].state != State::Fetched;
}

static const GridColumn* columnNamed(const QList<GridColumn>& columns, const QString& name) {
    for (const GridColumn& column : columns)
        if (column.column.compare(name, Qt::CaseInsensitive) == 0) return &column;
    return nullptr;
}

QString GridModel::text(int row, const QString& column) const {
    if (isGone(row)) return {};
    const Row& found = rows_[static_cast<size_t>(row)];
    const GridColumn* own = columnNamed(columns_, column);
    return trim(own ? shown(found, *own) : plainText(at(found), column));
}

int GridModel::orderedColumn(const QString& order) const {
    static const QRegularExpression words("\\W+");
    const QString first = order.section(u',', 0, 0);
    for (qsizetype i = 0; i < columns_.size(); ++i)
        if (first.split(words).contains(columns_.at(i).column, Qt::CaseInsensitive))
            return static_cast<int>(i);
    return -1;
}

qint64 GridModel::key(int row) const {
    return row < 0 || row >= rowCount() ? -1 : rows_[static_cast<size_t>(row)].key;
}

int GridModel::loadedPlace(qint64 key) const {
    const auto found = std::ranges::find(rows_, key, &Row::key);
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int GridModel::place(qint64 key) {
    if (key >= 0 && loadedPlace(key) < 0) fetchMore({});
    return loadedPlace(key);
}

int GridModel::find(const QString& column, const QString& value) {
    if (rows_.empty()) return -1;
    const Recordset found = store_->execute(
        {QString("SELECT %1 AS %2 FROM %3 WHERE %4 = ?").arg(key_, keyColumn, source_.keyTable, column),
         {value}});
    if (found.eof()) return -1;
    return place(found.integer(keyColumn));
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

bool GridModel::isDeclared(const QString& column, const QString& type) const {
    return types_.value(column.toLower()).contains(type);
}

// Counted things are whole numbers, or quantities of the currency type.
QString GridModel::countText(const Recordset& row, const QString& column) const {
    if (isDeclared(column, "CURRENCY")) return formatNumber(row.currency(column), mask::count);
    return formatCount(row.integer(column));
}

// A column that the grid does not show: a text as it is stored, amounts as plain digits.
QString GridModel::plainText(const Recordset& row, const QString& column) const {
    if (isDeclared(column, "CURRENCY")) return row.currency(column).toPlainText();
    if (isDeclared(column, "DATE")) return formatDate(row.date(column));
    return row.text(column);
}

QString GridModel::shown(const Row& row, const GridColumn& column) const {
    const Recordset& record = at(row);
    if (record.isNull(column.column)) return {};
    switch (column.kind) {
        case GridColumn::Amount:
            return formatNumber(record.currency(column.column), mask::amount);
        case GridColumn::Price:
            return formatNumber(record.currency(column.column), mask::price);
        case GridColumn::Count:
            return countText(record, column.column);
        case GridColumn::Date:
            return formatDate(record.date(column.column));
        case GridColumn::DateTime:
            return formatDateTime(record.dateTime(column.column));
        case GridColumn::Flag:
            return record.flag(column.column) ? "Yes" : "No";
        case GridColumn::Text:
            break;
    }
    return record.text(column.column);
}

static Qt::Alignment alignmentOf(const GridColumn& column) {
    const bool number = column.kind == GridColumn::Amount || column.kind == GridColumn::Price ||
                        column.kind == GridColumn::Count;
    return Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft);
}

QVariant GridModel::foreground(const Row& row) const {
    if (row.state != State::Gone) return {};
    return QApplication::palette().brush(QPalette::Disabled, QPalette::Text);
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount()) return {};
    const Row& row = rows_[static_cast<size_t>(index.row())];
    const GridColumn& column = columns_.at(index.column());
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(alignmentOf(column));
    if (role == Qt::ForegroundRole) return foreground(row);
    if (role != Qt::DisplayRole) return {};
    if (row.state == State::Waiting) want(index.row());
    if (row.state == State::Fetched) return shownText(shown(row, column));
    return row.state == State::Gone && index.column() == 0 ? QString("(gone)") : QString();
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columns_.size()) return {};
    if (role == Qt::DisplayRole) return columns_.at(section).heading;
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(alignmentOf(columns_.at(section)));
    return {};
}

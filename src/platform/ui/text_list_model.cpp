#include "platform/ui/text_list_model.h"

#include "platform/parsing.h"
#include "platform/ui/shown_text.h"

#include <QModelIndexList>

#include <numeric>

TextListModel::TextListModel(const QList<ListColumn>& columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(columns) {}

int TextListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TextListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

Qt::Alignment TextListModel::alignment(int column) const {
    const bool number = columns_.at(column).kind == ListColumn::Number;
    return Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft);
}

bool TextListModel::shows(int row, int column) const {
    return row >= 0 && row < rows_.size() && column >= 0 && column < columns_.size();
}

QVariant TextListModel::data(const QModelIndex& index, int role) const {
    if (!shows(index.row(), index.column())) return {};
    if (role == Qt::DisplayRole) return shownText(rows_.at(index.row()).at(index.column()));
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(alignment(index.column()));
    if (role == Qt::CheckStateRole && hasBox(index))
        return isMarked(index.row()) ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool TextListModel::hasBox(const QModelIndex& index) const {
    return showsMarks_ && index.column() == 0 && shows(index.row(), 0);
}

Qt::ItemFlags TextListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags plain = QAbstractTableModel::flags(index);
    return hasBox(index) ? plain | Qt::ItemIsUserCheckable : plain;
}

// The only thing of a row that a person changes in the list itself.
bool TextListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !hasBox(index)) return false;
    setMarked(index.row(), value.toInt() == Qt::Checked);
    return true;
}

void TextListModel::showMarks() {
    showsMarks_ = true;
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, 0));
}

void TextListModel::setMarked(int row, bool marked) {
    if (!shows(row, 0)) return;
    marks_[row] = marked;
    emit dataChanged(index(row, 0), index(row, 0), {Qt::CheckStateRole});
}

void TextListModel::setAllMarked(bool marked) {
    if (marks_.isEmpty()) return;
    marks_.fill(marked);
    emit dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
}

QVariant TextListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columns_.size()) return {};
    if (role == Qt::DisplayRole) return columns_.at(section).heading;
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(alignment(section));
    return {};
}

void TextListModel::setHeadings(const QStringList& headings) {
    const qsizetype count = std::min(headings.size(), columns_.size());
    for (qsizetype column = 0; column < count; ++column) columns_[column].heading = headings.at(column);
    emit headerDataChanged(Qt::Horizontal, 0, static_cast<int>(count) - 1);
}

QStringList TextListModel::wholeRow(QStringList texts) const {
    if (texts.size() != columns_.size()) texts.resize(columns_.size());
    return texts;
}

void TextListModel::setText(int row, int column, const QString& text) {
    if (!shows(row, column)) return;
    rows_[row][column] = text;
    emit dataChanged(index(row, column), index(row, column));
}

void TextListModel::insertRow(int row, const QStringList& texts) {
    beginInsertRows({}, row, row);
    rows_.insert(row, wholeRow(texts));
    marks_.insert(row, false);
    endInsertRows();
}

void TextListModel::setRows(const QList<QStringList>& rows) {
    beginResetModel();
    rows_.clear();
    rows_.reserve(rows.size());
    for (const QStringList& row : rows) rows_ += wholeRow(row);
    marks_.fill(false, rows_.size());
    endResetModel();
}

void TextListModel::removeRow(int row) {
    if (!shows(row, 0)) return;
    beginRemoveRows({}, row, row);
    rows_.removeAt(row);
    marks_.removeAt(row);
    endRemoveRows();
}

namespace {
// What a text sorts by. What is no number or date stands before all that are.
struct SortKey {
    qint64 value = std::numeric_limits<qint64>::min();
    QString text;
    bool operator<(const SortKey& other) const {
        if (value != other.value) return value < other.value;
        return QString::compare(text, other.text, Qt::CaseInsensitive) < 0;
    }
};

SortKey sortKey(const QString& text, ListColumn::Kind kind) {
    if (kind == ListColumn::Number)
        if (const auto number = parseNumber(text)) return {number->tenThousandths(), {}};
    if (kind == ListColumn::Date)
        if (const auto date = parseDate(text)) return {date->toJulianDay(), {}};
    return {std::numeric_limits<qint64>::min(), text};
}

template <typename T>
QList<T> inOrder(const QList<T>& values, const std::vector<int>& places) {
    QList<T> ordered;
    ordered.reserve(values.size());
    for (const int place : places) ordered += values.at(place);
    return ordered;
}
}  // namespace

// The rows' places in their new order; equal ones keep their order in both directions.
std::vector<int> TextListModel::sorted(int column, Qt::SortOrder order) const {
    std::vector<SortKey> keys;
    keys.reserve(static_cast<size_t>(rows_.size()));
    for (const QStringList& row : rows_) keys.push_back(sortKey(row.at(column), columns_.at(column).kind));
    std::vector<int> places(keys.size());
    std::iota(places.begin(), places.end(), 0);
    std::ranges::stable_sort(places, [&](int a, int b) {
        const SortKey& left = keys[static_cast<size_t>(a)];
        const SortKey& right = keys[static_cast<size_t>(b)];
        return order == Qt::AscendingOrder ? left < right : right < left;
    });
    return places;
}

void TextListModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columns_.size()) return;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> places = sorted(column, order);
    rows_ = inOrder(rows_, places);
    marks_ = inOrder(marks_, places);
    moveSelection(places);
    emit layoutChanged({}, VerticalSortHint);
}

// The selected row stays selected where it goes.
void TextListModel::moveSelection(const std::vector<int>& places) {
    std::vector<int> newPlace(places.size());
    for (size_t i = 0; i < places.size(); ++i) newPlace[static_cast<size_t>(places[i])] = static_cast<int>(i);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& old : before)
        after += index(newPlace[static_cast<size_t>(old.row())], old.column());
    changePersistentIndexList(before, after);
}

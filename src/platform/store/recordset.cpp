#include "platform/store/recordset.h"

#include "platform/parsing.h"
#include "platform/store/engine.h"

namespace {
[[noreturn]] void mismatch(const QString& column) {
    throw StoreError(StoreError::typeMismatch, "Data type mismatch in column " + column + u'.');
}

bool isText(const QVariant& value) { return value.metaType() == QMetaType::fromType<QString>(); }
bool isCurrency(const QVariant& value) { return value.metaType() == QMetaType::fromType<Currency>(); }
bool isMoment(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<QDate>() ||
           value.metaType() == QMetaType::fromType<QDateTime>();
}

Currency typedNumber(const QString& column, const QVariant& value) {
    const auto number = parseNumber(value.toString());
    if (!number) mismatch(column);
    return *number;
}

QVariant asCurrency(const QString& column, const QVariant& value) {
    if (isCurrency(value)) return value;
    if (isText(value)) return QVariant::fromValue(typedNumber(column, value));
    if (value.metaType() == QMetaType::fromType<double>())
        return QVariant::fromValue(Currency::fromDouble(value.toDouble()));
    if (!value.canConvert<qint64>()) mismatch(column);
    return QVariant::fromValue(Currency::fromInteger(value.toLongLong()));
}

QVariant asInteger(const QString& column, const QVariant& value) {
    if (!isCurrency(value) && !isText(value)) return value;
    const Currency number = isText(value) ? typedNumber(column, value) : value.value<Currency>();
    if (number.tenThousandths() % 10000 != 0) mismatch(column);
    return number.tenThousandths() / 10000;
}

QVariant asDate(const QString& column, const QVariant& value) {
    if (isMoment(value)) return value;
    const auto date = parseDate(value.toString());
    if (!date) mismatch(column);
    return *date;
}

QVariant asText(const QVariant& value) {
    return isCurrency(value) ? QVariant(value.value<Currency>().toPlainText()) : value;
}

// A value in the form that the column keeps.
QVariant normalised(const QString& column, ColumnKind kind, const QVariant& value) {
    if (!value.isValid()) return value;
    switch (kind) {
        case ColumnKind::Flag:
            return value.toBool();
        case ColumnKind::Currency:
            return asCurrency(column, value);
        case ColumnKind::Date:
            return asDate(column, value);
        case ColumnKind::Integer:
            return asInteger(column, value);
        default:
            return asText(value);
    }
}

// Dates are stored as "2026-01-31", with or without a time behind. Read here: Qt's reader costs a list of ten
// thousand rows a tenth of its time.
QDate dateOf(const QString& stored) {
    if (stored.size() < 10 || stored[4] != u'-' || stored[7] != u'-') return {};
    int numbers[3] = {};  // year, month, day
    int* number = numbers;
    for (const QChar character : QStringView(stored).first(10)) {
        if (character == u'-')
            ++number;
        else if (const int digit = character.unicode() - u'0'; digit >= 0 && digit <= 9)
            *number = *number * 10 + digit;
        else
            return {};
    }
    return {numbers[0], numbers[1], numbers[2]};
}

[[noreturn]] void noRow() {
    throw StoreError(StoreError::noCurrentRow,
                     "This record is no longer there. Another user may have deleted or renamed it.");
}
}  // namespace

int Recordset::columnIndex(const QString& column) const {
    if (!columns_) noRow();
    const QHash<QString, int>& positions = columns_->positions;
    auto found = positions.constFind(column);
    if (found == positions.constEnd()) found = positions.constFind(column.toLower());
    if (found == positions.constEnd())
        throw StoreError(StoreError::general, "There is no column " + column + u'.');
    return *found;
}

const QVariantList& Recordset::current() const {
    if (eof() || bof()) noRow();
    return rows_[static_cast<size_t>(position_)];
}

QVariant Recordset::value(const QString& column) const { return valueAt(columnIndex(column)); }

QVariant Recordset::valueAt(int index) const {
    for (const auto& [name, pending] : changes_)
        if (columnIndex(name) == index) return pending;
    return adding_ ? QVariant() : current()[index];
}

ColumnKind Recordset::kind(const QString& column) const {
    const int index = columnIndex(column);
    return columns_->kinds[index];
}

bool Recordset::isNull(const QString& column) const { return value(column).isNull(); }

QString Recordset::text(const QString& column) const { return value(column).toString(); }

QString Recordset::textAt(int column) const { return current().at(column).toString(); }

QString Recordset::trimmed(const QString& column) const { return trim(text(column)); }

Currency Recordset::currency(const QString& column) const {
    const int index = columnIndex(column);
    const ColumnKind kind = columns_->kinds[index];
    if (kind != ColumnKind::Currency && kind != ColumnKind::Unknown) mismatch(column);
    return Currency::fromTenThousandths(valueAt(index).toLongLong());
}

qint64 Recordset::integer(const QString& column) const {
    const int index = columnIndex(column);
    if (columns_->kinds[index] == ColumnKind::Currency) mismatch(column);
    return valueAt(index).toLongLong();
}

bool Recordset::flag(const QString& column) const { return integer(column) != 0; }

QDate Recordset::date(const QString& column) const { return dateOf(text(column)); }

QDateTime Recordset::dateTime(const QString& column) const {
    const QString stored = text(column);
    const QDate date = dateOf(stored);
    if (!date.isValid()) return {};
    const QTime time = QTime::fromString(stored.mid(11), Qt::ISODate);
    return {date, time.isValid() ? time : QTime(0, 0)};
}

void Recordset::addNew() {
    if (table_.isEmpty()) throw StoreError(StoreError::general, "The rows are read only.");
    adding_ = true;
    changes_.clear();
}

void Recordset::set(const QString& column, const QVariant& value) {
    if (table_.isEmpty()) throw StoreError(StoreError::general, "The rows are read only.");
    if (!adding_) current();
    const ColumnKind declared = columns_->kinds[columnIndex(column)];
    const QVariant stored = storedValue(normalised(column, declared, value));
    for (auto& [name, pending] : changes_)
        if (name.compare(column, Qt::CaseInsensitive) == 0) {
            pending = stored;
            return;
        }
    changes_.append({column, stored});
}

Sql Recordset::insertStatement() const {
    if (changes_.isEmpty()) return "INSERT INTO " + table_ + " DEFAULT VALUES";
    QString names;
    QString marks;
    QVariantList values;
    values.reserve(changes_.size());
    for (const auto& [name, value] : changes_) {
        const QLatin1String comma(names.isEmpty() ? "" : ", ");
        (names += comma) += name;
        (marks += comma) += u'?';
        values += value;
    }
    return {"INSERT INTO " + table_ + " (" + names + ") VALUES (" + marks + u')', values};
}

Sql Recordset::updateStatement() const {
    QStringList names;
    QVariantList values;
    for (const auto& [name, value] : changes_) {
        names += name + " = ?";
        values += value;
    }
    values += current()[0];
    return {
        QString("UPDATE %1 SET %2 WHERE %3 = ?").arg(table_, names.join(", "), keyOf(*connection_, table_)),
        values};
}

void Recordset::update() {
    if (adding_)
        insertRow();
    else if (!changes_.isEmpty())
        updateRow();
    adding_ = false;
    changes_.clear();
}

void Recordset::addLater() {
    connection_->runLater(insertStatement());
    adding_ = false;
    changes_.clear();
}

void Recordset::insertRow() {
    QVariantList row(columnCount_);
    connection_->requireUnit();
    row[0] = engineOf(*connection_).insert(insertStatement(), keyOf(*connection_, table_));
    keepChanges(row);
    rows_.push_back(row);
    moveLast();
}

void Recordset::updateRow() {
    if (connection_->run(updateStatement()) == 0) noRow();
    keepChanges(rows_[static_cast<size_t>(position_)]);
}

void Recordset::keepChanges(QVariantList& row) const {
    for (const auto& [name, value] : changes_) row[columnIndex(name)] = value;
}

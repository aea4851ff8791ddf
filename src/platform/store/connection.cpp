#include "platform/store/connection.h"

#include "platform/store/connection_private.h"
#include "platform/store/like.h"
#include "platform/store/schema_steps.h"
#include "platform/store/store_file.h"
#include "platform/store/transaction.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

Connection::Connection() : d_(std::make_unique<Private>()) {}

Connection::~Connection() = default;

void Connection::open(const QString& path, const QString& password) {
    close();
    requireWritableFile(path);
    try {
        d_->openFile(path, "rw");
        overrideLike(d_->engine());
        requireOwnStore(*this);
        requireWritable(*this);
        requirePassword(*this, password);
        setWorkingMode(*this);
        applySchemaSteps(*this);
        d_->leftMarks = OpenMark::leftBehind(path);
        d_->mark.emplace(path);
    } catch (...) {
        close();
        throw;
    }
}

void Connection::openToRead(const QString& path) {
    close();
    requireFile(path);
    try {
        d_->openFile(path, "ro");
        overrideLike(d_->engine());
        requireOwnStore(*this);
    } catch (...) {
        close();
        throw;
    }
}

bool Connection::wasLeftOpen() const { return !d_->leftMarks.isEmpty(); }

void Connection::settleLeftOpen() {
    for (const QString& mark : std::exchange(d_->leftMarks, {})) QFile::remove(mark);
}

void Connection::create(const QString& path, const QString& password) {
    close();
    if (QFileInfo::exists(path))
        throw StoreError(StoreError::general, QString("The file \"%1\" already exists.").arg(path));
    try {
        d_->openFile(path, "rwc");
        overrideLike(d_->engine());
        setWorkingMode(*this);
        markOwnStore(*this, password);
    } catch (...) {
        close();
        QFile::remove(path);
        throw;
    }
}

void Connection::close() { d_->shut(); }

bool Connection::isOpen() const { return !d_->name.isEmpty(); }

QString Connection::path() const { return d_->path; }

sqlite3* Connection::handle() const { return d_->engine(); }

Recordset Connection::execute(const Sql& statement) {
    requireUnit();
    const auto started = d_->start(statement);
    Recordset set;
    set.connection_ = this;
    set.columns_ = started->columns;
    set.columnCount_ = started->columnCount;
    set.rows_ = d_->readRows(*started);
    return set;
}

Recordset Connection::openTable(const QString& table, const Sql& where) {
    Recordset set;
    if (where.isEmpty()) {
        set.connection_ = this;
        set.columns_ = tableColumns(table);
        set.columnCount_ = static_cast<int>(columnTypes(table).size()) + 1;
    } else {
        set = execute(Sql("SELECT rowid AS \"#row\", * FROM " + table + u' ') + where);
    }
    set.table_ = table;
    return set;
}

qint64 Connection::run(const Sql& statement) {
    requireUnit();
    const auto started = d_->start(statement);
    const qint64 changed = started->query.numRowsAffected();
    started->query.finish();
    return changed;
}

void Connection::runMany(const QString& statement, const std::vector<QVariantList>& rows) {
    Transaction unit(*this);
    for (const QVariantList& row : rows) run({statement, row});
    unit.commit();
}

void Connection::requireUnit() const {
    if (depth_ > 0 && sqlite3_get_autocommit(handle()) != 0)
        throw StoreError(StoreError::general, "The store has undone this unit of work.");
}

qint64 Connection::lastRow() const { return sqlite3_last_insert_rowid(handle()); }

// The columns of a row of an updatable set: the row's number, then those of the table.
std::shared_ptr<const RecordsetColumns> Connection::tableColumns(const QString& table) {
    auto& known = d_->columns[table];
    if (known) return known;
    QStringList names{"#row"};
    QList<ColumnKind> kinds{ColumnKind::Integer};
    auto rows = execute({"SELECT name, type FROM pragma_table_info(?) ORDER BY cid", {table}});
    for (; !rows.eof(); rows.moveNext()) {
        names += rows.text("name");
        kinds += declaredKind(rows.text("type"));
    }
    return known = columnsOf(names, kinds);
}

const QHash<QString, QString>& Connection::columnTypes(const QString& table) {
    const QString key = table.toLower();
    const auto known = d_->types.constFind(key);
    if (known != d_->types.constEnd()) return *known;
    QHash<QString, QString> types;
    for (auto rows = execute({"SELECT name, type FROM pragma_table_info(?)", {table}}); !rows.eof();
         rows.moveNext())
        types.insert(rows.text("name").toLower(), rows.text("type").toUpper());
    if (types.isEmpty()) throw StoreError(StoreError::general, "no such table: " + table);
    return *d_->types.insert(key, types);
}

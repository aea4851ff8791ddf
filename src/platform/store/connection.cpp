#include "platform/store/connection.h"

#include "platform/store/connection_private.h"
#include "platform/store/file_engine.h"
#include "platform/store/schema_steps.h"
#include "platform/store/server_engine.h"
#include "platform/store/store_file.h"
#include "platform/store/transaction.h"

#include <QFile>
#include <QFileInfo>

void Connection::Private::openFile(const QString& path, const char* mode) {
    place = path;
    auto opened = std::make_unique<FileEngine>(path, mode);
    file = opened.get();
    engine = std::move(opened);
}

void Connection::Private::openServer(const QString& uri, const QString& password) {
    place = shownUri(uri);
    engine = std::make_unique<ServerEngine>(uri, password);
}

void Connection::Private::shut() {
    file = nullptr;
    engine.reset();
    types.clear();
    columns.clear();
    place.clear();
    leftMarks.clear();
    mark.reset();
}

Engine& Connection::Private::opened() const {
    if (!engine) throw StoreError(StoreError::general, "The store is not open.");
    return *engine;
}

FileEngine& Connection::Private::openedFile() const {
    opened();
    if (!file) throw StoreError(StoreError::general, "The store is not a file.");
    return *file;
}

Connection::Connection() : d_(std::make_unique<Private>()) {}

Connection::~Connection() = default;

static void openFileStore(Connection& store, const QString& password) {
    requireOwnStore(store);
    requireWritable(store);
    requirePassword(store, password);
    setWorkingMode(store);
    applySchemaSteps(store);
}

void Connection::open(const QString& place, const QString& password) {
    close();
    try {
        if (isServer(place)) {
            d_->openServer(place, password);
            requireOwnStore(*this);
            applySchemaSteps(*this);
            return;
        }
        requireWritableFile(place);
        d_->openFile(place, "rw");
        openFileStore(*this, password);
        d_->leftMarks = OpenMark::leftBehind(place);
        d_->mark.emplace(place);
    } catch (...) {
        close();
        throw;
    }
}

void Connection::openToRead(const QString& place) {
    close();
    try {
        if (isServer(place)) {
            d_->openServer(place, {});
            static_cast<ServerEngine&>(*d_->engine).refuseWrites();
        } else {
            requireFile(place);
            d_->openFile(place, "ro");
        }
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

static void createFile(Connection& store, const QString& password) {
    setWorkingMode(store);
    markOwnStore(store, password);
}

void Connection::create(const QString& place, const QString& password) {
    close();
    const bool server = isServer(place);
    if (!server && QFileInfo::exists(place))
        throw StoreError(StoreError::general, QString("The file \"%1\" already exists.").arg(place));
    try {
        if (server) {
            d_->openServer(place, password);
            requireEmptyDatabase(*d_->engine, path());
        } else {
            d_->openFile(place, "rwc");
            createFile(*this, password);
        }
    } catch (...) {
        close();
        if (!server) QFile::remove(place);
        throw;
    }
}

void Connection::close() { d_->shut(); }

bool Connection::isOpen() const { return d_->engine != nullptr; }

QString Connection::path() const { return d_->place; }

sqlite3* Connection::handle() const { return d_->openedFile().handle(); }

Recordset Connection::execute(const Sql& statement) {
    requireUnit();
    ReadRows read = d_->opened().execute(statement);
    Recordset set;
    set.connection_ = this;
    set.columns_ = std::move(read.columns);
    set.columnCount_ = read.columnCount;
    set.rows_ = std::move(read.rows);
    return set;
}

Recordset Connection::openTable(const QString& table, const Sql& where) {
    Recordset set;
    if (!where.isEmpty())
        set = execute(Sql("SELECT " + keyOf(*this, table) + " AS \"#row\", * FROM " + table + u' ') + where);
    set.connection_ = this;
    set.columns_ = tableColumns(table);
    set.columnCount_ = static_cast<int>(engineOf(*this).tableColumns(table).size()) + 1;
    set.table_ = table;
    return set;
}

qint64 Connection::run(const Sql& statement) {
    requireUnit();
    return d_->opened().run(statement);
}

void Connection::runLater(const Sql& statement) {
    requireUnit();
    d_->opened().runLater(statement);
}

void Connection::runMany(const QString& statement, const std::vector<QVariantList>& rows) {
    Transaction unit(*this);
    d_->opened().runMany(statement, rows);
    unit.commit();
}

void Connection::requireUnit() const {
    if (depth_ > 0 && d_->opened().hasUndoneUnit())
        throw StoreError(StoreError::general, "The store has undone this unit of work.");
}

// The columns of a row of an updatable set: the row's key, then those of the table.
std::shared_ptr<const RecordsetColumns> Connection::tableColumns(const QString& table) {
    auto& known = d_->columns[table];
    if (known) return known;
    QStringList names{"#row"};
    QList<ColumnKind> kinds{ColumnKind::Integer};
    for (const TableColumn& column : engineOf(*this).tableColumns(table)) {
        names += column.name;
        kinds += declaredKind(column.type);
    }
    return known = columnsOf(names, kinds);
}

const QHash<QString, QString>& Connection::columnTypes(const QString& table) {
    QHash<QString, QString>& types = d_->types[table.toLower()];
    if (types.isEmpty())
        for (const TableColumn& column : engineOf(*this).tableColumns(table))
            types.insert(column.name.toLower(), column.type);
    return types;
}

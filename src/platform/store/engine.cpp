#include "platform/store/engine.h"

#include "platform/store/busy_wait.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QThread>

namespace {
std::function<void()>& idleHook() {
    static std::function<void()> hook;
    return hook;
}

std::function<void(const QString&)>& statementHook() {
    static std::function<void(const QString&)> hook;
    return hook;
}

// The statement computes the column of this name with this function: "COUNT(*) AS Lines", or "COUNT(*)"
// itself.
bool computes(const QString& function, const QString& name, const QString& statement) {
    static const QString named = "\\b%1 *\\([^()]*\\) +AS +\"?%2\\b";
    return name.startsWith(function + u'(', Qt::CaseInsensitive) ||
           statement.contains(QRegularExpression(named.arg(function, QRegularExpression::escape(name)),
                                                 QRegularExpression::CaseInsensitiveOption));
}
}  // namespace

// What is summed up are amounts.
ColumnKind computedKind(const QString& name, const QString& statement) {
    if (computes("COUNT", name, statement)) return ColumnKind::Integer;
    return computes("SUM", name, statement) ? ColumnKind::Currency : ColumnKind::Unknown;
}

void Connection::setIdleHook(std::function<void()> hook) { idleHook() = std::move(hook); }

void Connection::setStatementHook(std::function<void(const QString&)> hook) {
    statementHook() = std::move(hook);
}

void tellStatement(const QString& text) {
    if (statementHook()) statementHook()(text);
}

// The hook is the window's: work beside it waits without.
void callIdleHook() {
    if (idleHook() && (!qApp || QThread::currentThread() == qApp->thread())) idleHook()();
}

bool BusyWait::again() {
    if (deadline_.hasExpired()) return false;
    if (nextIdle_.hasExpired()) {
        callIdleHook();
        nextIdle_.setRemainingTime(20);
    }
    QThread::msleep(lookEveryMs_);
    return true;
}

const QList<TableColumn>& Engine::tableColumns(const QString& name) {
    const QString key = name.toLower();
    const auto known = tables_.constFind(key);
    if (known != tables_.constEnd()) return *known;
    const QList<TableColumn> found = readColumns(name);
    if (found.isEmpty()) throw StoreError(StoreError::general, "no such table: " + name);
    return *tables_.insert(key, found);
}

QString Engine::keyOf(const QString& table) {
    for (const TableColumn& column : tableColumns(table))
        if (column.isKey) return column.name;
    throw StoreError(StoreError::general, "The table " + table + " has no key.");
}

void requireValues(qsizetype asked, const QVariantList& given) {
    if (given.size() != asked)
        throw StoreError(StoreError::general, "The statement has other values than it asks for.");
}

std::shared_ptr<const RecordsetColumns> columnsOf(const QStringList& names, const QList<ColumnKind>& kinds) {
    auto columns = std::make_shared<RecordsetColumns>();
    columns->kinds = kinds;
    for (int i = static_cast<int>(names.size()) - 1; i >= 0; --i) {
        columns->positions.insert(names[i], i);
        columns->positions.insert(names[i].toLower(), i);
    }
    return columns;
}

ColumnKind declaredKind(const QString& type) {
    static const std::pair<QString, ColumnKind> kinds[] = {{"CURRENCY", ColumnKind::Currency},
                                                           {"BOOL", ColumnKind::Flag},
                                                           {"DATE", ColumnKind::Date},
                                                           {"INT", ColumnKind::Integer}};
    for (const auto& [word, kind] : kinds)
        if (type.contains(word, Qt::CaseInsensitive)) return kind;
    return type.isEmpty() ? ColumnKind::Unknown : ColumnKind::Text;
}

#include "platform/store/transaction.h"

#include "platform/store/connection_private.h"

#include <sqlite3.h>

namespace {
QString savepoint(int level) { return QString("unit%1").arg(level); }
}  // namespace

Transaction::Transaction(Connection& connection, Turn turn)
    : connection_(connection), level_(connection.depth_) {
    connection_.requireUnit();
    connection_.d_->control(level_ == 0 ? "BEGIN IMMEDIATE" : "SAVEPOINT " + savepoint(level_),
                            BusyWait(turn));
    ++connection_.depth_;
}

Transaction::~Transaction() {
    if (!open_) return;
    connection_.depth_ = level_;
    if (!connection_.isOpen()) return;
    sqlite3* const engine = connection_.handle();
    if (sqlite3_get_autocommit(engine) != 0) return;  // the engine has undone all of it already
    const QString undo =
        level_ == 0 ? "ROLLBACK" : "ROLLBACK TO " + savepoint(level_) + "; RELEASE " + savepoint(level_);
    sqlite3_exec(engine, undo.toUtf8().constData(), nullptr, nullptr, nullptr);
}

// A commit that fails leaves the unit open, so that going out of scope undoes it.
void Transaction::commit() {
    connection_.requireUnit();
    if (level_ == 0) {
        tellStatement("COMMIT");
        connection_.d_->control("COMMIT");
    } else {
        connection_.d_->control("RELEASE " + savepoint(level_));
    }
    open_ = false;
    connection_.depth_ = level_;
}

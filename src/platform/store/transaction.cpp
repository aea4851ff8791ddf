#include "platform/store/transaction.h"

#include "platform/store/connection_private.h"

Transaction::Transaction(Connection& connection, Turn turn)
    : connection_(connection), level_(connection.depth_) {
    connection_.requireUnit();
    if (level_ == 0)
        connection_.d_->opened().begin(turn);
    else
        connection_.d_->opened().setPoint(level_);
    ++connection_.depth_;
}

Transaction::~Transaction() {
    if (!open_) return;
    connection_.depth_ = level_;
    if (!connection_.isOpen()) return;
    Engine& engine = *connection_.d_->engine;
    level_ == 0 ? engine.undo() : engine.undoToPoint(level_);
}

// A commit that fails leaves the unit open, so that going out of scope undoes it.
void Transaction::commit() {
    connection_.requireUnit();
    Engine& engine = connection_.d_->opened();
    if (level_ == 0) {
        tellStatement("COMMIT");
        engine.commit();
    } else {
        engine.keepPoint(level_);
    }
    open_ = false;
    connection_.depth_ = level_;
}

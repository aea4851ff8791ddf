#include "platform/store/read_ahead.h"

#include "platform/store/engine.h"

ReadAhead::ReadAhead(Connection& store, const std::vector<Sql>& statements, Until until) : store_(store) {
    engineOf(store_).readAhead(statements, until);
}

ReadAhead::~ReadAhead() {
    if (store_.isOpen()) engineOf(store_).forgetAhead();
}

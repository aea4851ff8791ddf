#pragma once
#include "books/keyed_figures.h"
#include "platform/store/connection.h"

// The balances of contacts all at once, by ContactID: the figures of CustomerBalance and
// SupplierBalance, by one statement each. A contact without documents is left out: its balance is 0. Of some
// contacts alone where a statement gives their ContactID.
KeyedFigures CustomerBalances(Connection& store, const Sql& contacts = {});
KeyedFigures SupplierBalances(Connection& store, const Sql& contacts = {});

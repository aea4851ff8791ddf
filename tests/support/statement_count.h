#pragma once
#include <functional>

class Connection;

// How many statements the store is asked while this runs.
int statementsOf(Connection& store, const std::function<void()>& work);

#pragma once
#include "platform/store/connection.h"

#include <QStringList>

// Every stored balance that is another than its recomputed one, in words. Nothing is written.
QStringList balanceFaults(Connection& store);

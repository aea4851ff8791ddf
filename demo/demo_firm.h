#pragma once
#include <QDate>
#include <QString>

class Connection;

// Fills a delivered store with the demo firm: its name, a clerk and a cashier with few rights, contacts,
// items and twelve months of trade that end on the given day, all through the modules that the screens use.
// The end of day has run for everything but the documents of the last day. All or nothing; throws
// std::runtime_error with the text of a refused step, and StoreError.
void fillDemoFirm(Connection& store, const QDate& lastDay);

// Writes a store with the demo firm, whose trade ends today, to this place: whole or not at all. Throws
// StoreError and std::runtime_error, also when the file exists or the database holds anything.
void makeDemoStore(const QString& place);

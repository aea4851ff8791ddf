#pragma once
#include <QStringList>
#include <vector>

class Connection;

// Registers the schema steps of this program with the store layer. Call once, before a store is opened.
void registerSchema();

// Writes the delivered store: schema, indexes, the profile row with the company name "Zevrin", the catalogue
// of rights, a few units, the user ADMIN and the row for the master login, whole or not at all. Throws
// StoreError; the file must not exist, and a database of a server must be empty.
void makeDeliveredStore(const QString& place);
// Fills the tables of a new store.
void fillDeliveredStore(Connection& store);

// One entry of the catalogue of menu rights: its code and its name, from the menu captions.
struct MenuRight {
    int code;
    const char* name;
};
const std::vector<MenuRight>& menuRights();

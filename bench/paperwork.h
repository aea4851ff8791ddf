#pragma once
#include "platform/currency.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QString>

// A trading firm's paperwork as a folder of tables: customers.csv, suppliers.csv, items.csv, orders.csv and
// order_lines.csv. Dates are ISO, amounts plain.
struct PaperContact {
    QString code, name, address, phone;
};

struct PaperItem {
    QString code, description, packing, supplier;
    Currency listPrice, reorderLevel;
};

struct PaperLine {
    QString item;
    Currency price, quantity, discount;
};

struct PaperOrder {
    QString number, customer;
    QDate date;
    bool shipped;
    QList<PaperLine> lines;
};

struct Paperwork {
    QList<PaperContact> customers, suppliers;
    QList<PaperItem> items;
    QList<PaperOrder> orders;  // by date, then number
};

// Throws std::runtime_error for a file or a column that is missing.
Paperwork readPaperwork(const QString& folder);

// The records of a text of comma separated values: quoted fields may hold commas, quotes (doubled) and line
// breaks; the first record names the columns.
QList<QHash<QString, QString>> parseCsv(const QString& text);

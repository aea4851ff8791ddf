#include "bench/paperwork.h"

#include "platform/parsing.h"

#include <QDir>
#include <QFile>
#include <stdexcept>

namespace {
using Record = QHash<QString, QString>;

// Reads one field from the position on, and leaves the position behind its end.
QString field(const QString& text, qsizetype& at) {
    QString value;
    bool quoted = false;
    for (; at < text.size(); ++at) {
        const QChar c = text[at];
        if (c == '"' && quoted && at + 1 < text.size() && text[at + 1] == '"')
            value += text[++at];
        else if (c == '"')
            quoted = !quoted;
        else if (!quoted && (c == ',' || c == '\n'))
            break;
        else if (quoted || c != '\r')
            value += c;
    }
    return value;
}

QStringList record(const QString& text, qsizetype& at) {
    QStringList fields{field(text, at)};
    while (at < text.size() && text[at] == ',') fields += field(text, ++at);
    ++at;  // the line break
    return fields;
}

QList<Record> records(const QString& folder, const QString& name) {
    QFile file(QDir(folder).filePath(name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(("cannot read " + file.fileName()).toStdString());
    return parseCsv(QString::fromUtf8(file.readAll()));
}

QString text(const Record& row, const QString& column) {
    if (!row.contains(column)) throw std::runtime_error(("no column " + column).toStdString());
    return row[column];
}

Currency number(const Record& row, const QString& column) { return numberOrZero(text(row, column)); }

QList<PaperContact> contacts(const QString& folder, const QString& name) {
    QList<PaperContact> list;
    for (const Record& row : records(folder, name))
        list += {text(row, "code"), text(row, "name"), text(row, "address"), text(row, "phone")};
    return list;
}

QList<PaperItem> items(const QString& folder) {
    QList<PaperItem> list;
    for (const Record& row : records(folder, "items.csv"))
        list += {text(row, "code"),     text(row, "description"),  text(row, "packing"),
                 text(row, "supplier"), number(row, "list_price"), number(row, "reorder_level")};
    return list;
}

QHash<QString, QList<PaperLine>> lines(const QString& folder) {
    QHash<QString, QList<PaperLine>> byOrder;
    for (const Record& row : records(folder, "order_lines.csv"))
        byOrder[text(row, "order")] += {text(row, "item"), number(row, "unit_price"), number(row, "quantity"),
                                        number(row, "discount_percent")};
    return byOrder;
}

QList<PaperOrder> orders(const QString& folder) {
    const auto byOrder = lines(folder);
    QList<PaperOrder> list;
    for (const Record& row : records(folder, "orders.csv"))
        list += {text(row, "number"), text(row, "customer"),
                 QDate::fromString(text(row, "order_date"), Qt::ISODate),
                 !text(row, "shipped_date").isEmpty(), byOrder.value(text(row, "number"))};
    std::stable_sort(list.begin(), list.end(),
                     [](const PaperOrder& a, const PaperOrder& b) { return a.date < b.date; });
    return list;
}
}  // namespace

QList<QHash<QString, QString>> parseCsv(const QString& text) {
    QList<Record> rows;
    qsizetype at = 0;
    const QStringList columns = record(text, at);
    while (at < text.size()) {
        const QStringList fields = record(text, at);
        Record row;
        for (qsizetype i = 0; i < std::min(fields.size(), columns.size()); ++i) row[columns[i]] = fields[i];
        rows += row;
    }
    return rows;
}

Paperwork readPaperwork(const QString& folder) {
    return {contacts(folder, "customers.csv"), contacts(folder, "suppliers.csv"), items(folder),
            orders(folder)};
}

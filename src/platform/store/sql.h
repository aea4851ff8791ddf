#pragma once
#include "platform/currency.h"

#include <QDate>
#include <QString>
#include <QVariantList>

// A statement, or a clause of one, with the values of its '?' marks: the two travel as one value, and no
// typed text ever enters the statement itself.
struct Sql {
    QString text;
    QVariantList values;

    Sql() = default;
    Sql(const char* statement) : text(QString::fromUtf8(statement)) {}
    Sql(const QString& statement) : text(statement) {}
    Sql(const QString& statement, const QVariantList& bound) : text(statement), values(bound) {}

    bool isEmpty() const { return text.isEmpty(); }
    Sql& operator+=(const Sql& tail) {
        text += tail.text;
        values += tail.values;
        return *this;
    }
    friend Sql operator+(Sql head, const Sql& tail) { return head += tail; }
};

// The stored form of a value: Currency as ten-thousandths, bool as -1 or 0, dates as ISO text, a null text as
// the empty text. Connection applies it to every bound value; callers bind the plain C++ value.
QVariant storedValue(const QVariant& value);

inline QVariant bound(Currency value) { return QVariant::fromValue(value); }
inline QVariant bound(const QString& value) { return value; }
inline QVariant bound(const QDate& value) { return value; }

// The LIKE pattern of a search: "%" + value + "%".
inline QString anywhere(const QString& value) { return u'%' + value + u'%'; }

#include "platform/store/sql.h"

#include <QDateTime>

QVariant storedValue(const QVariant& value) {
    const QMetaType type = value.metaType();
    if (type == QMetaType::fromType<Currency>()) return value.value<Currency>().tenThousandths();
    switch (type.id()) {
        case QMetaType::Bool:
            return value.toBool() ? -1 : 0;
        case QMetaType::QString: {
            const QString text = value.toString();
            return text.isNull() ? QString("") : text;
        }
        case QMetaType::QDate:
            return value.toDate().isValid() ? value.toDate().toString(Qt::ISODate) : QVariant();
        case QMetaType::QDateTime:
            return value.toDateTime().isValid() ? value.toDateTime().toString("yyyy-MM-dd HH:mm:ss")
                                                : QVariant();
        default:
            return value;
    }
}

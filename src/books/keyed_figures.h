#pragma once
#include "books/key_order.h"
#include "platform/currency.h"

#include <QHash>
#include <QString>

// Figures by a text key of the store, whose plain letters count without regard to case.
class KeyedFigures {
  public:
    // 0 for a key that is not there.
    Currency of(const QString& key) const { return figures_.value(foldedKey(key.toUtf8())); }
    Currency& operator[](QByteArrayView key) { return figures_[foldedKey(key)]; }
    bool contains(QByteArrayView key) const { return figures_.contains(foldedKey(key)); }

  private:
    QHash<QByteArray, Currency> figures_;
};

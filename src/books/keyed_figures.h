#pragma once
#include "books/key_order.h"
#include "platform/currency.h"

#include <QString>
#include <unordered_map>

// Figures by a text key of the store, whose plain letters count without regard to case.
class KeyedFigures {
  public:
    // 0 for a key that is not there.
    Currency of(QByteArrayView key) const {
        const auto found = figures_.find(key);
        return found == figures_.end() ? Currency() : found->second;
    }
    Currency of(const QByteArray& key) const { return of(QByteArrayView(key)); }
    Currency of(const QString& key) const { return of(key.toUtf8()); }
    Currency& operator[](QByteArrayView key) {
        const auto found = figures_.find(key);
        return found == figures_.end() ? figures_[key.toByteArray()] : found->second;
    }
    bool contains(QByteArrayView key) const { return figures_.contains(key); }
    // Of several figures of one key the first stays.
    void giveFirst(QByteArrayView key, Currency figure) {
        if (!contains(key)) figures_.emplace(key.toByteArray(), figure);
    }

  private:
    std::unordered_map<QByteArray, Currency, KeyHash, KeyEqual> figures_;
};

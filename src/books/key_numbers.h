#pragma once
#include "books/key_order.h"

#include <QByteArray>
#include <unordered_map>
#include <vector>

// Numbers from 0 for text keys of the store, in the order in which they come, so that many rows can be held,
// joined and sorted by them. A key that comes again at once is not looked up again.
class KeyNumbers {
  public:
    int add(QByteArrayView key) {
        if (const int known = find(key); known >= 0) return known;
        keys_.push_back(key.toByteArray());
        return last_ = numbers_.emplace(keys_.back(), size() - 1).first->second;
    }
    // -1 for one that is not there.
    int find(QByteArrayView key) const {
        if (last_ >= 0 && key == at(last_)) return last_;
        const auto known = numbers_.find(key);
        return known == numbers_.end() ? -1 : last_ = known->second;
    }
    int size() const { return static_cast<int>(keys_.size()); }
    // As it came first.
    const QByteArray& at(int number) const { return keys_[static_cast<size_t>(number)]; }
    // The place of each key in the order of the store, by its number.
    std::vector<int> places() const {
        std::vector<int> order(keys_.size()), places(keys_.size());
        for (int number = 0; number < size(); ++number) order[static_cast<size_t>(number)] = number;
        std::ranges::sort(order, [this](int a, int b) { return comesBefore(at(a), at(b)); });
        for (int place = 0; place < size(); ++place)
            places[static_cast<size_t>(order[static_cast<size_t>(place)])] = place;
        return places;
    }

  private:
    std::unordered_map<QByteArray, int, KeyHash, KeyEqual> numbers_;
    std::vector<QByteArray> keys_;
    mutable int last_ = -1;
};

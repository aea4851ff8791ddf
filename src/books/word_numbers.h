#pragma once
#include "books/key_order.h"

#include <QHash>
#include <vector>

// Numbers for texts that come again and again, so that many rows can be held and sorted by them.
class WordNumbers {
  public:
    int numberOf(QByteArrayView word) {
        if (last_ >= 0 && word == words_[static_cast<size_t>(last_)]) return last_;
        const auto known = numbers_.constFind(QByteArray::fromRawData(word.data(), word.size()));
        if (known != numbers_.constEnd()) return last_ = *known;
        words_.push_back(word.toByteArray());
        return last_ = *numbers_.insert(words_.back(), static_cast<int>(words_.size()) - 1);
    }
    // The place of each word in the order of the store, by its number.
    std::vector<int> places() const {
        std::vector<int> order(words_.size());
        for (size_t at = 0; at < order.size(); ++at) order[at] = static_cast<int>(at);
        std::ranges::sort(order, [this](int a, int b) { return comesBefore(word(a), word(b)); });
        std::vector<int> places(order.size());
        for (size_t at = 0; at < order.size(); ++at)
            places[static_cast<size_t>(order[at])] = static_cast<int>(at);
        return places;
    }
    const QByteArray& word(int number) const { return words_[static_cast<size_t>(number)]; }

  private:
    QHash<QByteArray, int> numbers_;
    std::vector<QByteArray> words_;
    int last_ = -1;
};

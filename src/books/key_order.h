#pragma once
#include <QByteArray>
#include <QByteArrayView>
#include <algorithm>

// The order of the store's text keys, whose plain letters count without regard to case.

inline char foldedLetter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
}

// Negative, 0 or positive, as a stands before b, beside it or behind it.
inline int compareKeys(QByteArrayView a, QByteArrayView b) {
    const qsizetype common = std::min(a.size(), b.size());
    for (qsizetype at = 0; at < common; ++at) {
        if (a[at] == b[at]) continue;
        const auto x = static_cast<unsigned char>(foldedLetter(a[at]));
        const auto y = static_cast<unsigned char>(foldedLetter(b[at]));
        if (x != y) return x < y ? -1 : 1;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

inline bool comesBefore(QByteArrayView a, QByteArrayView b) { return compareKeys(a, b) < 0; }

// Of containers by such keys, which look one up by the bytes of a row.
struct KeyHash {
    using is_transparent = void;
    size_t operator()(QByteArrayView key) const {
        size_t hash = 14695981039346656037U;
        for (const char letter : key)
            hash = (hash ^ static_cast<unsigned char>(foldedLetter(letter))) * 1099511628211U;
        return hash ^ hash >> 32;
    }
};
struct KeyEqual {
    using is_transparent = void;
    bool operator()(QByteArrayView a, QByteArrayView b) const {
        return a.size() == b.size() && compareKeys(a, b) == 0;
    }
};

inline QByteArray foldedKey(QByteArrayView key) {
    QByteArray folded = key.toByteArray();
    std::transform(folded.begin(), folded.end(), folded.begin(), foldedLetter);
    return folded;
}

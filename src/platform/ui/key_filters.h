#pragma once
#include <QString>

// Which typed keys a box takes. Only typed keys are filtered: what is pasted is stored as it is.
struct KeyFilter {
    enum Kind { All, Allow, Reject } kind = All;
    QString characters;

    bool passes(QChar key) const;  // in either case of a letter
};

namespace keys {
inline KeyFilter wholeNumber() { return {KeyFilter::Allow, "0123456789"}; }
inline KeyFilter amount() { return {KeyFilter::Allow, "0123456789."}; }
inline KeyFilter date() { return {KeyFilter::Allow, "0123456789/-"}; }
inline KeyFilter freeText() { return {KeyFilter::Reject, "'"}; }
}  // namespace keys

#include "documents/document_head.h"

#include "platform/parsing.h"

#include <algorithm>

static constexpr qsizetype mostDigits = 9;

static bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

std::optional<Fault> serialFault(const DocumentHead& document) {
    const QString serial = trim(document.serial);
    const bool isNumber = !serial.isEmpty() && std::ranges::all_of(serial, isDigit);
    if (!document.addMode || (isNumber && serial.size() <= mostDigits)) return std::nullopt;
    return Fault{exclamation("Error!", "Invalid Serial No.! Please Enter a Number of up to Nine Digits!"),
                 "txtSerialCode"};
}

std::optional<Fault> overtakenDocument(Connection& store, const DocumentHead& document) {
    return document.loaded.overtaken(store, {"Printed", "RecordLock", "Balance"});
}

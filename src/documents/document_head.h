#pragma once
#include "documents/contact_figures.h"
#include "platform/outcome.h"

#include <optional>

// What every document has above its lines, as typed.
struct DocumentHead {
    bool addMode = true;
    QString code = {};    // the document's number, of an old one its key
    QString serial = {};  // of a new one with a peeked number: becomes the counter when it is saved
    QString date = {};    // as typed
    QString contactName = {};
    QString remarks = {};
};

// The serial of a new one becomes the counter that the next number is made from: what is no number of up to
// nine digits is refused.
std::optional<Fault> serialFault(const DocumentHead& document);

// What its screen shows of a stored one besides.
struct StoredHead {
    ContactFigures contact = {};
    QString updatedBy = {};
    QString lastUpdate = {};
};

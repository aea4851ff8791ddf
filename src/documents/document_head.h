#pragma once
#include "documents/contact_figures.h"
#include "foundation/stored_state.h"
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
    StoredState loaded = {};  // of an old one, as it was stored then
};

// The serial of a new one becomes the counter that the next number is made from: what is no number of up to
// nine digits is refused.
std::optional<Fault> serialFault(const DocumentHead& document);

// The refusal of a save over another's change. It has to do with what people enter: printing and locking, and
// the balance that payments move, change a document under nobody's hands. A check that was negotiated or
// released meanwhile counts, since the save writes all checks anew.
std::optional<Fault> overtakenDocument(Connection& store, const DocumentHead& document);

// What its screen shows of a stored one besides.
struct StoredHead {
    ContactFigures contact = {};
    QString updatedBy = {};
    QString lastUpdate = {};
};

#pragma once
#include "documents/contact_figures.h"

// What every document has above its lines, as typed.
struct DocumentHead {
    bool addMode = true;
    QString code = {};    // the document's number, of an old one its key
    QString serial = {};  // of a new one with a peeked number: becomes the counter when it is saved
    QString date = {};    // as typed
    QString contactName = {};
    QString remarks = {};
};

// What its screen shows of a stored one besides.
struct StoredHead {
    ContactFigures contact = {};
    QString updatedBy = {};
    QString lastUpdate = {};
};

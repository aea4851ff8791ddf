#pragma once
#include "books/record_lock.h"
#include "platform/outcome.h"

#include <vector>

// The four journals whose documents can be locked and released by hand.
struct LockJournal {
    const char* name;
    LockableBook book;
    const char* caption;   // of the frame around the number
    const char* question;  // the question's first words
    const char* missing;
};
const std::vector<LockJournal>& lockJournals();
const LockJournal* findLockJournal(const QString& name);  // null: none of the four

enum class DocumentLock { Missing, Locked, Free };
DocumentLock documentLock(Connection& store, const LockJournal& journal, const QString& number);
Box missingDocument(const LockJournal& journal);

enum class LockChange { Lock, Release };
// A Question first, whose words are the same for both; then, confirmed, Done. Throws StoreError.
Outcome changeLock(Connection& store, LockChange change, const QString& journalName, const QString& number,
                   const Answers& answers);

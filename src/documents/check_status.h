#pragma once
#include "platform/outcome.h"
#include "platform/progress.h"
#include "platform/store/connection.h"
#include "platform/ui/list_view.h"

#include <QDate>
#include <optional>
#include <variant>

// What a payment, received or made, can stand at. Nothing here writes a card.
namespace check {
inline constexpr const char* pending = "Pending";
inline constexpr const char* cleared = "Cleared";
inline constexpr const char* cash = "Cash";
inline constexpr const char* drawnAgainstInsufficient = "DAIF";
inline constexpr const char* drawnAgainstUncollected = "DAUD";
inline constexpr const char* accountClosed = "Account Closed";
}  // namespace check

// One way to look at the payments of a book.
struct CheckView {
    const char* name;
    const char* condition;  // %1 stands for the book's table
    const char* reportTitle;
    bool tags = false;  // its checks can be tagged as cleared
    const char* numberHeading = "Check No.";
    const char* dateHeading = "Check Date";
};

struct CheckColumn {
    ListColumn list;
    QString field;
};

struct CheckCategory {
    enum Kind { Text, Date, Status, Period };
    const char* name;
    const char* column;
    Kind kind = Text;
};

// What the checks received and the checks issued differ in. Each side has one (sales/received_checks.h,
// purchases/issued_checks.h).
struct CheckBook {
    const char* table;
    const char* select;
    QList<CheckView> views;  // the first is the one to begin with
    QList<CheckColumn> columns;
    QList<CheckCategory> categories;
    const char* contactCategory;  // the one to begin with
    const char* taggedTitle;
    const char* notFound;
};

// The views that both sides have: pending, cleared, and paid in cash. A check that bounced is pending.
QList<CheckView> commonCheckViews();

// The columns of the list that mean the same on both sides.
namespace check_column {
inline constexpr int control = 1, number = 4, date = 5, status = 7;
}

// A check as it stands in the store.
struct StoredCheck {
    qint64 key = 0;
    QString number;
    QDate date;
    QString status;
    bool negotiated = false;
};
struct CheckRow {
    StoredCheck check;
    QStringList texts;  // in the columns of the book
};

// The rows of a view that the search, a clause that begins with AND, lets through. A name that is no view is
// a Fault. Throws StoreError.
std::variant<QList<CheckRow>, Fault> loadChecks(Connection& store, const CheckBook& book, const QString& view,
                                                const Sql& search, Progress& progress = Progress::none());
// Its statement.
Sql checksOf(const CheckBook& book, const CheckView& view, const Sql& search);
// Null for a name that is none.
const CheckView* findCheckView(const CheckBook& book, const QString& name);

// What was typed to search by; which of the entries counts is told by the category.
struct CheckSearch {
    QString category;
    QString text;
    QString status;
    QString from;
    QString to;
};
const CheckCategory* findCheckCategory(const CheckBook& book, const QString& name);
// Of a search for a period.
std::optional<Fault> checkPeriodFault(const CheckSearch& search);
std::variant<Sql, Fault> checkSearchClause(const CheckBook& book, const CheckSearch& search);

// Tags the marked checks as cleared, as one unit, after its question (key "tag"). A check that has changed in
// the store since it was loaded is left as it is, and counted in a second box; one that has gone is passed
// over. Throws StoreError; nothing is tagged then.
Outcome tagAsCleared(Connection& store, const CheckBook& book, const QList<StoredCheck>& marked,
                     const Answers& answers = {});

// What the dialog of one check holds, as typed.
struct CheckStatusEntry {
    QString number;
    QString date;
    QString status;
    bool cash = false;
    bool negotiated = false;
};
// The statuses that the dialog offers.
QStringList offeredStatuses();
CheckStatusEntry statusEntryOf(const StoredCheck& check);
// The refusal of a check without a date.
Fault invalidStatusDate();
// The controls move each other.
void chooseStatus(CheckStatusEntry& entry, const QString& status);
void tickCash(CheckStatusEntry& entry, bool ticked);
void tickNegotiated(CheckStatusEntry& entry, bool ticked);

// None when the check has gone.
std::optional<StoredCheck> findCheck(Connection& store, const CheckBook& book, qint64 key);

// The tests of the dialog, in their order, and its writing. A check that has changed in the store since it
// was loaded is left as it is. Throws StoreError.
struct CheckUpdate {
    Outcome outcome;
    bool overtaken = false;  // the dialog has to load it anew
};
CheckUpdate updateCheck(Connection& store, const CheckBook& book, const StoredCheck& loaded,
                        const CheckStatusEntry& entry);

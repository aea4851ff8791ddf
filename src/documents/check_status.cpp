#include "documents/check_status.h"

#include "masters/master_records.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/progress_scope.h"
#include "platform/store/transaction.h"

namespace {
bool isSame(const QString& text, const char* other) {
    return text.compare(QLatin1String(other), Qt::CaseInsensitive) == 0;
}

// What of a check another clerk may have changed.
bool isUnchanged(const StoredCheck& now, const StoredCheck& loaded) {
    return now.status == loaded.status && now.number == loaded.number && now.negotiated == loaded.negotiated;
}

// Names that are made once, not for each of ten thousand rows.
StoredCheck storedCheck(const Recordset& row) {
    static const QString key("ZevRef"), number("CheckNo"), date("CheckDate"), status("CheckStatus"),
        negotiated("Negotiated");
    return {row.integer(key), row.trimmed(number), row.date(date), row.trimmed(status), row.flag(negotiated)};
}

QString textOf(const Recordset& row, const CheckColumn& column) {
    switch (column.list.kind) {
        case ListColumn::Number:
            return formatNumber(row.currency(column.field), mask::amount);
        case ListColumn::Date:
            return formatDate(row.date(column.field));
        case ListColumn::Text:
            break;
    }
    return row.trimmed(column.field);
}

// What the check itself has read is not read again.
QString textOf(const Recordset& row, const CheckBook& book, int column, const StoredCheck& check) {
    switch (column) {
        case check_column::control:
            return QString::number(check.key);
        case check_column::number:
            return check.number;
        case check_column::date:
            return formatDate(check.date);
        case check_column::status:
            return check.status;
        default:
            return textOf(row, book.columns[column]);
    }
}

CheckRow rowOf(const Recordset& row, const CheckBook& book) {
    CheckRow listed{storedCheck(row), {}};
    listed.texts.reserve(book.columns.size());
    for (int column = 0; column < book.columns.size(); ++column)
        listed.texts += textOf(row, book, column, listed.check);
    return listed;
}

template <class Named>
const Named* named(const QList<Named>& all, const QString& name) {
    const auto found = std::ranges::find_if(all, [&](const Named& one) { return name == one.name; });
    return found == all.end() ? nullptr : &*found;
}

Sql andCondition(const QString& column, const char* comparison, const QVariantList& values) {
    return {" AND " + column + ' ' + comparison, values};
}

std::variant<Sql, Fault> periodClause(const QString& column, const CheckSearch& search) {
    if (const auto fault = checkPeriodFault(search)) return *fault;
    return andCondition(column, "BETWEEN ? AND ?", {*parseDate(search.from), *parseDate(search.to)});
}

std::variant<Sql, Fault> dateClause(const QString& column, const CheckSearch& search) {
    const auto date = parseDate(search.text);
    if (!date) return errorFault("Invalid Search Date!", "txtSearch");
    return andCondition(column, "= ?", {*date});
}

// The bulk tag

// Cards are settled by who issued them.
QList<StoredCheck> taggable(const QList<StoredCheck>& marked) {
    QList<StoredCheck> checks;
    std::ranges::copy_if(marked, std::back_inserter(checks),
                         [](const StoredCheck& check) { return !isSame(check.status, "Card"); });
    return checks;
}

Recordset openCheck(Connection& store, const CheckBook& book, qint64 key) {
    return store.openTable(book.table, {"WHERE ZevRef = ?", {key}});
}

// False when the check has changed, and is left as it is.
bool tagOne(Connection& store, const CheckBook& book, const StoredCheck& loaded) {
    Recordset row = openCheck(store, book, loaded.key);
    if (row.eof()) return true;
    if (!isUnchanged(storedCheck(row), loaded)) return false;
    row.set("Negotiated", true);
    row.set("CheckStatus", check::cleared);
    row.update();
    return true;
}

Boxes taggedBoxes(const CheckBook& book, qint64 tagged, qint64 left) {
    Boxes boxes{information(book.taggedTitle, formatCount(tagged) + " Checks Successfully Tagged!")};
    if (left > 0)
        boxes +=
            exclamation("Not Tagged!", formatCount(left) +
                                           " Checks were Changed by Another User and were Left as They Are!");
    return boxes;
}

Outcome tagAll(Connection& store, const CheckBook& book, const QList<StoredCheck>& checks) {
    qint64 left = 0;
    Transaction unit(store);
    for (const StoredCheck& check : checks)
        if (!tagOne(store, book, check)) ++left;
    unit.commit();
    return Done{taggedBoxes(book, checks.size() - left, left)};
}

// The dialog

QString knownStatus(const QString& typed) {
    for (const QString& status : offeredStatuses() + QStringList{check::cash})
        if (status.compare(trim(typed), Qt::CaseInsensitive) == 0) return status;
    return {};
}

std::optional<Fault> statusFault(const CheckStatusEntry& entry) {
    const QString status = knownStatus(entry.status);
    const bool cleared = status == check::cleared;
    const bool cash = status == check::cash;
    const struct {
        bool fails;
        const char* text;
        const char* focus;
    } tests[]{
        {!entry.negotiated && cleared,
         "You Cannot Tag this Check as Cleared since you have not check the option button as Cleared!",
         "chkNegotiated"},
        {entry.negotiated && !cash && !cleared,
         "You have checked Cleared Box Option you cannot have check status other than Cleared!",
         "cboCheckStatus"},
        {status.isEmpty(), "Please Select Check Status!", "cboCheckStatus"},
        {!cleared && !cash && entry.negotiated,
         "You have to uncheck Cleared Box Option since you have not selected Cleared as your Check Status!",
         "chkNegotiated"},
        {cleared && !entry.negotiated,
         "You have to check Cleared Box Option since you have selected Cleared as your Check Status!",
         "chkNegotiated"},
        {cash && !entry.cash,
         "You have to check Cash Payment option since you have selected Cash Payment in Check Status!",
         "chkCash"}};
    for (const auto& test : tests)
        if (test.fails) return errorFault(test.text, test.focus);
    if (!entry.cash && !isDate(entry.date)) return invalidStatusDate();
    return std::nullopt;
}

void writeCheck(Recordset& row, const CheckStatusEntry& entry) {
    row.set("CheckNo", entry.cash ? QVariant() : QVariant(trim(entry.number).toUpper()));
    row.set("CheckDate", entry.cash ? QVariant() : QVariant(*parseDate(entry.date)));
    row.set("CheckStatus", entry.cash ? QString(check::cash) : knownStatus(entry.status));
    row.set("Negotiated", entry.cash || entry.negotiated);
    row.update();
}
}  // namespace

Fault invalidStatusDate() { return errorFault("Invalid Check Date!", "txtCheckDate"); }

std::optional<Fault> checkPeriodFault(const CheckSearch& search) {
    const bool isFrom = isDate(search.from);
    if (isFrom && isDate(search.to)) return std::nullopt;
    return errorFault("Invalid Check Date Range!", isFrom ? "txtTo" : "txtFrom");
}

QList<CheckView> commonCheckViews() {
    return {{.name = "Pending Checks",
             .condition = " WHERE %1.CheckNo <> 'Cash' AND %1.Negotiated = False",
             .reportTitle = "Pending Checks Report",
             .tags = true},
            {.name = "Cleared Checks",
             .condition = " WHERE %1.CheckNo <> 'Cash' AND %1.Negotiated = True",
             .reportTitle = "Cleared Checks Report"},
            {.name = "Cash Payment",
             .condition = " WHERE %1.CheckStatus = 'Cash' AND %1.Negotiated = True",
             .reportTitle = "Cash Payment Report"}};
}

const CheckView* findCheckView(const CheckBook& book, const QString& name) { return named(book.views, name); }

const CheckCategory* findCheckCategory(const CheckBook& book, const QString& name) {
    return named(book.categories, name);
}

Sql checksOf(const CheckBook& book, const CheckView& view, const Sql& search) {
    return Sql{book.select + QString(view.condition).arg(book.table)} + search +
           Sql{QString(" ORDER BY %1.ZevRef").arg(book.table)};
}

std::variant<QList<CheckRow>, Fault> loadChecks(Connection& store, const CheckBook& book, const QString& view,
                                                const Sql& search, Progress& progress) {
    const CheckView* chosen = findCheckView(book, view);
    if (!chosen) return errorFault("Please Select Checks to View!", "cboView");
    Recordset rows = store.execute(checksOf(book, *chosen, search));
    const ProgressScope shown(progress, "System is Loading Payment Details...", rows.rowCount());
    QList<CheckRow> checks;
    checks.reserve(rows.rowCount());
    for (; !rows.eof(); rows.moveNext()) {
        checks += rowOf(rows, book);
        progress.setValue(checks.size());
    }
    return checks;
}

std::variant<Sql, Fault> checkSearchClause(const CheckBook& book, const CheckSearch& search) {
    const CheckCategory* category = findCheckCategory(book, search.category);
    if (!category) return errorFault("Search Criteria Does Not Exist!", "cboSearchBy");
    switch (category->kind) {
        case CheckCategory::Date:
            return dateClause(category->column, search);
        case CheckCategory::Period:
            return periodClause(category->column, search);
        case CheckCategory::Status:
            return andCondition(category->column, "= ?", {search.status});
        case CheckCategory::Text:
            break;
    }
    return andCondition(category->column, "LIKE ?", {anywhere(search.text)});
}

Outcome tagAsCleared(Connection& store, const CheckBook& book, const QList<StoredCheck>& marked,
                     const Answers& answers) {
    const QList<StoredCheck> checks = taggable(marked);
    if (checks.isEmpty())
        return Fault{exclamation("No Item Selected!", "You Have Not Selected Any Checks to Tag as Cleared!"),
                     {}};
    if (!answers.contains("tag"))
        return Question{"tag", question("Proceed?", "This will Tag " + formatCount(checks.size()) +
                                                        " Checks as Cleared! Do you want to Continue?")};
    if (answers.value("tag") != BoxAnswer::Yes) return Fault{};
    return tagAll(store, book, checks);
}

QStringList offeredStatuses() {
    return {check::pending, check::cleared, check::drawnAgainstInsufficient, check::drawnAgainstUncollected,
            check::accountClosed};
}

CheckStatusEntry statusEntryOf(const StoredCheck& check) {
    CheckStatusEntry entry{check.number, formatDate(check.date), check.status, false, check.negotiated};
    if (isSame(check.status, check::cash)) tickCash(entry, true);
    return entry;
}

void chooseStatus(CheckStatusEntry& entry, const QString& status) {
    if (status == check::cash) return tickCash(entry, true);
    entry.status = status;
    if (status == check::cleared) return tickNegotiated(entry, true);
    entry.negotiated = false;
    if (status != check::pending) entry.cash = false;
}

void tickCash(CheckStatusEntry& entry, bool ticked) {
    entry = {{}, {}, ticked ? check::cash : check::pending, ticked, ticked};
}

void tickNegotiated(CheckStatusEntry& entry, bool ticked) {
    entry.negotiated = ticked;
    if (ticked)
        entry.status = entry.cash ? check::cash : check::cleared;
    else if (entry.status == check::cleared)
        entry.status = check::pending;
}

std::optional<StoredCheck> findCheck(Connection& store, const CheckBook& book, qint64 key) {
    const Recordset row = openCheck(store, book, key);
    if (row.eof()) return std::nullopt;
    return storedCheck(row);
}

CheckUpdate updateCheck(Connection& store, const CheckBook& book, const StoredCheck& loaded,
                        const CheckStatusEntry& entry) {
    if (auto fault = statusFault(entry)) return {*fault};
    Transaction unit(store);
    Recordset row = openCheck(store, book, loaded.key);
    if (row.eof()) return {errorFault(book.notFound)};
    if (!isUnchanged(storedCheck(row), loaded))
        return {errorFault("This Check was Changed by Another User and was Left as It Is! It is Shown Anew!"),
                true};
    writeCheck(row, entry);
    unit.commit();
    return {Done{{information("Saved!", "Record Successfully Updated!")}}};
}

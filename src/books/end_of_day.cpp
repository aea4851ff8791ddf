#include "books/end_of_day.h"

#include "books/item_costs.h"
#include "books/long_pass.h"
#include "books/numbering.h"
#include "books/posting_queue.h"
#include "books/stock_rows.h"
#include "books/stock_valuation.h"
#include "foundation/shared_routines.h"
#include "platform/store/read_ahead.h"

#include <span>

static constexpr const char* postingText = "Please Wait While System is Posting Stock Valuation...";

// Walks the rows of one queue and makes a list of them, with the progress box while there are any.
template <class Entry, class Read>
static QList<Entry> loadList(Recordset rows, const char* waitText, Progress& progress, Read read) {
    QList<Entry> list;
    if (rows.eof()) return list;
    const qint64 total = rows.rowCount();
    const ProgressScope scope(progress, waitText, total);
    for (; !rows.eof(); rows.moveNext()) {
        list += read(rows);
        // Painting the text of every row would take longer than reading them.
        if (list.size() % 64 == 1 || list.size() == total)
            progress.setText(QString("Loading Record %1 of %2...").arg(list.size()).arg(total));
        progress.setValue(list.size());
    }
    return list;
}

QList<QueuedDocument> LoadPostingQueue(Connection& store, Progress& progress) {
    return loadList<QueuedDocument>(
        store.execute("SELECT q.BookID, q.Reference, q.TransDate, c.ContactName"
                      " FROM tblForPosting q LEFT JOIN tblContactMaster c ON c.ContactID = q.Contact"
                      " ORDER BY q.BookID, q.TransDate, q.RowNo"),
        "Please Wait While System Loads Records for Uploading...", progress, [](const Recordset& row) {
            return QueuedDocument{row.trimmed("BookID"), row.trimmed("Reference"), row.date("TransDate"),
                                  row.trimmed("ContactName")};
        });
}

QList<QueuedItem> LoadPostingItems(Connection& store, Progress& progress) {
    return loadList<QueuedItem>(
        store.execute("SELECT q.ItemID, i.Description"
                      " FROM tblForPostingItem q LEFT JOIN tblItemMaster i ON i.ItemCode = q.ItemID"
                      " ORDER BY q.RowNo"),
        "Please Wait While System Loads Records for Processing...", progress, [](const Recordset& row) {
            return QueuedItem{row.text("ItemID"), row.trimmed("Description")};
        });
}

namespace {
// Where the lines of a book's documents stand.
struct Book {
    const char* bookId;
    const char* details;
    const char* quantity;
};
}  // namespace

static const Book& bookOf(const QString& bookId) {
    static constexpr Book purchases{"P", "tblPurchaseDetails", "Delivered"};
    static constexpr Book sales{"S", "tblSalesDetails", "Served"};
    return bookId == purchases.bookId ? purchases : sales;
}

static Sql linesQuery(const QueuedDocument& document) {
    const Book& book = bookOf(document.bookId);
    return {
        QString(
            "SELECT ItemID, %1 AS Quantity, UnitPrice, Discount FROM %2 WHERE Reference = ? ORDER BY RowNo")
            .arg(book.quantity, book.details),
        {document.reference}};
}

static Sql contactQuery(const QueuedDocument& document) {
    return lookupQuery("ContactID", "tblContactMaster", "ContactName", document.contactName,
                       LookupMode::PrimaryKey);
}

namespace {
// A queued document with what it posts.
struct Posting {
    const QueuedDocument& document;
    QString contact;
    Recordset lines;
};
}  // namespace

static std::vector<Posting> readPostings(Connection& store, std::span<const QueuedDocument> documents) {
    std::vector<Sql> reads;
    for (const QueuedDocument& document : documents) {
        reads.push_back(contactQuery(document));
        reads.push_back(linesQuery(document));
    }
    const ReadAhead ahead(store, reads);
    std::vector<Posting> postings;
    for (const QueuedDocument& document : documents) {
        const Recordset contact = store.execute(contactQuery(document));
        postings.push_back(
            {document, contact.eof() ? QString() : contact.textAt(0), store.execute(linesQuery(document))});
    }
    return postings;
}

static void addLines(Connection& store, Posting& posting, qint64 key) {
    const QueuedDocument& document = posting.document;
    for (Recordset& lines = posting.lines; !lines.eof(); lines.moveNext(), ++key)
        addStockRow(store, key,
                    {bookOf(document.bookId).bookId, document.reference, posting.contact,
                     lines.text("ItemID"), document.date, lines.currency("Quantity"),
                     NetOfPercent(lines.currency("Discount"), lines.currency("UnitPrice"))});
}

static void postDocuments(Connection& store, std::span<const QueuedDocument> documents) {
    Transaction unit(store);
    std::vector<Posting> postings = readPostings(store, documents);
    qint64 count = 0;
    for (const Posting& posting : postings) count += posting.lines.rowCount();
    qint64 key = count > 0 ? numbering::takeKeys(store, numbering::stock, count) : 0;
    for (Posting& posting : postings) {
        const QueuedDocument& document = posting.document;
        RemoveStockValuation(store, bookOf(document.bookId).bookId, document.reference);
        addLines(store, posting, key);
        key += posting.lines.rowCount();
        RemoveForPosting(store, document.bookId, document.reference);
    }
    unit.commit();
}

static void costItems(Connection& store, std::span<const QueuedItem> items, Progress& progress,
                      Boxes& boxes) {
    Transaction unit(store);
    QStringList codes;
    std::vector<Sql> reads;
    for (const QueuedItem& item : items) {
        codes += item.itemCode;
        reads.push_back(itemLedgerQuery(item.itemCode));
    }
    {
        const ReadAhead ahead(store, reads, ReadAhead::End);
        for (const QueuedItem& item : items)
            ComputeItemCosts(
                store, item.itemCode, [&](const char* text) { progress.setText(text + item.description); },
                boxes);
    }
    StoreCostPrices(store, codes, boxes);
    for (const QString& code : codes) RemoveItemForPosting(store, code);
    unit.commit();
}

// An item whose stock is beyond the range stays queued as it was; false then.
static bool costItemOrPass(Connection& store, const QueuedItem& item, Progress& progress, Boxes& boxes) {
    Boxes told;
    try {
        costItems(store, {&item, 1}, progress, told);
    } catch (const OverflowError& error) {
        boxes +=
            exclamation("Error...", QString("%1 %2: %3").arg(item.itemCode, item.description, error.what()));
        return false;
    }
    boxes += told;
    return true;
}

// Runs a step of the end of day; its failure is told and ends the run.
template <class Step>
static bool succeeds(Boxes& boxes, Step step) {
    try {
        step();
        return true;
    } catch (const StoreError& error) {
        boxes += exclamation("Error...", error.text());
    } catch (const OverflowError& error) {
        boxes += exclamation("Error...", error.what());
    }
    return false;
}

// The walk of both passes. Its entries are dealt with in units of a quarter of a second at most, for a commit
// costs more than most entries do, and several at once, as a server likes them; each is told to the view when
// its unit is safely in the store. Where one of several fails, each is dealt with by itself: a failing entry
// is undone alone and ends the walk, and those before it stay done.
template <class Entry>
class Walk {
  public:
    // False for an entry that is passed over.
    using Step = std::function<bool(const Entry&, Boxes&)>;
    using Several = std::function<void(std::span<const Entry>, Boxes&)>;
    using Tell = std::function<void(qsizetype)>;

    Walk(Connection& store, const QList<Entry>& list, EndOfDayView& view, Boxes& boxes)
        : store_(store), list_(list), view_(view), boxes_(boxes) {}

    // True when every entry is done.
    bool run(const char* stepText, const Several& several, const Step& step, const Tell& tell) {
        if (list_.isEmpty()) return false;
        view_.status(postingText);
        view_.start(list_.size());
        while (next_ < list_.size()) {
            Unit unit;
            const bool sound = succeeds(boxes_, [&] { runUnit(unit, stepText, several, step); });
            for (const qsizetype index : unit.done) tell(index);
            if (!sound || unit.failed) return false;
            if (next_ < list_.size()) letOthersIn(store_);
        }
        view_.status({});
        view_.start(0);
        return !passedOver_;
    }

  private:
    struct Unit {
        QList<qsizetype> done;
        bool failed = false;
    };

    static constexpr qsizetype entriesAtOnce = 32;

    void tellStatus(const char* stepText, qsizetype index) {
        view_.status(QString("%1 %2 of %3").arg(stepText).arg(index + 1).arg(list_.size()));
    }

    bool isUndone() const {
        try {
            store_.requireUnit();
            return false;
        } catch (const StoreError&) {
            return true;
        }
    }

    // False when one of them fails: none is done then. Throws what has undone the whole unit.
    bool doSeveral(qsizetype first, qsizetype count, const char* stepText, const Several& several,
                   Boxes& told) {
        Boxes boxes;
        for (qsizetype index = first; index < first + count; ++index) tellStatus(stepText, index);
        try {
            several({&list_[first], static_cast<size_t>(count)}, boxes);
        } catch (const StoreError&) {
            if (isUndone()) throw;
            return false;
        } catch (const OverflowError&) {
            return false;
        }
        told += boxes;
        return true;
    }

    // The first that fails ends it.
    qsizetype doEach(Unit& unit, qsizetype index, qsizetype end, const char* stepText, const Step& step,
                     Boxes& told, Boxes& failure) {
        for (; index < end; ++index) {
            tellStatus(stepText, index);
            bool whole = false;
            unit.failed = !succeeds(failure, [&] { whole = step(list_[index], told); });
            if (unit.failed) break;
            if (whole)
                unit.done += index;
            else
                passOver(index);
        }
        return index;
    }

    void runUnit(Unit& unit, const char* stepText, const Several& several, const Step& step) {
        const UnitClock clock;
        Transaction transaction(store_, Turn::Last);
        Unit work;
        Boxes told, failure;
        qsizetype index = next_;
        while (index < list_.size() && !work.failed && !clock.isOver()) {
            const qsizetype end = std::min(index + entriesAtOnce, list_.size());
            if (doSeveral(index, end - index, stepText, several, told))
                for (; index < end; ++index) work.done += index;
            else
                index = doEach(work, index, end, stepText, step, told, failure);
        }
        unit.failed = work.failed;
        // What a full disk has undone as a whole is told once.
        if (!unit.failed)
            transaction.commit();
        else if (Boxes unseen; !succeeds(unseen, [&] { transaction.commit(); }))
            return boxes_.append(failure);
        boxes_ += told + failure;
        unit.done = work.done;
        next_ = index;
    }

    void passOver(qsizetype index) {
        passedOver_ = true;
        view_.itemPassedOver(index);
    }

    Connection& store_;
    const QList<Entry>& list_;
    EndOfDayView& view_;
    Boxes& boxes_;
    qsizetype next_ = 0;
    bool passedOver_ = false;
};

bool PostStockValuation(Connection& store, const QList<QueuedDocument>& documents, EndOfDayView& view,
                        Boxes& boxes) {
    return Walk(store, documents, view, boxes)
        .run(
            "Posting Stock Valuation",
            [&](std::span<const QueuedDocument> several, Boxes&) { postDocuments(store, several); },
            [&](const QueuedDocument& document, Boxes&) {
                postDocuments(store, {&document, 1});
                return true;
            },
            [&](qsizetype index) { view.documentPosted(index); });
}

bool InitializeStockValuation(Connection& store, const QList<QueuedItem>& items, EndOfDayView& view,
                              Boxes& boxes, Progress& progress) {
    if (items.isEmpty()) return false;
    const ProgressScope scope(progress, balanceText + items.first().description, items.size());
    return Walk(store, items, view, boxes)
        .run(
            "Initializing Stock Valuation",
            [&](std::span<const QueuedItem> several, Boxes& told) {
                costItems(store, several, progress, told);
            },
            [&](const QueuedItem& item, Boxes& told) { return costItemOrPass(store, item, progress, told); },
            [&](qsizetype index) {
                view.itemCosted(index);
                progress.setValue(index + 1);
            });
}

Boxes postAndCostAll(Connection& store) {
    EndOfDayView unseen;
    Boxes boxes;
    PostStockValuation(store, LoadPostingQueue(store, Progress::none()), unseen, boxes);
    InitializeStockValuation(store, LoadPostingItems(store, Progress::none()), unseen, boxes);
    return boxes;
}

#include "books/end_of_day.h"

#include "books/item_costs.h"
#include "books/long_pass.h"
#include "books/numbering.h"
#include "books/posting_queue.h"
#include "books/stock_rows.h"
#include "books/stock_valuation.h"
#include "foundation/shared_routines.h"

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
                      " ORDER BY q.BookID, q.TransDate"),
        "Please Wait While System Loads Records for Uploading...", progress, [](const Recordset& row) {
            return QueuedDocument{row.trimmed("BookID"), row.trimmed("Reference"), row.date("TransDate"),
                                  row.trimmed("ContactName")};
        });
}

QList<QueuedItem> LoadPostingItems(Connection& store, Progress& progress) {
    return loadList<QueuedItem>(
        store.execute("SELECT q.ItemID, i.Description"
                      " FROM tblForPostingItem q LEFT JOIN tblItemMaster i ON i.ItemCode = q.ItemID"),
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

static Recordset linesOf(Connection& store, const Book& book, const QString& reference) {
    return store.execute(
        {QString("SELECT ItemID, %1 AS Quantity, UnitPrice, Discount FROM %2 WHERE Reference = ?")
             .arg(book.quantity, book.details),
         {reference}});
}

static void addLines(Connection& store, const Book& book, const QueuedDocument& document) {
    const QString contact = LookupField(store, "ContactID", "tblContactMaster", "ContactName",
                                        document.contactName, LookupMode::PrimaryKey);
    auto lines = linesOf(store, book, document.reference);
    if (lines.eof()) return;
    qint64 key = numbering::takeKeys(store, numbering::stock, lines.rowCount());
    for (; !lines.eof(); lines.moveNext(), ++key)
        addStockRow(store, key,
                    {book.bookId, document.reference, contact, lines.text("ItemID"), document.date,
                     lines.currency("Quantity"),
                     NetOfPercent(lines.currency("Discount"), lines.currency("UnitPrice"))});
}

static void postDocument(Connection& store, const QueuedDocument& document) {
    const Book& book = bookOf(document.bookId);
    Transaction unit(store);
    RemoveStockValuation(store, book.bookId, document.reference);
    addLines(store, book, document);
    RemoveForPosting(store, document.bookId, document.reference);
    unit.commit();
}

// Its boxes count only when the unit stands.
static void costItem(Connection& store, const QueuedItem& item, Progress& progress, Boxes& boxes) {
    Boxes told;
    Transaction unit(store);
    ComputeItemCosts(
        store, item.itemCode, [&](const char* text) { progress.setText(text + item.description); }, told);
    StoreCostPrice(store, item.itemCode, told);
    store.run({"DELETE FROM tblForPostingItem WHERE ItemID = ?", {item.itemCode}});
    unit.commit();
    boxes += told;
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
// costs more than most entries do; each is told to the view when its unit is safely in the store. A failing
// entry is undone alone: those before it stay done.
template <class Entry>
class Walk {
  public:
    using Step = std::function<void(const Entry&)>;
    using Tell = std::function<void(qsizetype)>;

    Walk(Connection& store, const QList<Entry>& list, EndOfDayView& view, Boxes& boxes)
        : store_(store), list_(list), view_(view), boxes_(boxes) {}

    bool run(const char* stepText, const Step& step, const Tell& tell) {
        if (list_.isEmpty()) return false;
        view_.status(postingText);
        view_.start(list_.size());
        for (bool more = true; more && next_ < list_.size();) {
            const qsizetype first = next_;
            if (!succeeds(boxes_, [&] { more = runUnit(stepText, step); })) return false;
            for (qsizetype index = first; index < next_; ++index) tell(index);
            if (!more) return false;
        }
        view_.status({});
        view_.start(0);
        return true;
    }

  private:
    // False when an entry failed.
    bool runUnit(const char* stepText, const Step& step) {
        const UnitClock clock;
        Transaction unit(store_);
        bool sound = true;
        qsizetype index = next_;
        while (sound && index < list_.size() && !clock.isOver()) {
            view_.status(QString("%1 %2 of %3").arg(stepText).arg(index + 1).arg(list_.size()));
            sound = succeeds(boxes_, [&] { step(list_[index]); });
            if (sound) ++index;
        }
        unit.commit();
        next_ = index;
        return sound;
    }

    Connection& store_;
    const QList<Entry>& list_;
    EndOfDayView& view_;
    Boxes& boxes_;
    qsizetype next_ = 0;
};

bool PostStockValuation(Connection& store, const QList<QueuedDocument>& documents, EndOfDayView& view,
                        Boxes& boxes) {
    return Walk(store, documents, view, boxes)
        .run(
            "Posting Stock Valuation", [&](const QueuedDocument& document) { postDocument(store, document); },
            [&](qsizetype index) { view.documentPosted(index); });
}

bool InitializeStockValuation(Connection& store, const QList<QueuedItem>& items, EndOfDayView& view,
                              Boxes& boxes, Progress& progress) {
    if (items.isEmpty()) return false;
    const ProgressScope scope(progress, balanceText + items.first().description, items.size());
    return Walk(store, items, view, boxes)
        .run(
            "Initializing Stock Valuation",
            [&](const QueuedItem& item) { costItem(store, item, progress, boxes); },
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

#pragma once
#include "platform/box.h"
#include "platform/progress.h"
#include "platform/store/connection.h"

#include <QDate>
#include <QList>

// The rules of the end of day: the queue becomes stock valuation, then every queued item is costed. The
// working set is the lists as loaded, not the tables.
struct QueuedDocument {
    QString bookId;
    QString reference;
    QDate date;
    QString contactName;
};
struct QueuedItem {
    QString itemCode;
    QString description;
};

QList<QueuedDocument> LoadPostingQueue(Connection& store, Progress& progress);
QList<QueuedItem> LoadPostingItems(Connection& store, Progress& progress);

// What the screen does at each step: its own bar and status text, the row selected.
class EndOfDayView {
  public:
    virtual ~EndOfDayView() = default;
    virtual void status(const QString& /*text*/) {}
    virtual void start(qint64 /*maximum*/) {}
    virtual void documentPosted(qsizetype /*index*/) {}
    virtual void itemCosted(qsizetype /*index*/) {}
    virtual void itemPassedOver(qsizetype /*index*/) {}
};

// Each document and each item is done whole or not at all, in units of a quarter of a second at most. False
// for an empty list, and after a failure, whose box is added; the work done stays done, and a second run
// completes it. An item whose stock is beyond the range is passed over: its box names it, the others are
// costed, and it makes the answer false. An item leaves the queue only while no waiting document has a line
// of it.
bool PostStockValuation(Connection& store, const QList<QueuedDocument>& documents, EndOfDayView& view,
                        Boxes& boxes);
bool InitializeStockValuation(Connection& store, const QList<QueuedItem>& items, EndOfDayView& view,
                              Boxes& boxes, Progress& progress = Progress::none());

// All that waits, as it stands, with no screen; the boxes that came.
Boxes postAndCostAll(Connection& store);

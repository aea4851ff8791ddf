#include "platform/store/row_watch.h"

#include "platform/store/engine.h"

#include <QList>

#include <algorithm>

static QList<RowWatch*>& watches() {
    static QList<RowWatch*> all;
    return all;
}

RowWatch::RowWatch(Connection& store, const QString& table, Listener listener)
    : engine_(&engineOf(store)), table_(table), listener_(std::move(listener)) {
    watches() += this;
    engineOf(store).tellRows();
}

RowWatch::~RowWatch() { watches().removeOne(this); }

bool RowWatch::listensTo(const Engine* engine, QStringView table) const {
    return engine_ == engine && table.compare(table_, Qt::CaseInsensitive) == 0;
}

bool RowWatch::isHeard(const Engine* engine, QStringView table) {
    return std::ranges::any_of(watches(),
                               [&](const RowWatch* watch) { return watch->listensTo(engine, table); });
}

void RowWatch::tell(const Engine* engine, QStringView table, Change change, qint64 row) {
    for (const RowWatch* watch : watches())
        if (watch->listensTo(engine, table)) watch->listener_(change, row);
}

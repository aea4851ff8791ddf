#pragma once
#include "documents/order_document.h"
#include "platform/store/connection.h"

#include <QList>
#include <QRandomGenerator>
#include <QString>
#include <functional>

// One workstation of the trial: what it has in hand, and the work it can do. Each piece of work is what a
// clerk does on a screen, through the modules under the screens; it answers what it has saved, for the
// record: "new sale 03-1001-2026", or nothing when the program refused it in words. Throws StoreError.
struct Station {
    Connection& store;
    QRandomGenerator dice;
    QStringList customers, suppliers, items;
    QStringList sales, purchases;  // its own, that stand

    QString any(const QStringList& list) {
        return list.isEmpty() ? QString() : list[dice.bounded(static_cast<int>(list.size()))];
    }
    // A document of up to five lines, saved under the first number that nobody else took meanwhile.
    QString saved(const OrderBook& book, const QString& contact, int mostPieces);
    // Tells what is about to go: whoever is killed in the midst of it has told no more.
    std::function<void(const QString&)> tell;
};

// False when the program refused it. Throws where nobody knows whether it is there.
bool isSaved(const Outcome& outcome);

QString sell(Station& station);
QString collect(Station& station);
QString changeSale(Station& station);
QString deleteSale(Station& station);
QString buy(Station& station);
QString pay(Station& station);

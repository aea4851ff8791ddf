// Writes a store: mkstore PATH makes the delivered one, mkstore --demo PATH one with a small firm's trade.
// With --server it goes into an empty database, named by its connection URI.
// mkstore --copy FROM TO carries all books from one store into a new one, file or URI, and prints what the
// tables of both hold: the number of rows, and the sum of a hash over them.
// mkstore --check PLACE looks through a store or a copy of one, writes nothing to it, and prints what is
// wrong.
#include "books/books_check.h"
#include "demo/demo_firm.h"
#include "foundation/new_store.h"
#include "foundation/schema.h"
#include "platform/store/place.h"
#include "platform/store/schema_faults.h"
#include "platform/store/store_care.h"

#include <QCoreApplication>
#include <QTextStream>
#include <algorithm>

namespace {
int usage() {
    QTextStream(stderr) << "usage: mkstore [--demo] PATH\n"
                           "       mkstore [--demo] --server URI\n"
                           "       mkstore --copy FROM TO\n"
                           "       mkstore --check PLACE\n";
    return 2;
}

// The figures of a damaged store, or one of another schema, are not asked for.
QStringList faultsOf(Connection& store) {
    if (const QStringList damages = damagesOf(store); !damages.isEmpty()) return damages;
    if (const QStringList faults = schemaFaults(store); !faults.isEmpty()) return faults;
    return balanceFaults(store);
}

int check(const QString& path) {
    Connection store;
    store.openToRead(path);
    const QStringList faults = faultsOf(store);
    QTextStream out(stdout);
    for (const QString& fault : faults) out << fault << '\n';
    if (faults.isEmpty()) out << "The store is sound.\n";
    return faults.isEmpty() ? 0 : 1;
}

int make(const QString& place, bool demo) {
    demo ? makeDemoStore(place) : makeDeliveredStore(place);
    return 0;
}

int copy(const QString& from, const QString& to) {
    const QList<TableFingerprint> tables = copyStore(from, to);
    QTextStream out(stdout);
    for (const TableFingerprint& table : tables)
        out << QString("%1 %2 %3\n")
                   .arg(table.table, -24)
                   .arg(table.rows, 10)
                   .arg(table.sum, 17, 16, QChar(u'0'));
    out << "Both stores hold the same.\n";
    return 0;
}

bool isPlace(const QString& argument) { return !argument.startsWith(u'-'); }

int run(QStringList arguments) {
    const bool copies = arguments.removeOne("--copy");
    const bool demo = arguments.removeOne("--demo");
    const bool checks = arguments.removeOne("--check");
    const bool server = arguments.removeOne("--server");
    if (arguments.size() != (copies ? 2 : 1) || (demo || server) + checks + copies > 1) return usage();
    if (!std::ranges::all_of(arguments, isPlace)) return usage();
    if (!copies && !checks && server != isServer(arguments[0])) return usage();
    try {
        registerSchema();
        if (copies) return copy(arguments[0], arguments[1]);
        return checks ? check(arguments[0]) : make(arguments[0], demo);
    } catch (const std::exception& error) {
        QTextStream(stderr) << "mkstore: " << QString::fromUtf8(error.what()) << '\n';
        return 1;
    }
}
}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return run(QCoreApplication::arguments().mid(1));
}

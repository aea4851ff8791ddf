// Writes a store: mkstore PATH makes the delivered one, mkstore --demo PATH one with a small firm's trade.
// mkstore --check PATH looks through a store or a copy of one, writes nothing to it, and prints what is
// wrong.
#include "books/books_check.h"
#include "demo/demo_firm.h"
#include "foundation/schema.h"
#include "platform/store/store_care.h"

#include <QCoreApplication>
#include <QTextStream>

namespace {
int usage() {
    QTextStream(stderr) << "usage: mkstore [--demo | --check] PATH\n";
    return 2;
}

// The figures of a damaged file, or one of another schema, are not asked for.
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

int make(const QString& path, bool demo) {
    demo ? makeDemoStore(path) : makeDeliveredStore(path);
    return 0;
}

int run(QStringList arguments) {
    const bool demo = arguments.removeOne("--demo");
    const bool checks = arguments.removeOne("--check");
    if (arguments.size() != 1 || arguments[0].startsWith(u'-') || (demo && checks)) return usage();
    try {
        registerSchema();
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

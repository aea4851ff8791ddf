// Writes a store: mkstore PATH makes the delivered one, mkstore --demo PATH one with a small firm's trade.
#include "demo/demo_firm.h"
#include "foundation/schema.h"

#include <QCoreApplication>
#include <QTextStream>

namespace {
int usage() {
    QTextStream(stderr) << "usage: mkstore [--demo] PATH\n";
    return 2;
}

int make(bool demo, const QString& path) {
    try {
        registerSchema();
        demo ? makeDemoStore(path) : makeDeliveredStore(path);
        return 0;
    } catch (const std::exception& error) {
        QTextStream(stderr) << "mkstore: " << QString::fromUtf8(error.what()) << '\n';
        return 1;
    }
}
}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool demo = arguments.removeOne("--demo");
    if (arguments.size() != 1 || arguments[0].startsWith(u'-')) return usage();
    return make(demo, arguments[0]);
}

// Writes a store: mkstore PATH makes the delivered one, mkstore --demo PATH one with a small firm's trade.
#include "demo/demo_firm.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "platform/clock.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

namespace {
int usage() {
    QTextStream(stderr) << "usage: mkstore [--demo] PATH\n";
    return 2;
}

// Beside the path first, so that a store that is half filled never bears its name.
void makeDemoStore(const QString& path) {
    if (QFile::exists(path))
        throw std::runtime_error(QString("The file \"%1\" already exists.").arg(path).toStdString());
    const QString unfinished = path + ".unfinished";
    QFile::remove(unfinished);
    makeDeliveredStore(unfinished);
    Connection store;
    store.open(unfinished, storePassword);
    fillDemoFirm(store, Clock::today());
    store.close();
    if (!QFile::rename(unfinished, path)) throw std::runtime_error(("cannot write " + path).toStdString());
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

// Writes a store: mkstore PATH makes the delivered one.
#include "foundation/schema.h"

#include <QCoreApplication>
#include <QTextStream>

static int usage() {
    QTextStream(stderr) << "usage: mkstore PATH\n";
    return 2;
}

static int make(const QString& path) {
    try {
        makeDeliveredStore(path);
        return 0;
    } catch (const std::exception& error) {
        QTextStream(stderr) << "mkstore: " << QString::fromUtf8(error.what()) << '\n';
        return 1;
    }
}

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() != 1 || arguments[0].startsWith(u'-')) return usage();
    return make(arguments[0]);
}

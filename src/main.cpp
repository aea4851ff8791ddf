#include "foundation/start.h"
#include "program.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    setUpProgram();
    return Main() ? QApplication::exec() : 1;
}

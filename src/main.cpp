#include "foundation/start.h"
#include "platform/ui/guarded_application.h"
#include "program.h"

int main(int argc, char** argv) {
    const GuardedApplication application(argc, argv);
    setUpProgram();
    return Main() ? GuardedApplication::exec() : 1;
}

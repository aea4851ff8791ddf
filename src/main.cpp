#include "documents/register.h"
#include "foundation/register.h"
#include "foundation/start.h"
#include "masters/register.h"
#include "platform/store/connection.h"
#include "platform/ui/icons.h"
#include "purchases/register.h"
#include "sales/register.h"
#include "shell/register.h"

#include <QApplication>

namespace {

void registerScreens() {
    registerFoundationScreens();
    registerMasterScreens();
    registerDocumentScreens();
    registerSalesScreens();
    registerPurchaseScreens();
    registerShellScreens();
}

// While another workstation holds the store, the windows go on painting.
void keepPainting() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("Zevrin");
    QApplication::setStyle("Fusion");
    QApplication::setWindowIcon(bundledIcon("bird"));
    Connection::setIdleHook(keepPainting);
    registerScreens();
    return Main() ? QApplication::exec() : 1;
}

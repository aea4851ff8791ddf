#include "documents/register.h"
#include "foundation/register.h"
#include "masters/register.h"
#include "purchases/register.h"
#include "sales/register.h"
#include "shell/register.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    registerFoundationScreens();
    registerMasterScreens();
    registerDocumentScreens();
    registerSalesScreens();
    registerPurchaseScreens();
    registerShellScreens();
    return QApplication::exec();
}

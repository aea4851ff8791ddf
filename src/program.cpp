#include "program.h"

#include "documents/register.h"
#include "foundation/register.h"
#include "masters/register.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/icons.h"
#include "platform/ui/program_style.h"
#include "purchases/register.h"
#include "reports/register.h"
#include "sales/register.h"
#include "shell/register.h"
#include "tools/register.h"

#include <QApplication>

static void registerScreens() {
    registerFoundationScreens();
    registerMasterScreens();
    registerReportScreens();
    registerDocumentScreens();
    registerSalesScreens();
    registerPurchaseScreens();
    registerToolScreens();
    registerShellScreens();
}

void setUpProgram() {
    QApplication::setApplicationName("Zevrin");
    QApplication::setStyle(new ProgramStyle);
    QApplication::setWindowIcon(bundledIcon("bird"));
    installIdleHook();
    registerScreens();
}

#pragma once
#include "platform/ui/child_screen.h"

// Shows the purchase order as a preview, for its entry screen and its journal, which tags it as printed. Null
// when it has no lines: a box has said so.
ChildScreen* PrintPurchaseOrder(const QString& purchaseNo);

#pragma once
#include "platform/ui/child_screen.h"

// Shows the delivery receipt of a sale as a preview, for its entry screen and its journal, which tags it as
// printed. Null when it has no lines: a box has said so.
ChildScreen* PrintDeliveryReceipt(const QString& refNo);

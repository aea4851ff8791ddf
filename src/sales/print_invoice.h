#pragma once
#include "platform/ui/child_screen.h"

// Shows the invoice of a payment as a preview, for its entry screen and its journal, which tags it as
// printed. Null when it has no lines: a box has said so.
ChildScreen* PrintPaymentInvoice(const QString& payNo);

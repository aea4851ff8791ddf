#pragma once
#include "documents/check_list.h"

// The payments of customers, from the receipts.
extern const CheckBook receivedChecks;

// Their screens, frmNegReceivableChecks and frmNegReceivableStatus.
extern const CheckScreen receivedCheckScreens;

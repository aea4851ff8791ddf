#pragma once
#include "documents/check_list.h"

// The checks that the firm has issued, from the vouchers.
extern const CheckBook issuedChecks;

// Their screens, frmNegPayableChecks and frmNegPayableStatus.
extern const CheckScreen issuedCheckScreens;

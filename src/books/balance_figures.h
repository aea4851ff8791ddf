#pragma once
#include "platform/currency.h"

#include <optional>

// The formulas of the balances, over terms as a summing query gives them: none for no rows, or for a sum that
// failed. One that leaves the range of a currency is 0.

using Term = std::optional<Currency>;

// Sold - |paid + discount granted|. Without one of its two sums the whole payment counts 0.
Currency receivableFigure(Term sold, Term paid, Term granted);
// In - out.
Currency differenceFigure(Term in, Term out);

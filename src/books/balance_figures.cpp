#include "books/balance_figures.h"

static Currency zeroBeyondRange(auto figure) {
    try {
        return figure();
    } catch (const OverflowError&) {
        return {};
    }
}

Currency receivableFigure(Term sold, Term paid, Term granted) {
    Currency payment;
    if (paid && granted) payment = zeroBeyondRange([&] { return *paid + *granted; });
    return zeroBeyondRange([&] { return sold.value_or(Currency()) - payment.abs(); });
}

Currency differenceFigure(Term in, Term out) {
    return zeroBeyondRange([&] { return in.value_or(Currency()) - out.value_or(Currency()); });
}

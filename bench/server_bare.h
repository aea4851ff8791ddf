#pragma once
#include "bench/bare_server.h"

// What the passes and saves of the program are held against on a server: the best way known to do the same
// work there. Set-based statements, COPY, and prepared statements that go out together.
namespace bare {

void revaluation(Server& server);
void balances(Server& server);
void endOfDay(Server& server);

// Five lines each; the texts are keys that are there.
struct FiveLines {
    QByteArray number, contactName;
    QByteArrayList keys;  // the items of a sale, the orders of a payment
    QByteArray amount;    // of each line, in ten-thousandths
};
void prepareSaves(Server& server);
void saveSale(Server& server, const FiveLines& sale);
void saveReceipt(Server& server, const FiveLines& receipt);
void saveVoucher(Server& server, const FiveLines& voucher);

}  // namespace bare

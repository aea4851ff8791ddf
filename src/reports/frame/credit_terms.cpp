#include "reports/frame/credit_terms.h"

QString termText(Currency days) { return days.toPlainText() + " Days"; }

QDate dueDate(const QDate& date, Currency days) { return date.addDays(days.tenThousandths() / 10000); }

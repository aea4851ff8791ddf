#include "books/passed_over.h"

#include <QLoggingCategory>

static Q_LOGGING_CATEGORY(booksLog, "zevrin.books");

void logPassedOver(const StoreError& error) {
    qCWarning(booksLog).noquote() << "A step was passed over:" << error.what();
}

#pragma once
#include "books/numbering.h"
#include "platform/ui/text_box.h"

#include <QToolButton>
#include <QWidget>
#include <variant>

// Where the number of a new document comes from: a serial that is peeked, and becomes the counter when the
// document is saved; or a key that is taken when it is read, and lost with a document that is not saved.
using NumberRule = std::variant<numbering::SerialCounter, numbering::RowKey>;

// What a new document's number is made with, beside the box that shows it. cmdIncrement gives the next one
// again: the way out after another workstation has taken the number.
class NumberEntry : public QWidget {
    Q_OBJECT
  public:
    static NumberEntry* make(const NumberRule& rule, const QString& incrementText);

    // The number that comes next. Throws StoreError.
    virtual void propose() = 0;
    // Of a peeked number; empty for one that was taken.
    virtual QString serial() const { return {}; }
    virtual QList<QWidget*> tabStops() const { return {cmdIncrement}; }

    QToolButton* cmdIncrement;

  signals:
    void composed(const QString& number);
    void left();  // Enter in the last box

  protected:
    explicit NumberEntry(const QString& incrementText);
};

#pragma once
#include "books/numbering.h"
#include "platform/ui/text_box.h"

#include <QToolButton>
#include <QWidget>

class QLabel;

// The number of a new document in three boxes, month - serial - year, and cmdIncrement, which proposes the
// next serial again: the way out after another workstation has taken the number.
class NumberEntry : public QWidget {
    Q_OBJECT
  public:
    NumberEntry(const numbering::SerialCounter& counter, const QString& incrementText);

    // Today's month and year and the next serial. Throws StoreError.
    void propose();
    QString number() const;
    QString serial() const { return txtSerialCode->text(); }

    QLabel* lblReference;
    TextBox* txtMonthCode;
    TextBox* txtSerialCode;
    TextBox* txtYearCode;
    QToolButton* cmdIncrement;

  signals:
    void composed(const QString& number);
    void left();  // Enter in the last box

  private:
    void compose() { emit composed(number()); }
    void connectBoxes();
    void layOut();

    numbering::SerialCounter counter_;
};

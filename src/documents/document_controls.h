#pragma once
#include "documents/document_screen.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/date_box.h"

#include <QLayout>
#include <QPushButton>

class QGridLayout;
class QHBoxLayout;

// The controls that every document's entry screen has, and their usual places. What they do stands with the
// screen.
class DocumentControls {
  public:
    explicit DocumentControls(const DocumentScreen& words);

    // The number's entry, which only a new document has; number, date and contact of an old one cannot be
    // changed, and are still there to be read.
    void showNewDocument(bool isNew);

    // Number, date, contact and remarks in the rows 0 to 3 of the columns 0 to 2, of which the last takes the
    // free width.
    QGridLayout* head() const;
    QHBoxLayout* listTitle() const;
    // The total below its column, the buttons of the lines, and who saved it.
    QLayout* foot(const QList<QPushButton*>& moreButtons) const;
    // The controls in the order of Tab, with what a screen has more after the date and at the end.
    QList<QWidget*> tabStops(const QList<QWidget*>& afterDate, const QList<QWidget*>& atEnd) const;

    TextBox* txtCode;
    NumberEntry* number;
    DateBox* txtRefDate;
    ComboBox* cboCustomer;
    QToolButton* cmdSearch;
    TextBox* txtRemarks;
    TextBox* txtTerm;
    TextBox* txtCustomerBalance;
    ListView* lvwItems;
    QPushButton* cmdAdd;
    QPushButton* cmdEdit;
    QPushButton* cmdRemove;
    TextBox* txtAmount;
    TextBox* txtCount;
    TextBox* txtUpdatedBy;
    TextBox* txtLastUpdate;

  private:
    void makeHead();
    void makeList();

    const DocumentScreen& words_;
};

// Tab walks these one after the other.
void setTabStops(const QList<QWidget*>& stops);

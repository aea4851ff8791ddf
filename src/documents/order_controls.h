#pragma once
#include "documents/number_entry.h"
#include "documents/order_screen.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/list_view.h"

#include <QCheckBox>
#include <QPushButton>

class QGridLayout;

// The controls of an order screen and their places. What they do stands with the screen.
class OrderControls {
  public:
    OrderControls(const OrderScreen& words, QWidget* screen);

    // The number boxes and what else only a new document has.
    void showNewDocument(bool isNew);
    void showSortArrow(int column, Qt::SortOrder order);
    void hideSortArrow();

    TextBox* txtCode;
    NumberEntry* number;
    TextBox* txtRefDate;
    ComboBox* cboCustomer;
    QToolButton* cmdSearch;
    TextBox* txtRemarks;
    TextBox* txtTerm;
    TextBox* txtBalance;
    TextBox* txtCustomerBalance;
    TextBox* txtCreditLimit;  // null where the screen has none
    QCheckBox* chkWholesale;  // null where the screen has none
    ListView* lvwItems;
    QLabel* lblNotice;
    QLabel* imgArrow;
    QPushButton* cmdAdd;
    QPushButton* cmdEdit;
    QPushButton* cmdRemove;
    QPushButton* cmdServe;
    TextBox* txtAmount;
    TextBox* txtCount;
    TextBox* txtUpdatedBy;
    TextBox* txtLastUpdate;

  private:
    void makeHead(const OrderScreen& words);
    void makeList(const OrderScreen& words);
    void makeButtons(const OrderScreen& words);
    QGridLayout* head(const OrderScreen& words) const;
    QLayout* contact() const;
    QLayout* listTitle() const;
    QLayout* foot() const;
    void orderTabs() const;
    void placeArrow();

    int arrowColumn_ = -1;
};

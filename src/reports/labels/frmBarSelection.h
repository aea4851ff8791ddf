#pragma once
#include "platform/ui/child_screen.h"

#include <QStringList>

class ComboBox;
class ListView;
class QBoxLayout;
class QGroupBox;
class TextBox;
struct Sql;

// Picks the items that get labels with bar codes, and how many each.
class frmBarSelection : public ChildScreen {
    Q_OBJECT
  public:
    frmBarSelection();
    QSize sizeHint() const override;

  public slots:
    void PrintRecord();

  private:
    void makeLists();
    QGroupBox* instruction();
    QBoxLayout* searchRow();
    QBoxLayout* lists();
    QBoxLayout* arrows();
    QBoxLayout* foot();
    void load();
    void list(const Sql& condition);
    void search();
    void selectOne();
    void unselectOne();
    void selectAll();
    void unselectAll();
    QStringList selectedCodes() const;

    ComboBox* cboSearchBy;
    TextBox* txtSearch;
    TextBox* txtNumber;
    ListView* lvwItems;
    ListView* lvwSelected;
};

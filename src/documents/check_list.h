#pragma once
#include "documents/check_status.h"
#include "platform/ui/child_screen.h"

#include <QHash>
#include <QLayout>

class CheckDialog;
class ComboBox;
class QBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;
class DateBox;
class TextBox;

// The names and words that the screens of the checks received and of the checks issued differ in.
struct CheckScreen {
    const CheckBook* book;
    const char* name;
    const char* caption;
    const char* dialogName;
    // Shows the rows of this statement as a report, or null when there are none: a box has said so.
    ChildScreen* (*print)(const CheckView& view, const Sql& rows);
};

// Follows the checks of one side: lists them by view, finds them, tags many as cleared, and opens the dialog
// for one.
class CheckList : public ChildScreen {
    Q_OBJECT
  public:
    // The words outlive the screen.
    explicit CheckList(const CheckScreen& words);
    QSize sizeHint() const override;

  public slots:
    void EditRecord();
    void RefreshRecord();
    void SearchRecord();
    void LoadGrid(const Sql& where);

  protected:
    void unloading() override;

  private:
    void makeControls();
    QLayout* searchRow();
    QLayout* buttonRow();
    QToolButton* addButton(QBoxLayout* row, const char* name, const char* icon, const char* text,
                           void (CheckList::*command)());
    void connectControls();

    void showEntries();
    void showAll();
    void markAll();
    void unmarkAll();
    void negotiate();
    void PrintChecks();

    void showRows(const CheckView& view, const QList<CheckRow>& rows);
    CheckSearch typedSearch() const;
    QList<StoredCheck> marked() const;

    const CheckScreen& words_;
    const CheckView* view_;  // what the list shows
    Sql search_;
    QHash<QString, StoredCheck> checks_;  // by control
    QPointer<CheckDialog> dialog_;

    ComboBox* cboView;
    ComboBox* cboSearchBy;
    ComboBox* cboCheckStatus;
    TextBox* txtSearch;
    DateBox* txtFrom;
    DateBox* txtTo;
    QLabel* lblTo;
    QPushButton* cmdSearch;
    ListView* lvwRecord;
    QToolButton* imgNegotiate;
};

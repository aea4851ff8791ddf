#pragma once
#include "documents/journal_book.h"
#include "platform/ui/child_screen.h"

#include <QLayout>

class ComboBox;
class QAbstractButton;
class QButtonGroup;
class QGridLayout;
class QPushButton;
class QRadioButton;
class TextBox;

// The browse screen of a book: a grid over its documents with search, sort, a filter on what has been
// printed, and the commands new, edit, delete and print. It opens on what has not been printed yet. The grid
// is a snapshot: what another workstation changes appears after a refresh, what this one does at once and in
// its row.
class Journal : public ChildScreen {
    Q_OBJECT
  public:
    explicit Journal(const JournalBook& book);

    bool deleteAllowed() const override { return canDelete_; }
    QSize sizeHint() const override;

  public slots:
    void NewRecord();
    void EditRecord();
    void DeleteRecord();
    void PrintRecord();
    void RefreshRecord();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* searchFrame();
    QWidget* sortFrame();
    QLayout* commandRow();
    QRadioButton* addOption(QButtonGroup* group, QGridLayout* grid, const QString& name,
                            const QString& caption);
    void connectControls();

    using Place = DataGrid::Place;
    void refreshGrid(Place place = Place::Top);
    QString whyEmpty() const;
    void searchJournal(Place place = Place::Top);
    // Through the search when there is a search text, else as it stands.
    void searchOrRefresh(Place place = Place::Top);
    void openAsLeft();
    void sortByOption();
    bool searching() const;
    void applyOption();
    void sortByHeader(int column);
    void clearOptions();
    void fitKeyFilter();

    ChildScreen* openEntry(const ScreenArguments& arguments);
    QString currentNumber() const;
    void showNothing();
    void showPopup();
    void edit();
    void editLocked(const QString& key);
    ChildScreen* entryShowing(const QString& key) const;
    void deleteCurrent();

    JournalBook book_;
    JournalQuery query_;
    bool canPrint_;
    bool canDelete_;

    ComboBox* cboSearch;
    TextBox* txtSearch;
    QPushButton* cmdSearch;
    QRadioButton* optAny;
    QRadioButton* optExact;
    QButtonGroup* sortOptions_;
    QList<QRadioButton*> sorts_;  // in the order of the book
    QRadioButton* optPrinted;
    QRadioButton* optUnPrinted;
    DataGrid* dbgMyGrid;
    QPushButton* cmdNew;
    QPushButton* cmdRow;
    QPushButton* cmdDelete;
    QPushButton* cmdPrint;
    QPushButton* cmdRefresh;
    QPushButton* cmdExit;
};

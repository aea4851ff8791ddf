#pragma once
#include "masters/master_fields.h"
#include "masters/master_records.h"
#include "platform/ui/child_screen.h"
#include "platform/ui/data_grid.h"

class ComboBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;

// What differs between the master screens.
struct MasterDescriptor {
    QString name = {};
    QString caption = {};
    MasterTable master = {};
    QList<MasterField> fields = {};
    QString heading = {};     // above the record; empty: none
    QString firstField = {};  // the focus of a record under change
    QString editField = {};   // of an edit, where that is another one

    QList<GridColumn> columns = {};
    QString defaultOrder = {};  // also of a column without an order
    QString listedNone = {};    // the count after a list: none,
    QString listed = {};        // and "%1" of them
    QString countedNone = {};   // the same for the count of the whole table
    QString counted = {};
    QString allCaption = {};  // of cmdAll; empty: the screen has none
    QString fills = {};       // what an empty list says; empty: how to fill it
    QString deletion = {};    // the question of a deletion, where that is not the usual one

    QList<SearchField> searchFields = {};  // none: the screen has no search
    QString initialField = {};
    QStringList types = {};   // of the field that is a choice
    QString dateColumn = {};  // searched by a date; empty: the screen has no such search

    QString notLoaded = {};      // what a move from no record says; empty: the store's own words
    bool duplicates = true;      // a record may be taken as the start of a new one
    bool locksOnShow = true;     // showing a record locks the fields
    bool editShowsLast = false;  // an edit shows its record after raising the flags, and so clears them
    bool listsAfterSave = false;
    bool listsAtOnce = false;  // lists when it opens, and shows a row at one click
};

// The pattern of the item and the contact master: the record on show in the top half, its fields locked until
// a command opens them; in the bottom half the grid that a search narrows and a pick shows from. The search,
// and the duplicate are there for the masters that ask for them, the walk for a WalkingMaster.
class MasterScreen : public RecordScreen {
    Q_OBJECT
  public:
    explicit MasterScreen(const MasterDescriptor& descriptor);
    QSize sizeHint() const override;

  public slots:
    void NewRecord();
    void EditRecord();
    void SaveRecord();
    void DeleteRecord();
    void ClearRecord();
    void RefreshRecord();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    const MasterFields& fields() const { return *fields_; }
    MasterEdit edit() const { return {fields_->changedColumns(), loaded_}; }
    MasterFields& fields() { return *fields_; }

    // The key of a new record, also written to the screen where it shows there; may be empty until the save.
    virtual QString drawKey(bool duplicate) = 0;
    // Checks and writes what is on the screen; key is the record's, and the new one after a save.
    virtual Outcome save(QString& key) = 0;
    virtual Outcome remove(const QString& key) = 0;
    virtual SearchCondition typeCondition(const QString& type);

    const MasterDescriptor& descriptor() const { return descriptor_; }
    const QString& currentKey() const { return currentKey_; }
    void DisplayRecord(const QString& key);

  private:
    void buildLayout();
    QWidget* recordHalf();
    QWidget* commandLine();
    void addSearch(QHBoxLayout* row);
    void addDateSearch(QHBoxLayout* row);
    void addSecondBox(QHBoxLayout* row);
    void addTypeList(QHBoxLayout* row);
    QGroupBox* gridHalf();
    void connectControls();
    void connectSearch();

    void LoadGrid(const Sql& where, const QString& order);
    void UpdateRecordCount();
    void LockFields() { fields_->lock(); }
    void UnlockFields();
    void duplicateRecord();
    void compose(bool duplicate);
    void finishSave(const QString& key);
    void pickFromGrid();
    QString gridKey() const;
    QString keyToEdit() const;
    void markSaved(const QString& key);
    void setCount(qint64 count, const QString& none, const QString& some);

    void onClick(const char* name, void (MasterScreen::*act)());
    void fieldChosen();
    void search();
    void searchType();
    void searchDate();
    void sayWhatFills();
    void sayWhatWasSought();
    void listCondition(const SearchCondition& condition);
    void listAll(const QString& order = {});
    void reloadAll();

    const MasterDescriptor descriptor_;
    MasterFields* fields_ = nullptr;
    QString currentKey_;  // CurrentCode, CurrentID
    StoredState loaded_;  // of the record on show
    QString keptOrder_;   // of the last time that the screen was open, until a heading is clicked
    QString savedKey_;    // of the last save, until a person moves in the grid or lists anew
    Sql ofDate_;          // the condition of the search by a date, which lasts until all are listed

    DataGrid* dbgMyGrid;
    QGroupBox* fraCount;
    ComboBox* cboSearchBy = nullptr;
    ComboBox* cboType = nullptr;
    TextBox* txtSearch = nullptr;
    TextBox* txtSecondSearch = nullptr;
    TextBox* txtDate = nullptr;
    QLabel* lblSearch = nullptr;
    QLabel* lblDash = nullptr;
};

// A master whose commands First, Previous, Next and Last go through the whole table.
class WalkingMaster : public MasterScreen {
    Q_OBJECT
  public:
    using MasterScreen::MasterScreen;

  public slots:
    void NextRecord();
    void PrevRecord();
    void FirstRecord();
    void LastRecord();

  private:
    template <typename Step>
    void move(Step step, const Box& atTheEnd);
    void showFromEnd(QString (*end)(Connection&, const MasterTable&));
};

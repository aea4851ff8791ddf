#pragma once
#include <QMetaMethod>
#include <QTreeView>

// A list of rows of texts. The texts are the data; a row is its texts in column order.
// Amount columns stand right. Sorting by a header compares amounts as numbers and dates as dates, and keeps
// the order of equal rows. Enter, Insert, Delete and F2 go on to the screen when nobody is connected to their
// signals.
struct ListColumn {
    QString heading;
    int characters = 12;  // usable width, in average characters of the font
    enum Kind { Text, Number, Date } kind = Text;
};

class TextListModel;

class ListView : public QTreeView {
    Q_OBJECT
  public:
    ListView(const QString& name, const QList<ListColumn>& columns, QWidget* parent = nullptr);

    void setHeadings(const QStringList& headings);  // of the columns from the first

    int rowCount() const;
    QStringList row(int row) const;
    QString text(int row, int column) const;
    void setText(int row, int column, const QString& text);
    int addRow(const QStringList& texts);  // returns its number
    void insertRow(int row, const QStringList& texts);
    void setRows(const QList<QStringList>& rows);  // all at once, in their order; forgets a sort
    QList<QStringList> rows() const;
    void removeRow(int row);
    void clear();
    int currentRow() const;                              // -1: none selected
    void setCurrentRow(int row);                         // selects it and scrolls it into view
    int findRow(int column, const QString& text) const;  // without regard to case; -1: none

    // A box before each row, to mark it by: with a click, or Space on the current row. A mark goes with its
    // row wherever a sort puts it; new rows come without.
    void showMarks();
    bool isMarked(int row) const;
    void setMarked(int row, bool marked = true);
    void setAllMarked(bool marked);
    QList<int> markedRows() const;  // from the first

    // Sorts once by a column and remembers it: the same column again turns the order over.
    void toggleSort(int column);
    Qt::SortOrder sortOrder() const;
    int sortedColumn() const;
    void setSortsByHeader(bool sorts);  // a click on a header calls toggleSort and then headerClicked
    // The same, and new rows stand as the person sorted them last, here or the last time.
    void keepSort();

    QSize sizeHint() const override;

  signals:
    void rowDoubleClicked(int row);
    void entered(int row);  // Enter on the list; -1 with no row
    void insertPressed();
    void deletePressed();
    void editPressed();  // F2
    void headerClicked(int column);
    void marksChanged();  // one or all, by a person or the program

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    template <class Signal>
    bool waitsFor(Signal signal) const {
        return isSignalConnected(QMetaMethod::fromSignal(signal));
    }
    void sortBy(int column);
    void connectSignals();
    void forgetSort();
    void sortAsKept();
    void sort(int column, Qt::SortOrder order);

    TextListModel* model_;
    int sortedColumn_ = -1;
    Qt::SortOrder order_ = Qt::AscendingOrder;
    bool sortsByHeader_ = false;
    bool keepsSort_ = false;
};

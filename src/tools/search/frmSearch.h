#pragma once
#include "platform/ui/child_screen.h"
#include "tools/search/search_query.h"

#include <QLayout>
#include <QTimer>

class ComboBox;
class ListView;
class QGroupBox;
class QLabel;
class QPushButton;
class TextBox;

// Asks the books a question: items, balances of contacts, or documents. The list follows what is typed; its
// rows show as they are fetched, and a search that the next one overtakes is dropped.
class frmSearch : public ChildScreen {
    Q_OBJECT
  public:
    frmSearch();
    bool eventFilter(QObject* watched, QEvent* event) override;

  public slots:
    void NewRecord();
    void RefreshRecord();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    // What stands on the screen for one kind.
    struct Panel {
        const SearchKind* kind;
        QGroupBox* frame;
        ListView* list;
        QList<TextBox*> filters;
    };
    void build();
    QLayout* typeLine();
    Panel makePanel(const SearchKind& kind);
    QLayout* makeFilters(const SearchKind& kind, Panel& panel);
    TextBox* makeFilter(const SearchKind& kind, const SearchFilter& filter);
    QLayout* makeFoot();
    void connectFilter(const SearchKind& kind, TextBox* box);
    void fillTypes();

    const Panel* panel() const;  // of the chosen kind; null: none is chosen
    const Panel* chosenPanel();  // a box says that none is
    void kindChosen();
    void journalChosen();
    void clearPanel();
    void clearFilters();
    void clearGrid();
    SearchRequest request(bool all) const;
    void search(bool all = false);
    void sayWhatWasSought();
    void begin(const Search& search);
    void readOn(int rows);
    void showAll();
    void print();

    QList<Panel> panels_;
    ComboBox* cboType;
    ComboBox* cboJournal;
    QLabel* lblReference = nullptr;
    QPushButton* cmdPrint;
    std::optional<Search> running_;
    qint64 after_ = 0;
    QTimer more_;
};

#pragma once
#include "documents/order_controls.h"
#include "documents/order_document.h"
#include "platform/ui/child_screen.h"

class frmAddItem;
class frmInputInList;

// The entry screen of a sales or purchase order. A journal opens it for a new document, or for an existing
// one whose RecordLock it has taken; the screen holds the lock and clears it when it leaves the document.
class OrderEntry : public RecordScreen, public LineOwner {
    Q_OBJECT
    Q_PROPERTY(QString mstrPrimary MEMBER mstrPrimary)
  public:
    explicit OrderEntry(const OrderScreen& screen);

    QString mstrPrimary;  // of the document being changed

    bool receive(const ScreenArguments& arguments) override;
    bool queryUnload() override;

    const OrderBook& orderBook() const override { return *screen_.book; }
    const LineWords& lineWords() const override { return screen_.words; }
    LineOrder lineOrder() const override { return ::lineOrder(head()); }
    bool hasLine(const QString& itemCode) const override;
    OrderLine lineAt(int row) const override;
    void addLine(const OrderLine& line) override;
    void replaceLine(int row, const OrderLine& line) override;

  public slots:
    void NewRecord();
    bool SaveRecord();  // false when the save was refused
    bool CheckContact();
    void RecomputeTotal();

  protected:
    void unloading() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void connectHead();
    void connectDirtying();
    void connectList();
    void connectButtons();

    OrderDocument head() const;
    OrderDocument document() const;
    void startNew();
    void openDocument(const QString& key);
    void showLoaded(const LoadedOrder& loaded);
    void showContact(const ContactFigures& figures);
    void showNoContact();
    void showLines(const QList<OrderLine>& lines);
    void countLines();
    void allowWholesale();

    void findContact();
    void takeContact(const QString& name, const QString& contactId);
    bool contactReady(const char* unknown);

    void startLine();
    void changeLine();
    void removeLine();
    void serveLine();
    void showSorted(int column);
    frmAddItem& openLineDialog();
    bool lineDialogHolds();

    void finishSave(const Boxes& boxes);
    ChildScreen* offerPrint();
    bool settleChanges();
    void releaseLock();

    const OrderScreen& screen_;
    OrderControls ui;
    QPointer<frmAddItem> lineDialog_;
    QPointer<frmInputInList> quantityPopup_;
    QString held_;  // the document whose RecordLock is ours
    bool canPrint_ = false;
};

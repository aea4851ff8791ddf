#pragma once
#include "documents/document_entry.h"
#include "documents/order_controls.h"
#include "documents/order_document.h"

class frmInputInList;

// The lines of an order, with the stock that each was tested against since the list was filled.
class OrderLines : public LinesOf<OrderLine> {
  public:
    OrderLines(ListView* view, RecordScreen* screen);

    OrderLine lineAt(int row) const override;
    void insertLine(int row, const OrderLine& line) override;
    void replaceLine(int row, const OrderLine& line) override;

  private:
    void remember(const OrderLine& line) { tested_[line.itemCode.toUpper()] = line.tested; }

    QHash<QString, std::optional<Currency>> tested_;  // by the item's code
};

// The entry screen of a sales or purchase order.
class OrderEntry : public DocumentEntry, public OrderOwner {
    Q_OBJECT
  public:
    explicit OrderEntry(const OrderScreen& screen);

    const OrderBook& orderBook() const override { return *screen_.book; }
    const LineWords& lineWords() const override { return screen_.words; }
    LineOrder lineOrder() const override { return ::lineOrder(orderHead()); }
    LineOwner<OrderLine>& lines() override { return lines_; }

  protected:
    void clearDocument() override;
    void loadDocument() override;
    Outcome saveDocument(Progress& progress) override;
    void startLine() override;
    void changeLine() override;
    void linesChanged() override;
    void showContact(const ContactFigures& figures) override;
    void unloading() override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    OrderDocument orderHead() const;
    void showLoaded(const LoadedOrder& loaded);
    void serveLine();

    const OrderScreen& screen_;
    OrderControls own_;
    OrderLines lines_;
    QPointer<frmInputInList> quantityPopup_;
};

#pragma once
#include "reports/frame/period_report.h"

#include <QWidget>
#include <list>

class QGridLayout;
class QLabel;
class QToolButton;
class TextBox;

// The picker that fills a field of a print screen. Those of a kind follow the kind that the screen is opened
// with: "P" lists suppliers, any other customers.
enum class PickedFrom {
    Nothing,
    Contacts,
    Customers,
    Suppliers,
    ContactsOfKind,
    ItemCodes,
    ItemDescriptions
};

// A field that a person fills on a print screen, or reads there.
struct PrintField {
    const char* name;  // "cboCustomer" is a combo box, whose list is the picker; "txtDescription" a text box
    const char* caption;                     // "C&ustomer :"
    QString PrintRequest::*typed = nullptr;  // where a request has it, trimmed; null: it is only read
    PickedFrom picker = PickedFrom::Nothing;
    const char* search = nullptr;             // the name of its button, which opens the picker, too
    const char* whenEmpty = nullptr;          // what an empty field stands for: "All Customers"
    const char* captionOfSupplier = nullptr;  // instead, when the screen is opened with kind "P"
    QString (*shown)() = nullptr;             // what a field that is only read shows
};

// These fields, one below the other. Enter in a field with a picker opens that with what is typed; it goes on
// where what is typed is there, or where the empty field stands for all. Whatever is typed or picked of a
// record fills all fields of that record: the code of an item and its description belong together.
class PrintFields : public QWidget {
    Q_OBJECT
  public:
    explicit PrintFields(const QList<PrintField>& fields);
    void setKind(const QString& kind);
    // Puts what is typed into the request. A field that still has the focus is completed first.
    void addTo(PrintRequest& request);

  private:
    struct Row {
        const PrintField& field;
        QWidget* control;
        TextBox* box;  // the control, or its line
        QLabel* caption;
        QToolButton* search = nullptr;
        bool isTyped = false;  // since the record was last found
    };
    using Value = std::function<QString(const QString& column)>;

    void addRow(const PrintField& field);
    void addSearch(Row& row, int line);
    QGridLayout* grid() const;
    template <typename Control>
    void watch(Control* control, Row& row);
    void type(Row& row);
    void enter(Row& row);
    void leave(Row& row);
    bool complete(Row& row);
    void pick(Row& row);
    void take(const Row& row, const Value& value);
    void goOn(const Row& row);

    std::list<Row> rows_;
    QString kind_;
};

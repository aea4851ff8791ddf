#pragma once
#include "platform/store/connection.h"

#include <QHash>
#include <QObject>

class QCheckBox;
class QGridLayout;
class QWidget;
class ComboBox;
class TextBox;

// One field of a master screen: a control, its label, its column, and how the two look alike.
struct MasterField {
    enum Kind {
        Text,
        Upper,       // upper-cased when it is left
        UpperShown,  // and when it is shown
        Unit,        // completed from the unit master when it is left
        Supplier,    // an open combo of names over the column of a contact's code
        Days,        // a whole number, as plain digits
        Percent,     // "0.00", taken as it is typed
        Amount,      // "#,##0.00"
        Price,       // "#,##0.0000"
        Date,        // "mm/dd/yyyy"
        Flag,        // a check box
    };
    enum Access { Open, NewOnly, Never };  // when the unlocked screen lets a person in

    QString control;
    QString label;
    QString column;
    Kind kind = Text;
    int capacity = 0;
    Access access = Open;
    QString blank = {};          // what clearing puts in
    bool survivesClear = false;  // clearing leaves it, and only a new record blanks it
    // Its place: a line of the form, the first of three pairs of label and control, and how many pairs.
    int line = 0;
    int pair = 0;
    int pairs = 1;
};

// The record half of a master screen, built from a table of fields.
class MasterFields : public QObject {
    Q_OBJECT
  public:
    MasterFields(const QList<MasterField>& fields, QGridLayout* layout, QObject* parent);

    TextBox* box(const QString& control) const { return boxes_.value(control); }
    ComboBox* combo(const QString& control) const { return combos_.value(control); }
    QString text(const QString& control) const;
    void setText(const QString& control, const QString& text);
    bool flag(const QString& control) const;

    void clear();
    void blankForNew();  // clears, and blanks what survives a clear: a date is today
    void show(Connection& store, const Recordset& row);
    void unlock(bool newRecord);
    void lock();
    // What leaving the control under change would do: a save by key or menu does not move the focus.
    void leave(QWidget* control);

  private:
    void add(const MasterField& field, QGridLayout* layout);
    QWidget* makeControl(const MasterField& field);
    TextBox* makeBox(const MasterField& field);
    ComboBox* makeCombo(const MasterField& field);
    QWidget* control(const MasterField& field) const;
    void put(const MasterField& field, const QString& text);
    void reshape(const MasterField& field);

    QList<MasterField> fields_;
    QHash<QString, TextBox*> boxes_;
    QHash<QString, ComboBox*> combos_;
    QHash<QString, QCheckBox*> flags_;
};

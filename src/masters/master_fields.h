#pragma once
#include "platform/store/connection.h"

#include <QHash>
#include <QObject>
#include <QSet>

class QCheckBox;
class QGridLayout;
class QWidget;
class ComboBox;
class TextBox;

// What a Lookup field stands for: the row of a table, known by one column, shown by another. The list that
// drops down holds the rows of the filter, a condition, in the order of what they show; empty: all rows.
struct MasterLookup {
    const char* table;
    const char* key;
    const char* shown;
    const char* filter;
};

// One field of a master screen: a control, its label, its column, and how the two look alike.
struct MasterField {
    enum Kind {
        Text,
        Upper,       // upper-cased when it is left
        UpperShown,  // and when it is shown
        Unit,        // completed from the unit master when it is left
        Lookup,      // an open combo of what another table shows, over the column of its key
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
    MasterLookup lookup = {};
    const char* invalidDate = nullptr;  // of a Date that must be one, as the save says it
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

    // The columns whose fields no longer say what show() put there, in whatever shape.
    QSet<QString> changedColumns() const;

    void clear();
    void blankStamps();  // who last saved it, and when
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
    QString content(const MasterField& field) const;
    void reshape(const MasterField& field);

    QList<MasterField> fields_;
    QHash<QString, TextBox*> boxes_;
    QHash<QString, ComboBox*> combos_;
    QHash<QString, QCheckBox*> flags_;
    QHash<QString, QString> shown_;  // by control
};

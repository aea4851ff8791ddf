#pragma once
#include "platform/ui/key_filters.h"

#include <QComboBox>

class TextBox;

// A combo box. An open one takes typed text, with the key filter, selection and capacity of a TextBox; a
// closed one only picks.
class ComboBox : public QComboBox {
    Q_OBJECT
  public:
    enum Kind { Open, Closed };
    ComboBox(const QString& name, Kind kind, QWidget* parent = nullptr);

    TextBox* box() const;  // null on a closed one
    void setKeyFilter(const KeyFilter& filter);
    void setCapacity(int characters);
    QString text() const { return currentText(); }
    void setText(const QString& text);  // a text outside the list of a closed one selects nothing
    // Filled again each time the list drops down; keeps the text.
    void setFiller(std::function<void()> filler) { filler_ = std::move(filler); }

    void showPopup() override;

  signals:
    void focusGained();
    void focusLost();
    void keyTyped();
    void entered();
    void picked();  // a person chose an entry (the told Click)

  private:
    std::function<void()> filler_;
};

#pragma once
#include "platform/ui/front_watch.h"
#include "platform/ui/key_filters.h"

#include <QComboBox>
#include <functional>

class TextBox;

// A combo box. An open one takes typed text, with the key filter, selection and capacity of a TextBox, and
// never completes or changes what was typed; a closed one only picks. Enter follows the rule of TextBox.
class ComboBox : public QComboBox, public FocusField {
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
    bool takesEnter() const;
    void fieldGained() override;
    void fieldLost() override { emit focusLost(); }

  signals:
    void focusGained();
    void focusLost();
    void keyTyped();
    void entered();
    void picked();  // a person chose an entry

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void openForTyping();
    void fill();

    std::function<void()> filler_;
};

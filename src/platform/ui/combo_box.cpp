#include "platform/ui/combo_box.h"

#include "platform/ui/boxes.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/text_box.h"

#include <QKeyEvent>
#include <QMetaMethod>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace {
// The line of an open combo box: whoever waits for Enter is connected to the combo box.
class ComboLine : public TextBox {
  public:
    explicit ComboLine(ComboBox* combo) : TextBox("", combo), combo_(combo) {}

  protected:
    bool takesEnter() const override { return combo_->takesEnter(); }

  private:
    ComboBox* combo_;
};
}  // namespace

ComboBox::ComboBox(const QString& name, Kind kind, QWidget* parent) : QComboBox(parent) {
    FrontWatch::instance();
    setObjectName(name);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(10);
    if (kind == Open) openForTyping();
    connect(this, &QComboBox::activated, this, [this] { emit picked(); });
}

void ComboBox::openForTyping() {
    auto* line = new ComboLine(this);
    setLineEdit(line);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    // What was typed stays as it was typed, whatever the list holds.
    disconnect(line, &QLineEdit::editingFinished, this, nullptr);
    disconnect(line, &QLineEdit::returnPressed, this, nullptr);
    connect(line, &TextBox::keyTyped, this, &ComboBox::keyTyped);
    connect(line, &TextBox::entered, this, &ComboBox::entered);
}

TextBox* ComboBox::box() const { return qobject_cast<TextBox*>(lineEdit()); }

void ComboBox::setKeyFilter(const KeyFilter& filter) {
    if (box()) box()->setKeyFilter(filter);
}

void ComboBox::setCapacity(int characters) {
    if (box()) box()->setCapacity(characters);
}

void ComboBox::setText(const QString& text) {
    const int entry = findText(text, Qt::MatchFixedString);
    setCurrentIndex(entry);
    if (isEditable()) setEditText(text);
}

void ComboBox::fill() {
    if (!filler_) return;
    const QString kept = currentText();
    const QSignalBlocker quiet(this);
    guarded(filler_);
    setText(kept);
}

void ComboBox::showPopup() {
    fill();
    QComboBox::showPopup();
}

bool ComboBox::takesEnter() const { return isSignalConnected(QMetaMethod::fromSignal(&ComboBox::entered)); }

void ComboBox::fieldGained() {
    if (box()) box()->fieldGained();
    emit focusGained();
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
    if (!isEnterKey(event->key()) || isEditable()) return QComboBox::keyPressEvent(event);
    event->setAccepted(takesEnter());
    emit entered();
}

// Rolling over a screen changes no field.
void ComboBox::wheelEvent(QWheelEvent* event) { event->ignore(); }

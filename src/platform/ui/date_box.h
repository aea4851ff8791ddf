#pragma once
#include "platform/outcome.h"
#include "platform/ui/text_box.h"

#include <functional>
#include <optional>

// A text box for a date, as wide as one. A date is shown in full once its field is left; what is none gets
// the refusal that the screen's command would give in the end, at once and with the focus on it. A person who
// goes to a button of commands, clicks on a button or leaves the screen is let go: OK tests what it needs by
// itself, in its own order, and Cancel needs nothing. So is one whom the program takes elsewhere (for
// Qt::OtherFocusReason), to another field at fault.
class DateBox : public TextBox {
    Q_OBJECT
  public:
    // What is wrong with a text that is no date; none: it may stay.
    using Refusal = std::function<std::optional<Fault>()>;
    explicit DateBox(const QString& name, QWidget* parent = nullptr);
    void setRefusal(const Refusal& refusal) { refusal_ = refusal; }
    void setRefusal(const Fault& fault);

    // Shows the date in full, or the refusal: false.
    bool settle();

    void fieldLost() override;

  protected:
    void focusOutEvent(QFocusEvent* event) override;

  private:
    bool isLetGo() const;
    QWidget* screen() const;

    Refusal refusal_;
    Qt::FocusReason reason_ = Qt::OtherFocusReason;  // that it was left for
};

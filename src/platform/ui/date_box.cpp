#include "platform/ui/date_box.h"

#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/child_screen.h"
#include "platform/ui/field_width.h"

#include <QApplication>
#include <QPushButton>

static constexpr int longestDate = 10;

DateBox::DateBox(const QString& name, QWidget* parent) : TextBox(name, parent) {
    setKeyFilter(keys::date());
    setCapacity(longestDate);
    field_width::fix(this, field_width::date);
}

void DateBox::setRefusal(const Fault& fault) {
    setRefusal([fault] { return fault; });
}

static bool showInFull(DateBox* box) {
    const auto date = parseDate(box->text());
    if (!date) return false;
    const QString full = formatDate(*date);
    if (full != box->text()) box->setText(full);
    return true;
}

bool DateBox::settle() {
    if (showInFull(this)) return true;
    const auto fault = refusal_ ? refusal_() : std::nullopt;
    if (fault) showFault(*fault, screen());
    return !fault;
}

void DateBox::fieldLost() {
    if (isLetGo())
        showInFull(this);
    else if (!settle())
        return;
    TextBox::fieldLost();
}

void DateBox::focusOutEvent(QFocusEvent* event) {
    reason_ = event->reason();
    TextBox::focusOutEvent(event);
}

bool DateBox::isLetGo() const {
    QWidget* now = QApplication::focusWidget();
    if (!isEnabled() || isReadOnly() || !screen()->isAncestorOf(now)) return true;
    if (reason_ == Qt::OtherFocusReason || qobject_cast<QPushButton*>(now)) return true;
    return reason_ == Qt::MouseFocusReason && qobject_cast<QAbstractButton*>(now);
}

QWidget* DateBox::screen() const {
    for (QWidget* around = parentWidget(); around; around = around->parentWidget())
        if (qobject_cast<ChildScreen*>(around)) return around;
    return window();
}
